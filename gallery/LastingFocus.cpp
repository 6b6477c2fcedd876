#include "LastingFocus.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGraphicsProxyWidget>
#include <QWidget>

#include <utility>

LastingFocus::LastingFocus()
{
    auto *all = new QWidget;
    all->setFocusPolicy(Qt::StrongFocus);
    m_holder = new QWidget(all);
    m_holder->setFocusPolicy(Qt::StrongFocus);
    QGraphicsProxyWidget *proxy = addWidget(all);
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(this, &activate);
    proxy->setFocus();
    m_holder->setFocus();
    // Tab would go to a widget that the focus is lent to, find it here and get no further.
    m_holder->setFocusPolicy(Qt::NoFocus);
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
