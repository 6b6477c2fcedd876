#include <UiElements/qml/WQmlBalloon.h>

#include "PixelGrid_p.h"

#include <QDebug>
#include <QPainterPath>

namespace {

/// A box with its arrow on top, in pixels of the device. The other directions are turned from this one.
struct Outline
{
    qreal width;
    qreal height; // with the arrow
    qreal radius;
    qreal arrow; // its depth, and half its width at the box
    qreal tip; // where it is along the width

    /// The outline, or a line at that distance inside of it, whose corners have the same centers.
    QPainterPath path(qreal inset) const;
};

QPainterPath Outline::path(qreal inset) const
{
    const qreal top = arrow + inset;
    const qreal left = inset;
    const qreal right = width - inset;
    const qreal bottom = height - inset;
    QPainterPath path;
    if (right <= left || bottom <= top)
        return path;

    // In a box that is too small for both, the arrow stays and the corner beside it gives way.
    const qreal halfBase = std::min(arrow, width / 2);
    const qreal center = std::clamp(tip, halfBase, width - halfBase);
    const qreal round = std::min({radius, width / 2, (height - arrow) / 2});
    const qreal roundLeft = arrow > 0 ? std::min(round, center - halfBase) : round;
    const qreal roundRight = arrow > 0 ? std::min(round, width - center - halfBase) : round;
    const auto corner = [&path](const QPointF &middle, qreal r, qreal startAngle) {
        if (r > 0)
            path.arcTo(middle.x() - r, middle.y() - r, 2 * r, 2 * r, startAngle, -90);
        else
            path.lineTo(middle);
    };

    const qreal low = std::max<qreal>(0, round - inset);
    const qreal highLeft = std::max<qreal>(0, roundLeft - inset);
    const qreal highRight = std::max<qreal>(0, roundRight - inset);
    path.moveTo(left, bottom - low);
    path.lineTo(left, top + highLeft);
    corner({left + highLeft, top + highLeft}, highLeft, 180);
    if (arrow > 0 && halfBase > 0) {
        // The distance of two parallel edges, measured along the axis of the arrow.
        const qreal edge = std::hypot(arrow, halfBase);
        const qreal tipInset = inset * edge / halfBase;
        const qreal base = std::min((top - tipInset) * halfBase / arrow, std::min(center - left, right - center));
        if (base > 0) {
            path.lineTo(center - base, top);
            path.lineTo(center, tipInset);
            path.lineTo(center + base, top);
        }
    }
    path.lineTo(right - highRight, top);
    corner({right - highRight, top + highRight}, highRight, 90);
    path.lineTo(right, bottom - low);
    corner({right - low, bottom - low}, low, 0);
    path.lineTo(left + low, bottom);
    corner({left + low, bottom - low}, low, 270);
    path.closeSubpath();
    return path;
}

} // namespace

WQmlBalloon::WQmlBalloon(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &WQmlBalloon::radiusChanged, this, [this] { update(); });
}

WQmlBalloon::~WQmlBalloon() = default;

template <typename T>
void WQmlBalloon::set(T &member, const T &value, void (WQmlBalloon::*changed)())
{
    if (member == value)
        return;
    member = value;
    update();
    Q_EMIT(this->*changed)();
}

void WQmlBalloon::setArrowAlignment(ArrowAlignment alignment)
{
    set(m_arrowAlignment, alignment, &WQmlBalloon::arrowAlignmentChanged);
}

void WQmlBalloon::setArrowAnchor(ArrowAnchor anchor)
{
    set(m_arrowAnchor, anchor, &WQmlBalloon::arrowAnchorChanged);
}

void WQmlBalloon::setBackgroundColor(const QColor &color)
{
    set(m_backgroundColor, color, &WQmlBalloon::backgroundColorChanged);
}

void WQmlBalloon::setBorderColor(const QColor &color)
{
    set(m_borderColor, color, &WQmlBalloon::borderColorChanged);
}

void WQmlBalloon::setArrowOffset(int offset)
{
    set(m_arrowOffset, offset, &WQmlBalloon::arrowOffsetChanged);
}

void WQmlBalloon::setArrowSize(int size)
{
    set(m_arrowSize, size, &WQmlBalloon::arrowSizeChanged);
}

void WQmlBalloon::setBorderWidth(int width)
{
    set(m_borderWidth, width, &WQmlBalloon::borderWidthChanged);
}

void WQmlBalloon::setTopMargin(int margin)
{
    set(m_topMargin, margin, &WQmlBalloon::topMarginChanged);
}

WQmlBalloon::ArrowAnchor WQmlBalloon::arrowAnchorFromArrowType(Qt::ArrowType type)
{
    switch (type) {
    case Qt::UpArrow: return Top;
    case Qt::DownArrow: return Bottom;
    case Qt::LeftArrow: return Left;
    case Qt::RightArrow: return Right;
    default: return None;
    }
}

Qt::ArrowType WQmlBalloon::arrowTypeFromArrowAnchor(ArrowAnchor anchor)
{
    switch (anchor) {
    case Top: return Qt::UpArrow;
    case Bottom: return Qt::DownArrow;
    case Left: return Qt::LeftArrow;
    case Right: return Qt::RightArrow;
    default: return Qt::NoArrow;
    }
}

WQmlBalloon::ArrowAnchor WQmlBalloon::flipAnchor(ArrowAnchor anchor)
{
    switch (anchor) {
    case Top: return Bottom;
    case Bottom: return Top;
    case Left: return Right;
    case Right: return Left;
    default: return None;
    }
}

int WQmlBalloon::getGlobalXCenter(ArrowAlignment alignment, ArrowAnchor anchor, const QRect &target, int arrowOffset,
                                  int arrowSize, int popupWidth)
{
    if (anchor == Left)
        return target.right();
    if (anchor == Right)
        return target.left() - popupWidth;
    const int center = target.right() - arrowOffset - target.width() / 2;
    switch (alignment) {
    case LeftAlignment: return center - arrowSize;
    case RightAlignment: return center - popupWidth + arrowSize;
    default: return center - popupWidth / 2;
    }
}

int WQmlBalloon::getGlobalYCenter(ArrowAlignment alignment, ArrowAnchor anchor, const QRect &target, int arrowOffset,
                                  int arrowSize, int popupHeight)
{
    if (anchor == Top)
        return target.bottom();
    if (anchor == Bottom)
        return target.top() - popupHeight;
    if (anchor != Left && anchor != Right)
        return target.top();
    const int center = target.bottom() - arrowOffset - target.height() / 2;
    switch (alignment) {
    case TopAlignment: return center - arrowSize;
    case BottomAlignment: return center - popupHeight + arrowSize;
    default: return center - popupHeight / 2;
    }
}

QPoint WQmlBalloon::calcArrowPos(QQuickItem *target, const QSize &popupSize, ArrowAnchor anchor,
                                 ArrowAlignment alignment, int arrowOffset, int arrowSize)
{
    if (!target) {
        qWarning("WQmlBalloon::calcArrowPos - The item must not be null");
        return {};
    }
    // By its corners: the item may be scaled or turned.
    const QRectF bounds = target->boundingRect();
    QPolygonF corners;
    for (const QPointF &corner : {bounds.topLeft(), bounds.topRight(), bounds.bottomRight(), bounds.bottomLeft()})
        corners << target->mapToGlobal(corner);
    const QRect rect = corners.boundingRect().toAlignedRect();
    return {getGlobalXCenter(alignment, anchor, rect, arrowOffset, arrowSize, popupSize.width()),
            getGlobalYCenter(alignment, anchor, rect, arrowOffset, arrowSize, popupSize.height())};
}

qreal WQmlBalloon::clamped(qreal center, qreal length) const
{
    const qreal least = m_arrowSize + m_radius;
    return least > center ? least : std::max(least, std::min(center, length - m_radius - m_arrowSize));
}

qreal WQmlBalloon::getXCenter(const QSizeF &size) const
{
    switch (m_arrowAlignment) {
    case LeftAlignment: return clamped(m_arrowOffset + m_arrowSize, size.width());
    case RightAlignment: return clamped(size.width() - m_arrowSize + m_arrowOffset, size.width());
    default: return clamped(size.width() * 0.5 + m_arrowOffset, size.width());
    }
}

qreal WQmlBalloon::getYCenter(const QSizeF &size) const
{
    switch (m_arrowAlignment) {
    case TopAlignment: return clamped(m_arrowOffset + m_arrowSize, size.height());
    case BottomAlignment: return clamped(size.height() - m_arrowSize + m_arrowOffset, size.height());
    default: return clamped(size.height() * 0.5 + m_arrowOffset, size.height());
    }
}

void WQmlBalloon::paint(QPainter *painter)
{
    const QSizeF itemSize(width(), height());
    const PixelGrid grid(painter, itemSize);
    const int margin = std::max(0, grid.wholeY(m_topMargin));
    const QSize size(grid.size().width(), grid.size().height() - margin);
    const bool isBeside = m_arrowAnchor == Left || m_arrowAnchor == Right;

    Outline outline;
    outline.width = isBeside ? size.height() : size.width();
    outline.height = isBeside ? size.width() : size.height();
    outline.radius = std::max(0, grid.wholeX(m_radius));
    outline.arrow = m_arrowAnchor == None ? 0 : std::max(0, grid.wholeX(m_arrowSize));
    outline.tip = isBeside ? grid.y(getYCenter(itemSize)) - margin : grid.x(getXCenter(itemSize));
    // On the edge of a pixel or in its middle both sides of the arrow look the same.
    outline.tip = std::round(outline.tip * 2) / 2;

    painter->translate(0, margin);
    switch (m_arrowAnchor) {
    case Bottom: painter->setTransform(QTransform(1, 0, 0, -1, 0, size.height()), true); break;
    case Left: painter->setTransform(QTransform(0, 1, 1, 0, 0, 0), true); break;
    case Right: painter->setTransform(QTransform(0, 1, -1, 0, size.width(), 0), true); break;
    default: break;
    }

    const int line = m_borderColor.alpha() > 0 ? grid.line(m_borderWidth) : 0;
    // Below a border that one can see through the background goes on to the edge; below another one it must not, or it
    // shines through where the edge is smoothed.
    const bool isSolid = m_borderColor.alpha() == 255;
    painter->fillPath(outline.path(line > 0 && isSolid ? line / 2.0 : 0), m_backgroundColor);
    if (line > 0) {
        QPen pen(m_borderColor, line, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
        pen.setMiterLimit(8);
        painter->strokePath(outline.path(line / 2.0), pen);
    }
}
