#include <UiElements/qml/PopupContext.h>

#include <UiElements/qml/IWQmlViewFactory.h>
#include <UiElements/qml/WPopupQuickView.h>
#include <UiElements/qml/WQmlPopupController.h>

#include <QApplication>
#include <QCursor>
#include <QDebug>
#include <QEvent>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QTimer>
#include <QWidget>

namespace {

QRect itemRect(const QQuickItem *item)
{
    const QRectF bounds = item->boundingRect();
    const QRectF scene = item->mapRectToScene(bounds);
    const QPointF shift = item->mapToGlobal(bounds.topLeft()) - item->mapToScene(bounds.topLeft());
    return scene.translated(shift).toAlignedRect();
}

/// Whether a part of the item is inside of every item around it that cuts off what leaves it.
bool isInSight(const QQuickItem *item)
{
    QRectF rect = item->mapRectToScene(item->boundingRect());
    for (const QQuickItem *outer = item->parentItem(); outer; outer = outer->parentItem()) {
        if (outer->clip())
            rect &= outer->mapRectToScene(outer->clipRect());
    }
    return !rect.isEmpty();
}

/// The widget that shows the item; null for an item in a window of its own.
QQuickWidget *hostOf(const QQuickItem *item)
{
    if (!item->window() || !QQuickRenderControl::renderWindowFor(item->window()))
        return nullptr;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *const host = qobject_cast<QQuickWidget *>(widget);
        if (host && host->quickWindow() == item->window())
            return host;
    }
    return nullptr;
}

} // namespace

PopupContext::~PopupContext()
{
    releaseActivation();
    unfollowTarget();
}

void PopupContext::setTarget(const QRect &globalRect)
{
    setTargetObject(nullptr, globalRect);
}

void PopupContext::setTarget(QWidget *widget, const QRect &part)
{
    setTargetObject(widget, part);
}

void PopupContext::setTarget(QQuickItem *item)
{
    setTargetObject(item, QRect());
}

void PopupContext::setTargetObject(QObject *object, const QRect &rect)
{
    unfollowTarget();
    m_target = object;
    m_hasTarget = object || rect.isValid();
    m_rect = rect;
    if (isOpen()) {
        followTarget();
        update();
    }
}

QRect PopupContext::targetRect() const
{
    if (const auto *widget = qobject_cast<QWidget *>(m_target)) {
        const QRect part = m_rect.isValid() ? m_rect : widget->rect();
        if (!widget->isVisible() || !widget->visibleRegion().intersects(part))
            return {};
        return {widget->mapToGlobal(part.topLeft()), part.size()};
    }
    if (const auto *item = qobject_cast<QQuickItem *>(m_target)) {
        if (!item->window() || !item->isVisible() || !isInSight(item))
            return {};
        const QRect rect = itemRect(item);
        const QQuickWidget *const host = hostOf(item);
        const bool isShown = host
            ? host->isVisible() && host->visibleRegion().translated(host->mapToGlobal(QPoint())).intersects(rect)
            : item->window()->isVisible();
        return isShown ? rect : QRect();
    }
    return m_rect;
}

void PopupContext::setArrow(WQmlBalloon::ArrowAnchor anchor, WQmlBalloon::ArrowAlignment alignment, int offset)
{
    constexpr int farthest = QWIDGETSIZE_MAX;
    if (anchor < WQmlBalloon::None || anchor > WQmlBalloon::Right || alignment < WQmlBalloon::LeftAlignment
        || alignment > WQmlBalloon::BottomAlignment || offset < -farthest || offset > farthest) {
        qWarning() << "PopupContext::setArrow - Invalid arrow" << int(anchor) << int(alignment) << offset;
        return;
    }
    m_anchor = anchor;
    m_alignment = alignment;
    m_offset = offset;
    if (isOpen())
        place();
}

WQmlPopupController *PopupContext::popupController() const
{
    return qobject_cast<WQmlPopupController *>(controller());
}

WPopupQuickView *PopupContext::popup() const
{
    return qobject_cast<WPopupQuickView *>(view());
}

QWindow *PopupContext::targetWindow() const
{
    if (const auto *widget = qobject_cast<QWidget *>(m_target))
        return widget->window()->windowHandle();
    if (const auto *item = qobject_cast<QQuickItem *>(m_target)) {
        // The window of an item inside a widget is never shown.
        QWindow *const shown = QQuickRenderControl::renderWindowFor(item->window());
        return shown ? shown : item->window();
    }
    return nullptr;
}

bool PopupContext::isMirrored() const
{
    if (const auto *widget = qobject_cast<QWidget *>(m_target))
        return widget->isRightToLeft();
    return QGuiApplication::isRightToLeft();
}

QPointer<WQuickView> PopupContext::createView(const IWQmlViewFactory &factory)
{
    if (!targetRect().isValid()) {
        qWarning("PopupContext::open - There is no target that can be seen");
        return nullptr;
    }
    m_isAccepted = false;
    if (!controller())
        setController(new WQmlPopupController(this));
    QWindow *window = parentWindow() ? parentWindow() : targetWindow();
    const auto *widget = qobject_cast<QWidget *>(parent());
    if (!window && widget)
        window = widget->window()->windowHandle();
    return QPointer<WQuickView>(factory.createQmlPopup(source(), window, controller(), false).data());
}

void PopupContext::showView()
{
    const QPointer<PopupContext> self(this);
    m_activated = popup();
    if (!m_activationProperty.isEmpty() && m_target)
        popup()->setupActivationItem(m_target, m_activationProperty);
    if (!self || !isOpen()) // closed by whoever follows that property
        return;
    followTarget();
    place();
}

void PopupContext::viewClosed()
{
    notePress();
    unfollowTarget();
    const QPointer<PopupContext> alive(this);
    releaseActivation();
    if (alive && std::exchange(m_isAccepted, false))
        Q_EMIT accepted();
}

void PopupContext::releaseActivation()
{
    if (const QPointer<WPopupQuickView> view = std::exchange(m_activated, nullptr))
        view->releaseActivationItem();
}

void PopupContext::rootLoaded(QObject *root)
{
    connectRoot(root, "accepted()", "accept()");
    connectRoot(root, "rejected()", "close()");
}

void PopupContext::accept()
{
    if (!isOpen())
        return;
    m_isAccepted = true;
    close();
}

void PopupContext::toggle()
{
    const QPointer<PopupContext> self(this);
    if (isOpen())
        close();
    else if (!std::exchange(m_isClosedByPress, false))
        open();
    // A button that can be checked is, or is not, by the click itself.
    if (self && !isOpen() && m_target && !m_activationProperty.isEmpty()
        && m_target->property(m_activationProperty.constData()).toBool())
        m_target->setProperty(m_activationProperty.constData(), false);
}

void PopupContext::notePress()
{
    if (!(QGuiApplication::mouseButtons() & Qt::LeftButton) || !targetRect().contains(QCursor::pos()))
        return;
    m_isClosedByPress = true;
    qApp->installEventFilter(this);
}

void PopupContext::place()
{
    WPopupQuickView *const view = popup();
    WQmlBalloon::ArrowAnchor anchor = m_anchor;
    WQmlBalloon::ArrowAlignment alignment = m_alignment;
    int offset = m_offset;
    if (isMirrored()) {
        if (anchor == WQmlBalloon::Left || anchor == WQmlBalloon::Right)
            anchor = WQmlBalloon::flipAnchor(anchor);
        else
            offset = -offset;
        if (alignment == WQmlBalloon::LeftAlignment)
            alignment = WQmlBalloon::RightAlignment;
        else if (alignment == WQmlBalloon::RightAlignment)
            alignment = WQmlBalloon::LeftAlignment;
    }
    int arrowSize = anchor == WQmlBalloon::None ? 0 : 10;
    const QPointer<WQmlPopupController> controller = popupController();
    if (controller) {
        if (controller->arrowSize() > 0)
            arrowSize = controller->arrowSize();
        else
            controller->setArrowSize(arrowSize);
        controller->setArrowAlignment(alignment);
        // Later on the popup tells, if the arrow is then on another side than it is now. Before it is shown the side is
        // needed at once: the size of the popup may depend on it.
        if (!view->isVisible()) {
            controller->setArrowAnchor(anchor);
            controller->setArrowOffset(offset);
        }
        controller->setPopupQuickView(view);
    }
    m_placedAt = targetRect();
    view->showFrom(m_placedAt, WQmlBalloon::arrowTypeFromArrowAnchor(anchor), WPopupQuickView::Alignment(alignment),
                   offset, arrowSize);
    if (controller)
        controller->adjustArrowOffset();
}

// --- how long it lives

void PopupContext::followTarget()
{
    if (!m_target)
        return;
    const auto follow = [this](auto *object, auto signal) {
        m_connections << connect(object, signal, this, &PopupContext::targetMoved);
    };
    follow(m_target.data(), &QObject::destroyed);
    if (auto *widget = qobject_cast<QWidget *>(m_target)) {
        watch(widget);
        return;
    }
    auto *item = qobject_cast<QQuickItem *>(m_target);
    follow(item, &QQuickItem::visibleChanged);
    follow(item, &QQuickItem::windowChanged);
    if (QQuickWidget *const host = hostOf(item))
        watch(host);
    else if (QQuickWindow *const window = item->window())
        follow(window, &QWindow::visibleChanged);
    for (QQuickItem *outer = item; outer; outer = outer->parentItem()) {
        follow(outer, &QQuickItem::xChanged);
        follow(outer, &QQuickItem::yChanged);
        follow(outer, &QQuickItem::widthChanged);
        follow(outer, &QQuickItem::heightChanged);
        follow(outer, &QQuickItem::parentChanged);
    }
}

void PopupContext::watch(QWidget *widget)
{
    // A widget is not told when one around it moves.
    for (; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        widget->installEventFilter(this);
        m_watched << widget;
    }
}

void PopupContext::unfollowTarget()
{
    for (const QMetaObject::Connection &connection : qAsConst(m_connections))
        disconnect(connection);
    m_connections.clear();
    for (const QPointer<QObject> &object : qAsConst(m_watched)) {
        if (object)
            object->removeEventFilter(this);
    }
    m_watched.clear();
}

bool PopupContext::eventFilter(QObject *watched, QEvent *event)
{
    if (m_isClosedByPress && event->type() == QEvent::MouseButtonRelease) {
        // The click comes with the release.
        qApp->removeEventFilter(this);
        QTimer::singleShot(0, this, [this] { m_isClosedByPress = false; });
    }
    if (!m_watched.contains(watched))
        return WQuickViewContext::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ParentChange: targetMoved(); break;
    default: break;
    }
    return WQuickViewContext::eventFilter(watched, event);
}

/// A layout moves many things one after the other: it is looked at once, afterwards.
void PopupContext::targetMoved()
{
    if (m_updateIsDue)
        return;
    m_updateIsDue = true;
    QTimer::singleShot(0, this, [this] {
        m_updateIsDue = false;
        if (!isOpen())
            return;
        unfollowTarget();
        followTarget();
        update();
    });
}

void PopupContext::update()
{
    const QRect rect = m_hasTarget && (m_target || m_rect.isValid()) ? targetRect() : QRect();
    if (!rect.isValid())
        close();
    else if (rect != m_placedAt)
        place();
}
