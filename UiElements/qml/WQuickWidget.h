#pragma once

#include <UiElements/uielements_export.h>

#include <QElapsedTimer>
#include <QQuickWidget>

/// A widget that shows QML. Tab goes through it as through its siblings.
class UIELEMENTS_EXPORT WQuickWidget : public QQuickWidget
{
    Q_OBJECT

public:
    explicit WQuickWidget(QQmlEngine *engine, QWidget *parent = nullptr);
    ~WQuickWidget() override;

    /// Whether the widget measures, from its next content on, the time from the request to the first frame.
    void setPerformanceWatcherEnabled(bool on);

Q_SIGNALS:
    void finishedRendering(const QString &source, qint64 nanosecs);

private:
    friend class QmlContent;
    void startMeasuring();
    void onFrame();

    bool m_watchingPerformance = false;
    QElapsedTimer m_requested;
};
