#pragma once

#include <UiElements/uielements_export.h>

#include <QColor>
#include <QElapsedTimer>
#include <QQuickWidget>

/// A widget that shows QML. Tab goes through it as through its siblings.
///
/// Where the QML paints nothing the widgets behind it are seen; with OpenGL, the color that they have at its top left
/// corner, unless setClearColor() names another.
class UIELEMENTS_EXPORT WQuickWidget : public QQuickWidget
{
    Q_OBJECT

public:
    explicit WQuickWidget(QQmlEngine *engine, QWidget *parent = nullptr);
    ~WQuickWidget() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Whether the widget measures, from its next content on, the time from the request to the first frame.
    void setPerformanceWatcherEnabled(bool on);

Q_SIGNALS:
    void finishedRendering(const QString &source, qint64 nanosecs);

protected:
    bool event(QEvent *event) override;

private:
    friend class QmlContent;
    void startMeasuring();
    void onFrame();
    void lookBehind();
    void takeColorBehind();

    bool m_watchingPerformance = false;
    QElapsedTimer m_requested;
    QColor m_colorBehind; // as it was taken last; invalid where there is nothing to take
    bool m_isLooking = false;
};
