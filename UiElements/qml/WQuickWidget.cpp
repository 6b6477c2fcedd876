#include <UiElements/qml/WQuickWidget.h>

#include "QmlAccessible_p.h"

#include <UiElements/keyboard/TabOrderUtils.h>

#include <QEvent>
#include <QImage>
#include <QQuickWindow>
#include <QTimer>

WQuickWidget::WQuickWidget(QQmlEngine *engine, QWidget *parent)
    : QQuickWidget(engine, parent)
{
    // Again with each content: QtQuick brings a factory for all its windows when it is first imported.
    QmlAccessible::install();
    connect(this, &QQuickWidget::statusChanged, &QmlAccessible::install);
    QmlAccessible::setOwner(quickWindow(), this);
    TabOrderUtils::letTabThrough(this);
    if (QQuickWindow::sceneGraphBackend() == QLatin1String("software")) {
        setClearColor(Qt::transparent);
        return;
    }
    // OpenGL draws the widget before everything that is behind it, and so over black; with WA_AlwaysStackOnTop after
    // everything, also after what lies above it.
    m_colorBehind = quickWindow()->color();
    if (parent)
        parent->installEventFilter(this);
}

WQuickWidget::~WQuickWidget() = default;

void WQuickWidget::setPerformanceWatcherEnabled(bool on)
{
    if (m_watchingPerformance == on)
        return;
    m_watchingPerformance = on;
    m_requested.invalidate();
    // Queued: nobody may touch the scene while it is drawn.
    if (on)
        connect(quickWindow(), &QQuickWindow::afterRendering, this, &WQuickWidget::onFrame, Qt::QueuedConnection);
    else
        disconnect(quickWindow(), &QQuickWindow::afterRendering, this, &WQuickWidget::onFrame);
}

void WQuickWidget::startMeasuring()
{
    if (m_watchingPerformance)
        m_requested.start();
}

void WQuickWidget::onFrame()
{
    if (!m_requested.isValid() || !rootObject())
        return;
    const qint64 time = m_requested.nsecsElapsed();
    m_requested.invalidate();
    Q_EMIT finishedRendering(source().toString(), time);
}

// --- what is behind

bool WQuickWidget::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ParentAboutToChange:
        if (parent())
            parent()->removeEventFilter(this);
        break;
    case QEvent::ParentChange:
        if (parent() && m_colorBehind.isValid())
            parent()->installEventFilter(this);
        [[fallthrough]];
    case QEvent::Show:
    case QEvent::Move: lookBehind(); break;
    default: break;
    }
    return QQuickWidget::event(event);
}

bool WQuickWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint && watched == parent())
        lookBehind();
    return QQuickWidget::eventFilter(watched, event);
}

/// Later: it paints the widgets around this one, which may be doing so now.
void WQuickWidget::lookBehind()
{
    if (!m_colorBehind.isValid() || std::exchange(m_isLooking, true))
        return;
    QTimer::singleShot(0, this, [this] {
        takeColorBehind();
        m_isLooking = false;
    });
}

void WQuickWidget::takeColorBehind()
{
    if (!isVisible() || isWindow() || quickWindow()->color() != m_colorBehind) // or the host has set another
        return;
    QList<QWidget *> outer;
    for (QWidget *widget = this; !widget->isWindow();)
        outer.prepend(widget = widget->parentWidget());
    QImage pixel(1, 1, QImage::Format_ARGB32_Premultiplied);
    pixel.fill(Qt::transparent);
    for (QWidget *widget : qAsConst(outer))
        widget->render(&pixel, QPoint(), QRect(mapTo(widget, QPoint()), QSize(1, 1)), DrawWindowBackground);
    m_colorBehind = pixel.pixelColor(0, 0);
    setClearColor(m_colorBehind);
}
