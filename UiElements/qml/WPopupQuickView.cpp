#include <UiElements/qml/WPopupQuickView.h>

#include <UiElements/qml/WQmlBalloon.h>
#include <UiElements/widgets/WidgetUtils.h>

#include <QDebug>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace {

bool isHorizontal(Qt::ArrowType arrow)
{
    return arrow == Qt::LeftArrow || arrow == Qt::RightArrow;
}

/// How much of the popup sticks out of the area on the sides that flipping can help with.
int overhang(const QRect &popup, const QRect &area, Qt::ArrowType arrow)
{
    if (isHorizontal(arrow))
        return qMax(0, area.left() - popup.left()) + qMax(0, popup.right() - area.right());
    return qMax(0, area.top() - popup.top()) + qMax(0, popup.bottom() - area.bottom());
}

int distance(const QRect &area, const QPoint &point)
{
    const int x = qMax(0, qMax(area.left() - point.x(), point.x() - area.right()));
    const int y = qMax(0, qMax(area.top() - point.y(), point.y() - area.bottom()));
    return x + y;
}

QScreen *nearestScreen(const QPoint &point)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto nearest = std::min_element(screens.begin(), screens.end(), [&point](QScreen *a, QScreen *b) {
        return distance(a->geometry(), point) < distance(b->geometry(), point);
    });
    return nearest == screens.end() ? nullptr : *nearest;
}

} // namespace

WPopupQuickView::WPopupQuickView(QQmlEngine *engine, QWindow *parentWindow, const ViewOptions &options)
    : WQuickView(engine, parentWindow, options)
{
    setColor(Qt::transparent); // what is outside of the balloon; too late once the window has been made
}

WPopupQuickView::~WPopupQuickView()
{
    releaseActivationItem();
}

void WPopupQuickView::releaseActivationItem()
{
    const QPointer<QObject> item = std::exchange(m_activationItem, nullptr);
    if (item && !item->setProperty(m_activationProperty.constData(), false))
        qWarning("~WPopupQuickView - unable to set property");
}

void WPopupQuickView::setupActivationItem(QObject *item, const QByteArray &property)
{
    if (!item || item->metaObject()->indexOfProperty(property.constData()) < 0
        || !item->setProperty(property.constData(), true)) {
        qWarning() << "WPopupQuickView::setupActivationItem - unable to set property" << property;
        return;
    }
    if (m_activationItem && (m_activationItem != item || m_activationProperty != property))
        m_activationItem->setProperty(m_activationProperty.constData(), false);
    m_activationItem = item;
    m_activationProperty = property;
}

int WPopupQuickView::adjustArrowOffset(Qt::ArrowType arrow) const
{
    if (arrow == Qt::NoArrow)
        return m_wantedOffset;
    return m_wantedOffset - (isHorizontal(arrow) ? m_push.y() : m_push.x());
}

void WPopupQuickView::showFrom(const QRect &target, Qt::ArrowType arrow, WPopupQuickView::Alignment alignment,
                               int arrowOffset, int arrowSize)
{
    m_target = target;
    m_wantedArrow = arrow;
    const bool wasPlaced = std::exchange(m_isPlaced, true);
    if (!wasPlaced)
        m_arrow = arrow; // whoever asks for it has told the balloon
    m_alignment = alignment;
    m_wantedOffset = arrowOffset;
    m_arrowSize = arrowSize;
    if (const QWindow *window = getViewOptions().parentWindow)
        m_parentPosition = window->mapToGlobal(QPoint());
    if (wasPlaced && isVisible())
        place(); // the focus may be in a window that the popup has opened
    else
        dispatchShow();
}

QPoint WPopupQuickView::wantedPosition(Qt::ArrowType arrow) const
{
    const auto alignment = WQmlBalloon::ArrowAlignment(m_alignment);
    const WQmlBalloon::ArrowAnchor anchor = WQmlBalloon::arrowAnchorFromArrowType(arrow);
    return {WQmlBalloon::getGlobalXCenter(alignment, anchor, m_target, m_wantedOffset, m_arrowSize, width()),
            WQmlBalloon::getGlobalYCenter(alignment, anchor, m_target, m_wantedOffset, m_arrowSize, height())};
}

Qt::ArrowType WPopupQuickView::fittingArrow(const QRect &area) const
{
    const Qt::ArrowType flipped = WQmlBalloon::arrowTypeFromArrowAnchor(
        WQmlBalloon::flipAnchor(WQmlBalloon::arrowAnchorFromArrowType(m_wantedArrow)));
    if (flipped == Qt::NoArrow)
        return m_wantedArrow;
    const int wanted = overhang(QRect(wantedPosition(m_wantedArrow), size()), area, m_wantedArrow);
    return wanted > overhang(QRect(wantedPosition(flipped), size()), area, flipped) ? flipped : m_wantedArrow;
}

void WPopupQuickView::moveTo(const QRect &area)
{
    const Qt::ArrowType arrow = fittingArrow(area);
    const QPoint wanted = wantedPosition(arrow);
    const QPoint position = WidgetUtils::fittedToScreen(QRect(wanted, size()), {area}).topLeft();
    const QPoint push = position - wanted;
    if (!isVisible() || position != this->position())
        setPosition(position);
    const bool isFlipped = std::exchange(m_arrow, arrow) != arrow;
    const bool isPushed = std::exchange(m_push, push) != push;
    const QPointer<WPopupQuickView> self(this);
    if (isFlipped)
        Q_EMIT arrowFlipped(arrow);
    if (self && isPushed)
        Q_EMIT arrowOrthogonalChanged();
}

void WPopupQuickView::place()
{
    // Some desktops place a window only next to another one.
    QWindow *const focused = topLevel(QGuiApplication::focusWindow());
    if (!transientParent() && focused && focused != this && !isAncestorOf(focused, IncludeTransients))
        setTransientParent(focused);
    if (!m_isPlaced) {
        WQuickView::place();
        return;
    }
    QScreen *const target = nearestScreen(m_target.center());
    if (!target)
        return;
    if (target != screen())
        setScreen(target);
    const QSize before = size();
    const QPointer<WPopupQuickView> self(this);
    moveTo(target->availableGeometry());
    // With the arrow on another side the content may have another size.
    if (self && size() != before)
        moveTo(target->availableGeometry());
}

void WPopupQuickView::resizeEvent(QResizeEvent *event)
{
    WQuickView::resizeEvent(event);
    if (m_isPlaced && isVisible())
        place();
}

void WPopupQuickView::onActiveChanged()
{
    const QWindow *window = getViewOptions().parentWindow;
    const QPoint position = window ? window->mapToGlobal(QPoint()) : m_parentPosition;
    if (m_isPlaced && isVisible() && position != m_parentPosition) {
        m_target.translate(position - m_parentPosition);
        m_parentPosition = position;
        place();
    }
    WQuickView::onActiveChanged();
}

bool WPopupQuickView::event(QEvent *event)
{
    const QPointer<WPopupQuickView> self(this);
    if (event->type() == QEvent::Show)
        qApp->installEventFilter(this);
    else if (event->type() == QEvent::Hide || event->type() == QEvent::Close) // it may take its parent window along
        qApp->removeEventFilter(this);
    const bool isTaken = WQuickView::event(event);
    if (self && event->type() == QEvent::Close && isVisible()) // its QML has declined
        qApp->installEventFilter(this);
    return isTaken;
}

bool WPopupQuickView::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::TabletPress:
    case QEvent::TouchBegin: {
        const QWindow *window = nullptr;
        if (watched->isWindowType())
            window = static_cast<QWindow *>(watched);
        else if (watched->isWidgetType())
            window = static_cast<QWidget *>(watched)->window()->windowHandle();
        if (window && window != this && !isAncestorOf(window, IncludeTransients) && isVisible())
            close();
        break;
    }
    case QEvent::Hide:
        if (watched == transientParent() && isVisible())
            close();
        break;
    default: break;
    }
    return WQuickView::eventFilter(watched, event);
}
