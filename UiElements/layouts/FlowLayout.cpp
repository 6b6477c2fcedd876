#include <UiElements/layouts/FlowLayout.h>

#include <algorithm>

FlowLayout::FlowLayout(QWidget *parent)
    : ItemLayout(parent)
{
}

FlowLayout::FlowLayout(int horizontalSpacing, int verticalSpacing, QWidget *parent)
    : ItemLayout(parent)
{
    setHorizontalSpacing(horizontalSpacing);
    setVerticalSpacing(verticalSpacing);
}

int FlowLayout::horizontalSpacing() const
{
    return spacingOr(m_horizontalSpacing);
}

void FlowLayout::setHorizontalSpacing(int spacing)
{
    m_horizontalSpacing = spacing;
    invalidate();
}

int FlowLayout::verticalSpacing() const
{
    return spacingOr(m_verticalSpacing);
}

void FlowLayout::setVerticalSpacing(int spacing)
{
    m_verticalSpacing = spacing;
    invalidate();
}

void FlowLayout::setLineAlignment(LineAlignment alignment)
{
    m_lineAlignment = alignment;
    invalidate();
}

void FlowLayout::setItemAlignment(ItemAlignment alignment)
{
    m_itemAlignment = alignment;
    invalidate();
}

void FlowLayout::setMaximumLineCount(int count)
{
    if (count < 0) {
        warn("setMaximumLineCount", "The count is negative");
        return;
    }
    m_maximumLineCount = count;
    invalidate();
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return ItemLayout::expandingDirections() & Qt::Horizontal;
}

QSize FlowLayout::contentHint(const QVector<Item> &items) const
{
    QVector<Item> all = items;
    if (!all.isEmpty() && all.constLast().isOverflow)
        all.removeLast();
    int width = spacingCount(all) * horizontalSpacing();
    for (const Item &item : qAsConst(all))
        width += item.hint.width();
    return QSize(width, arrange(items, QSize(width, -1)).height);
}

QSize FlowLayout::contentMinimum(const QVector<Item> &items) const
{
    return largestMinimum(items);
}

/// The end of the line that begins with an item; the first one of a line always fits.
int FlowLayout::lineEnd(const QVector<Item> &items, int first, int count, int width) const
{
    int used = 0;
    bool hasItem = false;
    int end = first;
    for (; end < count; ++end) {
        const Item &item = items.at(end);
        if (item.isSpacer) {
            used += item.hint.width();
            continue;
        }
        const int needed = item.hint.width() + (hasItem ? horizontalSpacing() : 0);
        if (end > first && used + needed > width)
            break;
        used += needed;
        hasItem = true;
    }
    return end;
}

/// Returns the height.
int FlowLayout::placeLine(const QVector<Item> &line, int top, int width, bool isLast, QVector<QRect> *rects) const
{
    int room = width - spacingCount(line) * horizontalSpacing();
    QVector<int> widths;
    QVector<int> growths;
    for (const Item &item : line) {
        widths << item.hint.width();
        growths << (item.expanding & Qt::Horizontal ? item.maximum.width() - item.hint.width() : 0);
        room -= item.hint.width();
    }
    for (int i = line.size() - 1; i > 0 && room < 0 && line.at(i).isSpacer; --i) {
        const int shrunk = qMax(0, widths.at(i) + room);
        room += widths.at(i) - shrunk;
        widths[i] = shrunk;
    }
    // Only the first item is there without having been asked for its width.
    if (room < 0 && !line.isEmpty()) {
        const int shrunk = qMax(line.constFirst().minimum.width(), widths.constFirst() + room);
        room += widths.constFirst() - shrunk;
        widths[0] = shrunk;
    }
    room = share(room, &widths, growths);

    int height = 0;
    QVector<int> heights;
    for (int i = 0; i < line.size(); ++i) {
        heights << line.at(i).heightAt(widths.at(i));
        height = qMax(height, heights.constLast());
    }

    const int gaps = spacingCount(line);
    const bool isJustified = m_lineAlignment == LineAlignment::Justified && !isLast && gaps > 0 && room > 0;
    int x = 0;
    if (room > 0 && m_lineAlignment == LineAlignment::Center)
        x = room / 2;
    else if (room > 0 && m_lineAlignment == LineAlignment::End)
        x = room;
    int gap = -1;
    for (int i = 0; i < line.size(); ++i) {
        if (!line.at(i).isSpacer) {
            if (gap >= 0)
                x += horizontalSpacing();
            if (gap >= 0 && isJustified)
                x += room / gaps + (gap < room % gaps ? 1 : 0);
            ++gap;
        }
        int y = top;
        if (m_itemAlignment == ItemAlignment::Center)
            y += (height - heights.at(i)) / 2;
        else if (m_itemAlignment == ItemAlignment::Bottom)
            y += height - heights.at(i);
        else if (m_itemAlignment == ItemAlignment::Stretch)
            heights[i] = height;
        rects->append(QRect(x, y, widths.at(i), heights.at(i)));
        x += widths.at(i);
    }
    return height;
}

FlowLayout::Arrangement FlowLayout::arrange(const QVector<Item> &items, const QSize &size) const
{
    Arrangement arrangement;
    arrangement.places.resize(items.size());
    const bool hasOverflow = !items.isEmpty() && items.constLast().isOverflow;
    const int count = items.size() - (hasOverflow ? 1 : 0);
    bool isOverflowShown = false;
    int y = 0;
    int lines = 0;
    int next = 0;
    while (next < count && (!m_maximumLineCount || lines < m_maximumLineCount)) {
        int end = lineEnd(items, next, count, size.width());
        const bool isLastAllowed = ++lines == m_maximumLineCount;
        // Spacers that nothing follows are no reason for an overflow.
        const auto isItem = [](const Item &item) {
            return !item.isSpacer;
        };
        const bool isCut = isLastAllowed && std::any_of(items.cbegin() + end, items.cbegin() + count, isItem);
        if (isCut && hasOverflow) {
            const Item &more = items.constLast();
            const int room = size.width() - more.hint.width() - horizontalSpacing();
            end = lineEnd(items, next, end, room);
            if (end == next + 1 && items.at(next).minimum.width() > room)
                end = next;
            isOverflowShown = true;
        }
        QVector<Item> line = items.mid(next, end - next);
        if (isOverflowShown)
            line << items.constLast();
        QVector<QRect> rects;
        y += (lines > 1 ? verticalSpacing() : 0);
        y += placeLine(line, y, size.width(), isLastAllowed || end == count, &rects);
        for (int i = next; i < end; ++i)
            arrangement.places[i].rect = rects.at(i - next);
        if (isOverflowShown)
            arrangement.places.last().rect = rects.constLast();
        next = end;
    }
    for (; next < count; ++next) {
        arrangement.places[next].isShown = false;
        arrangement.overflowCount += items.at(next).isSpacer ? 0 : 1;
    }
    if (hasOverflow)
        arrangement.places.last().isShown = isOverflowShown;
    arrangement.height = y;
    return arrangement;
}

void FlowLayout::placed(const Arrangement &arrangement)
{
    if (m_overflowCount == arrangement.overflowCount)
        return;
    m_overflowCount = arrangement.overflowCount;
    Q_EMIT overflowCountChanged(m_overflowCount);
}
