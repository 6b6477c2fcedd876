#include "LastingFocus.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGraphicsProxyWidget>
#include <QWidget>

#include <utility>

LastingFocus::LastingFocus()
    : m_holder(new QWidget)
{
    m_holder->setFocusPolicy(Qt::StrongFocus);
    QGraphicsProxyWidget *proxy = addWidget(m_holder);
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(this, &activate);
    proxy->setFocus();
    m_holder->setFocus();
}

void LastingFocus::lendTo(QWidget *widget)
{
    static LastingFocus *focus = nullptr;
    if (!focus) {
        focus = new LastingFocus;
        // Widgets must be gone before the application object is.
        qAddPostRoutine([] { delete std::exchange(focus, nullptr); });
    }
    widget->setFocusProxy(focus->m_holder);
}
