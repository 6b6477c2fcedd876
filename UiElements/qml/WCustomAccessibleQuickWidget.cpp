#include <UiElements/qml/WCustomAccessibleQuickWidget.h>

#include <QEvent>
#include <QGuiApplication>
#include <QInputMethod>

WCustomAccessibleQuickWidget::WCustomAccessibleQuickWidget(QQmlEngine *engine, QWidget *parent)
    : WQuickWidget(engine, parent)
{
    connect(this, &WCustomAccessibleQuickWidget::focusAboutToChange, this,
            &WCustomAccessibleQuickWidget::onFocusAboutToChange);
}

WCustomAccessibleQuickWidget::~WCustomAccessibleQuickWidget() = default;

bool WCustomAccessibleQuickWidget::event(QEvent *event)
{
    if (event->type() == QEvent::FocusAboutToChange) {
        const QPointer<WCustomAccessibleQuickWidget> self(this);
        Q_EMIT focusAboutToChange();
        if (!self)
            return true;
    }
    return WQuickWidget::event(event);
}

void WCustomAccessibleQuickWidget::onFocusAboutToChange()
{
    QGuiApplication::inputMethod()->commit();
}
