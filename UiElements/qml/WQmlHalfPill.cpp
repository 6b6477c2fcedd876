#include <UiElements/qml/WQmlHalfPill.h>

#include "PixelGrid_p.h"

#include <QPainterPath>

namespace {

/// The parts of a pill that is round on the left, in pixels of the device. The one for the right is its mirror image.
struct Parts
{
    Parts(const QSize &size, bool isRound)
        : width(size.width())
        , height(size.height())
        , roundWidth(isRound ? std::min(height / 2, width) : 0)
        // On the edge of a pixel, so that no seam is seen where round and straight parts meet.
        , split(int(std::ceil(roundWidth)))
    {
    }

    qreal width;
    qreal height;
    qreal roundWidth;
    int split;

    /// The round end up to its widest place, or a line at that distance inside of it.
    QPainterPath arc(qreal inset) const
    {
        const QRectF ellipse(inset, inset, 2 * (roundWidth - inset), height - 2 * inset);
        QPainterPath path;
        path.moveTo(roundWidth, inset);
        if (ellipse.width() > 0 && ellipse.height() > 0)
            path.arcTo(ellipse, 90, 180);
        else
            path.lineTo(roundWidth, height - inset);
        return path;
    }
};

void mirror(QPainter *painter, qreal width)
{
    painter->setTransform(QTransform(-1, 0, 0, 1, width, 0), true);
}

} // namespace

WQmlHalfPill::WQmlHalfPill(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

WQmlHalfPill::~WQmlHalfPill() = default;

template <typename T>
void WQmlHalfPill::set(T &member, const T &value, void (WQmlHalfPill::*changed)())
{
    if (member == value)
        return;
    member = value;
    update();
    Q_EMIT(this->*changed)();
}

void WQmlHalfPill::setBackgroundColor(const QColor &color)
{
    set(m_backgroundColor, color, &WQmlHalfPill::backgroundColorChanged);
}

void WQmlHalfPill::setBorderColor(const QColor &color)
{
    set(m_borderColor, color, &WQmlHalfPill::borderColorChanged);
}

void WQmlHalfPill::setBorderBottom(bool on)
{
    set(m_borderBottom, on, &WQmlHalfPill::borderChanged);
}

void WQmlHalfPill::setBorderLeft(bool on)
{
    set(m_borderLeft, on, &WQmlHalfPill::borderChanged);
}

void WQmlHalfPill::setBorderRight(bool on)
{
    set(m_borderRight, on, &WQmlHalfPill::borderChanged);
}

void WQmlHalfPill::setBorderTop(bool on)
{
    set(m_borderTop, on, &WQmlHalfPill::borderChanged);
}

void WQmlHalfPill::setBorderWidth(int width)
{
    set(m_borderWidth, width, &WQmlHalfPill::borderChanged);
}

void WQmlHalfPill::setEdge(RoundEdge edge)
{
    set(m_edge, edge, &WQmlHalfPill::edgeChanged);
}

void WQmlHalfPill::paint(QPainter *painter)
{
    const QSizeF size(width(), height());
    drawSemiCircle(painter, size);
    drawRect(painter, size);
    drawBorders(painter, size, m_borderColor, m_borderWidth, m_borderBottom, m_borderLeft, m_borderRight, m_borderTop);
}

void WQmlHalfPill::drawSemiCircle(QPainter *painter, const QSizeF &size)
{
    if (m_edge != Left && m_edge != Right)
        return;
    const PixelGrid grid(painter, size);
    const Parts parts(grid.size(), true);
    if (m_edge == Right)
        mirror(painter, parts.width);
    // Below a solid border the background must not reach the edge: it would shine through where that is smoothed.
    const bool hasBorder = m_edge == Left ? m_borderLeft : m_borderRight;
    const qreal inset = hasBorder && m_borderColor.alpha() == 255
        ? std::min({grid.line(m_borderWidth) / 2.0, parts.roundWidth, parts.height / 2})
        : 0;
    QPainterPath path = parts.arc(inset);
    path.lineTo(parts.roundWidth, parts.height);
    path.lineTo(parts.split, parts.height);
    path.lineTo(parts.split, 0);
    path.lineTo(parts.roundWidth, 0);
    path.closeSubpath();
    painter->fillPath(path, m_backgroundColor);
}

void WQmlHalfPill::drawRect(QPainter *painter, const QSizeF &size)
{
    const PixelGrid grid(painter, size);
    const Parts parts(grid.size(), m_edge == Left || m_edge == Right);
    if (m_edge == Right)
        mirror(painter, parts.width);
    painter->fillRect(QRectF(parts.split, 0, parts.width - parts.split, parts.height), m_backgroundColor);
}

void WQmlHalfPill::drawBorders(QPainter *painter, const QSizeF &size, const QColor &borderColor, int borderWidth,
                               bool bottom, bool left, bool right, bool top)
{
    const PixelGrid grid(painter, size);
    const Parts parts(grid.size(), m_edge == Left || m_edge == Right);
    if (m_edge == Right) {
        mirror(painter, parts.width);
        std::swap(left, right);
    }
    const qreal line = std::min<qreal>(grid.line(borderWidth), parts.height / 2);
    const qreal lineTop = top ? line : 0;
    const qreal lineBottom = bottom ? line : 0;

    // One part beside the other and never one above the other: borders may be translucent.
    const qreal straight = parts.width - parts.split;
    painter->fillRect(QRectF(parts.split, 0, straight, lineTop), borderColor);
    painter->fillRect(QRectF(parts.split, parts.height - lineBottom, straight, lineBottom), borderColor);
    const qreal side = std::min(line, straight);
    const QRectF sides(0, lineTop, side, parts.height - lineTop - lineBottom);
    if (right)
        painter->fillRect(sides.translated(parts.width - side, 0), borderColor);
    if (!left)
        return;
    if (parts.split == 0) {
        painter->fillRect(sides, borderColor);
        return;
    }
    QPainterPath ring = parts.arc(0);
    if (bottom) {
        ring.lineTo(parts.split, parts.height);
        ring.lineTo(parts.split, parts.height - line);
    }
    const qreal inner = std::min(line, parts.roundWidth);
    ring.lineTo(parts.roundWidth, parts.height - inner);
    ring.connectPath(parts.arc(inner).toReversed());
    if (top) {
        ring.lineTo(parts.split, line);
        ring.lineTo(parts.split, 0);
    }
    ring.closeSubpath();
    painter->fillPath(ring, borderColor);
}
