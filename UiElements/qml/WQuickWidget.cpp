#include <UiElements/qml/WQuickWidget.h>

#include "QmlAccessible_p.h"

#include <UiElements/keyboard/TabOrderUtils.h>

#include <QQuickWindow>

WQuickWidget::WQuickWidget(QQmlEngine *engine, QWidget *parent)
    : QQuickWidget(engine, parent)
{
    // Again with each content: QtQuick brings a factory for all its windows when it is first imported.
    QmlAccessible::install();
    connect(this, &QQuickWidget::statusChanged, &QmlAccessible::install);
    QmlAccessible::setOwner(quickWindow(), this);
    TabOrderUtils::letTabThrough(this);
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
