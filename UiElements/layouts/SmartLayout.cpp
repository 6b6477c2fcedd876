#include <UiElements/layouts/SmartLayout.h>

#include <QWidget>

#include <algorithm>
#include <utility>

SmartLayout::SmartLayout(QWidget *parent)
    : ItemLayout(parent)
{
}

void SmartLayout::addWidget(QWidget *widget, int priority)
{
    ItemLayout::addWidget(widget);
    if (QLayoutItem *item = widget ? find(widget) : nullptr)
        setItemPriority(item, priority);
}

void SmartLayout::addLayout(QLayout *layout, int priority)
{
    const int before = count();
    ItemLayout::addLayout(layout);
    if (count() > before)
        setItemPriority(layout, priority);
}

QLayoutItem *SmartLayout::find(const QWidget *widget) const
{
    for (int i = 0; i < count(); ++i) {
        if (itemAt(i)->widget() == widget)
            return itemAt(i);
    }
    return nullptr;
}

QLayoutItem *SmartLayout::find(const QLayout *layout) const
{
    for (int i = 0; i < count(); ++i) {
        if (itemAt(i)->layout() == layout)
            return itemAt(i);
    }
    return nullptr;
}

int SmartLayout::priority(const QWidget *widget) const
{
    return widget ? m_priorities.value(find(widget)) : 0;
}

int SmartLayout::priority(const QLayout *layout) const
{
    return layout ? m_priorities.value(find(layout)) : 0;
}

void SmartLayout::setPriority(const QWidget *widget, int priority)
{
    setItemPriority(widget ? find(widget) : nullptr, priority);
}

void SmartLayout::setPriority(const QLayout *layout, int priority)
{
    setItemPriority(layout ? find(layout) : nullptr, priority);
}

void SmartLayout::setItemPriority(const QLayoutItem *item, int priority)
{
    if (!item) {
        warn("setPriority", "There is no such item");
    } else if (m_priorities.value(item) != priority) {
        m_priorities.insert(item, priority);
        invalidate();
    }
}

QLayoutItem *SmartLayout::takeAt(int index)
{
    QLayoutItem *item = ItemLayout::takeAt(index);
    m_priorities.remove(item);
    return item;
}

bool SmartLayout::isHideable(const Item &item) const
{
    return !item.isSpacer && !item.isOverflow && m_priorities.value(item.item) != NeverHidden;
}

/// Which items are shown at a width.
QVector<bool> SmartLayout::choose(const QVector<Item> &items, int width) const
{
    QVector<bool> shown(items.size(), true);
    const bool hasOverflow = !items.isEmpty() && items.constLast().isOverflow;
    int needed = spacingCount(items) * itemSpacing();
    for (const Item &item : items)
        needed += item.minimum.width();
    const int overflowWidth = hasOverflow ? items.constLast().minimum.width() + itemSpacing() : 0;
    if (hasOverflow)
        shown.last() = false;
    if (needed - overflowWidth <= width)
        return shown;

    QVector<int> order;
    for (int i = items.size() - 1; i >= 0; --i) {
        if (isHideable(items.at(i)))
            order << i;
    }
    if (order.isEmpty())
        return shown;
    if (hasOverflow)
        shown.last() = true;
    std::stable_sort(order.begin(), order.end(), [this, &items](int a, int b) {
        return m_priorities.value(items.at(a).item) < m_priorities.value(items.at(b).item);
    });
    for (int i = 0; i < order.size() && needed > width; ++i) {
        shown[order.at(i)] = false;
        needed -= items.at(order.at(i)).minimum.width() + itemSpacing();
    }
    return shown;
}

SmartLayout::Arrangement SmartLayout::arrange(const QVector<Item> &items, const QSize &size) const
{
    Arrangement arrangement;
    arrangement.places.resize(items.size());
    const QVector<bool> shown = choose(items, size.width());
    QVector<Item> row;
    int rowHeight = 0;
    for (int i = 0; i < items.size(); ++i) {
        if (shown.at(i))
            row << items.at(i);
        arrangement.places[i].isShown = shown.at(i);
        arrangement.overflowCount += shown.at(i) || items.at(i).isOverflow ? 0 : 1;
        if (!items.at(i).hasHeightForWidth)
            rowHeight = qMax(rowHeight, items.at(i).hint.height());
    }

    int room = size.width() - spacingCount(row) * itemSpacing();
    qint64 slack = 0;
    for (const Item &item : qAsConst(row)) {
        room -= item.hint.width();
        slack += item.hint.width() - item.minimum.width();
    }
    const qint64 missing = qBound(qint64(0), -qint64(room), slack);
    QVector<int> widths;
    QVector<int> growths;
    qint64 slackBefore = 0;
    for (const Item &item : qAsConst(row)) {
        // The differences of a rounded sum add up to all that is missing.
        const qint64 slackAfter = slackBefore + item.hint.width() - item.minimum.width();
        const qint64 shrink = slack ? missing * slackAfter / slack - missing * slackBefore / slack : 0;
        widths << item.hint.width() - int(shrink);
        growths << (item.expanding & Qt::Horizontal ? item.maximum.width() - item.hint.width() : 0);
        slackBefore = slackAfter;
    }
    share(room, &widths, growths);

    for (int i = 0; i < row.size(); ++i)
        rowHeight = qMax(rowHeight, row.at(i).heightAt(widths.at(i)));
    arrangement.height = rowHeight;
    const int height = size.height() < 0 ? rowHeight : size.height();
    int x = 0;
    bool hasItem = false;
    for (int i = 0, next = 0; i < items.size(); ++i) {
        if (!shown.at(i))
            continue;
        if (!items.at(i).isSpacer && std::exchange(hasItem, true))
            x += itemSpacing();
        arrangement.places[i].rect = QRect(x, 0, widths.at(next), height);
        x += widths.at(next++);
    }
    return arrangement;
}

QSize SmartLayout::contentHint(const QVector<Item> &items) const
{
    QVector<Item> all = items;
    if (!all.isEmpty() && all.constLast().isOverflow)
        all.removeLast();
    int width = spacingCount(all) * itemSpacing();
    for (const Item &item : qAsConst(all))
        width += item.hint.width();
    return QSize(width, qMax(arrange(items, QSize(width, -1)).height, largestMinimum(items).height()));
}

QSize SmartLayout::contentMinimum(const QVector<Item> &items) const
{
    QVector<Item> all;
    QVector<Item> lasting;
    for (const Item &item : items) {
        if (!item.isOverflow)
            all << item;
        if (!isHideable(item))
            lasting << item;
    }
    const auto width = [this](const QVector<Item> &row) {
        int sum = spacingCount(row) * itemSpacing();
        for (const Item &item : row)
            sum += item.minimum.width();
        return sum;
    };
    return QSize(qMin(width(all), width(lasting)), largestMinimum(items).height());
}

bool SmartLayout::hasHeightForWidth() const
{
    const QVector<Item> &all = items();
    return std::any_of(all.cbegin(), all.cend(), [](const Item &item) { return item.hasHeightForWidth; });
}

void SmartLayout::placed(const Arrangement &)
{
    QVector<QPointer<QWidget>> hidden;
    const QVector<QWidget *> widgets = hiddenWidgets();
    for (QWidget *widget : widgets)
        hidden << widget;
    if (hidden == m_toldHidden)
        return;
    m_toldHidden = hidden;
    Q_EMIT hiddenWidgetsChanged();
}
