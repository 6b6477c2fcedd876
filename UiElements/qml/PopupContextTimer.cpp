#include <UiElements/qml/PopupContextTimer.h>

#include <UiElements/qml/PopupContext.h>
#include <UiElements/qml/WQuickView.h>

#include <QDebug>
#include <QEvent>

PopupContextTimer::PopupContextTimer(PopupContext *context, int timeout)
    : QObject(context)
    , m_context(context)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(5000);
    setTimeout(timeout);
    if (!context) {
        qWarning("PopupContextTimer - The context must not be null");
        return;
    }
    connect(&m_timer, &QTimer::timeout, context, &WQuickViewContext::close);
    connect(context, &WQuickViewContext::opened, this, &PopupContextTimer::follow);
    connect(context, &WQuickViewContext::closed, this, &PopupContextTimer::stop);
    if (context->isOpen())
        follow();
}

PopupContextTimer::~PopupContextTimer() = default;

void PopupContextTimer::setTimeout(int timeout)
{
    if (timeout < 1) {
        qWarning() << "PopupContextTimer::setTimeout - Invalid time" << timeout;
        return;
    }
    m_timer.setInterval(timeout);
}

void PopupContextTimer::follow()
{
    if (m_view)
        m_view->removeEventFilter(this);
    m_view = m_context->view();
    m_isOver = false;
    if (!m_view) // closed again by somebody who was told before
        return;
    m_view->installEventFilter(this);
    m_timer.start();
}

void PopupContextTimer::stop()
{
    m_timer.stop();
    if (m_view)
        m_view->removeEventFilter(this);
    m_view = nullptr;
}

bool PopupContextTimer::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Enter: m_isOver = true; break;
    case QEvent::Leave: m_isOver = false; break;
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::TouchBegin: break;
    default: return QObject::eventFilter(watched, event);
    }
    if (m_isOver)
        m_timer.stop();
    else
        m_timer.start();
    return QObject::eventFilter(watched, event);
}
