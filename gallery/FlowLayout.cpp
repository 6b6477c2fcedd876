#include "FlowLayout.h"

#include <QStyle>
#include <QWidget>

FlowLayout::FlowLayout(int horizontalSpacing, int verticalSpacing)
    : m_horizontal(horizontalSpacing)
    , m_vertical(verticalSpacing)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

QSize FlowLayout::sizeHint() const
{
    int width = 0;
    int height = 0;
    for (const QLayoutItem *item : m_items) {
        width += item->sizeHint().width() + m_horizontal;
        height = qMax(height, item->sizeHint().height());
    }
    return QSize(qMax(0, width - m_horizontal), height);
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, true);
}

// Widgets of one row begin at the same height. Returns the height of all rows.
int FlowLayout::arrange(const QRect &rect, bool apply) const
{
    const Qt::LayoutDirection direction = parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int y = rect.y();
    for (int first = 0; first < m_items.size();) {
        int end = first;
        int width = 0;
        int height = 0;
        for (; end < m_items.size(); ++end) {
            const QLayoutItem *item = m_items.at(end);
            if (item->isEmpty())
                continue;
            const QSize size = item->sizeHint();
            if (width > 0 && width + size.width() > rect.width())
                break;
            width += size.width() + m_horizontal;
            height = qMax(height, size.height());
        }
        int x = rect.x();
        for (int i = first; i < end; ++i) {
            QLayoutItem *item = m_items.at(i);
            if (item->isEmpty())
                continue;
            const QSize size = item->sizeHint();
            if (apply) {
                const QRect place(QPoint(x, y), size);
                item->setGeometry(QStyle::visualRect(direction, rect, place));
            }
            x += size.width() + m_horizontal;
        }
        y += height > 0 ? height + m_vertical : 0;
        first = end;
    }
    return qMax(0, y - m_vertical - rect.y());
}
