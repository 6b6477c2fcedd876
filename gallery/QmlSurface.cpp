#include "QmlSurface.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/qml/WQuickWidget.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>
#include <memory>

namespace {

constexpr int LongestFrame = 500;

} // namespace

QmlSurface::QmlSurface(const QString &name, Fit fit, QWidget *parent)
    : QWidget(parent)
    , m_fit(fit)
{
    setAccessibleName(name);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    if (fit == FitsSize)
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(static_cast<IWApplication *>(qApp), &IWApplication::colorSetsChanged, this, &QmlSurface::dress);
}

void QmlSurface::setView(WQuickWidget *view)
{
    m_view = view;
    if (!view)
        return;
    view->setAccessibleName(accessibleName());
    layout()->addWidget(view);
    connect(view, &QQuickWidget::statusChanged, this, &QmlSurface::followRoot);
    followRoot();
}

void QmlSurface::showFrames(const QWidget *window)
{
    QObject context;
    const auto waiting = std::make_shared<QSet<const QQuickWindow *>>();
    const QList<QQuickWidget *> views = window->findChildren<QQuickWidget *>();
    for (const QQuickWidget *view : views) {
        if (!view->isVisible() || view->size().isEmpty())
            continue;
        QQuickWindow *const scene = view->quickWindow();
        waiting->insert(scene);
        connect(scene, &QQuickWindow::afterRendering, &context, [scene, waiting] { waiting->remove(scene); });
        scene->update();
    }
    bool isLate = false;
    QTimer::singleShot(LongestFrame, &context, [&isLate] { isLate = true; });
    while (!waiting->isEmpty() && !isLate)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
}

void QmlSurface::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        dress();
}

// The theme type of a window is known when the widget is in it.
void QmlSurface::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    dress();
}

void QmlSurface::followRoot()
{
    if (const QQuickItem *root = m_view->rootObject()) {
        connect(root, &QQuickItem::implicitWidthChanged, this, &QmlSurface::fit);
        connect(root, &QQuickItem::implicitHeightChanged, this, &QmlSurface::fit);
    }
    dress();
    fit();
}

void QmlSurface::dress()
{
    if (!m_view)
        return;
    const auto type = WThemeUtils::getThemeTypeOfWidget(this);
    m_view->setClearColor(WThemeUtils::getColorSet("background-tertiary", type).normal());
    QQuickItem *const root = m_view->rootObject();
    if (root && root->metaObject()->indexOfProperty("themeType") >= 0)
        root->setProperty("themeType", WThemeUtils::themeTypeToString(type));
}

void QmlSurface::fit()
{
    const QQuickItem *const root = m_view->rootObject();
    if (!root || m_fit == FitsNothing)
        return;
    const QSize size(int(std::ceil(root->implicitWidth())), int(std::ceil(root->implicitHeight())));
    m_view->setFixedHeight(size.height());
    if (m_fit == FitsSize)
        m_view->setFixedWidth(size.width());
    else
        m_view->setMinimumWidth(size.width());
}
