#include <UiElements/qml/WQmlWindowContainerController.h>

#include <UiElements/keyboard/TabOrderUtils.h>
#include <UiElements/qml/WQuickView.h>

#include <QFocusEvent>
#include <QWidget>

WQmlWindowContainerController::WQmlWindowContainerController(QObject *parent)
    : WQmlController(parent)
{
    qRegisterMetaType<Qt::FocusReason>("Qt::FocusReason"); // QML takes it from the signal and hands it to the slot
}

WQmlWindowContainerController::~WQmlWindowContainerController() = default;

void WQmlWindowContainerController::setViewAndContainer(const QPointer<QWidget> &container,
                                                        const QPointer<WQuickView> &view)
{
    if (!container || !view)
        return;
    if (m_container && m_container != container)
        m_container->removeEventFilter(this);
    m_container = container;
    m_view = view;
    container->installEventFilter(this);
    view->setColor(Qt::transparent);
}

bool WQmlWindowContainerController::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_container && event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        // A window that becomes active again must not drag the focus into the QML.
        if (reason == Qt::ActiveWindowFocusReason)
            return true;
        const QPointer<QObject> self(this);
        Q_EMIT focusIn(reason);
        if (!self)
            return false;
    }
    return WQmlController::eventFilter(watched, event);
}

void WQmlWindowContainerController::onFocusOut(Qt::FocusReason forward)
{
    if (!m_container || !TabOrderUtils::focusNextPrevChild(m_container, forward != Qt::BacktabFocusReason))
        return;
    // The keys would go on to the embedded window: it has the focus of the desktop, whatever widgets say.
    if (m_view && m_view->isActive() && m_container)
        m_container->activateWindow();
}
