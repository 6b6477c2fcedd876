#pragma once

#include <UiElements/uielements_export.h>

#include <QObject>
#include <QPointer>
#include <QTimer>

class PopupContext;

/// Closes a popup when nobody has turned to it for some time.
///
/// The time begins when the popup opens and anew with every key, click, wheel or touch in it. While the pointer is over
/// the popup it stands still. It is a child of the context.
class UIELEMENTS_EXPORT PopupContextTimer : public QObject
{
    Q_OBJECT

public:
    explicit PopupContextTimer(PopupContext *context, int timeout = 5000);
    ~PopupContextTimer() override;

    /// In milliseconds. A time below 1 is reported and changes nothing.
    int timeout() const { return m_timer.interval(); }
    void setTimeout(int timeout);
    bool isRunning() const { return m_timer.isActive(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow();
    void stop();

    PopupContext *const m_context;
    QPointer<QObject> m_view;
    QTimer m_timer;
    bool m_isOver = false;
};
