#pragma once

#include <QPainter>

#include <algorithm>
#include <cmath>

/// Draws in pixels of the device for as long as it lives, so that straight edges lie between two of them at every
/// ratio.
class PixelGrid
{
public:
    PixelGrid(QPainter *painter, const QSizeF &itemSize)
        : m_painter(painter)
    {
        painter->save();
        const QTransform device = painter->deviceTransform();
        if (device.type() <= QTransform::TxScale && device.m11() > 0 && device.m22() > 0) {
            m_x = device.m11();
            m_y = device.m22();
            painter->scale(1 / m_x, 1 / m_y);
        }
        m_size = QSize(int(std::round(itemSize.width() * m_x)), int(std::round(itemSize.height() * m_y)));
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
    }
    ~PixelGrid() { m_painter->restore(); }
    PixelGrid(const PixelGrid &) = delete;
    PixelGrid &operator=(const PixelGrid &) = delete;

    QSize size() const { return m_size; } ///< of the item
    qreal x(qreal length) const { return length * m_x; }
    qreal y(qreal length) const { return length * m_y; }
    int wholeX(qreal length) const { return int(std::round(length * m_x)); }
    int wholeY(qreal length) const { return int(std::round(length * m_y)); }
    /// The width of a line: whole, and never nothing for a line that is wanted.
    int line(int width) const { return width > 0 ? std::max(1, int(std::round(width * std::min(m_x, m_y)))) : 0; }

private:
    QPainter *const m_painter;
    qreal m_x = 1;
    qreal m_y = 1;
    QSize m_size;
};
