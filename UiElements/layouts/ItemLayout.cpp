#include <UiElements/layouts/ItemLayout.h>

#include <QGuiApplication>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

// A widget that a layout hid is one that is hidden without anybody having said so. So hide() and show() of the host are
// seen afterwards: without this, hide() on a hidden widget leaves no trace.
bool isHiddenByLayout(const QWidget *widget)
{
    return widget && widget->isHidden() && !widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

void setVisibleByLayout(QWidget *widget, bool visible)
{
    const QPointer<QWidget> guard(widget);
    widget->setVisible(visible);
    if (guard)
        widget->setAttribute(Qt::WA_WState_ExplicitShowHide, false);
}

// Between the start of its show() and its being visible, which is when Qt asks the layout, a widget must not be hidden.
bool isBecomingVisible(const QWidget *widget)
{
    return !widget->isHidden() && !widget->isVisible() && widget->parentWidget() && widget->parentWidget()->isVisible();
}

void collectWidgets(QLayoutItem *item, QVector<QPointer<QWidget>> *widgets)
{
    if (QWidget *widget = item->widget())
        widgets->append(widget);
    if (const QLayout *layout = item->layout()) {
        for (int i = 0; QLayoutItem *inner = layout->itemAt(i); ++i)
            collectWidgets(inner, widgets);
    }
}

} // namespace

/// While it lives, items that the layout hid tell their sizes and take a place, as the visible ones do.
class ItemLayout::AsIfShown
{
public:
    explicit AsIfShown(const QVector<Entry> &entries)
    {
        for (const Entry &entry : entries) {
            for (const QPointer<QWidget> &widget : entry.hidden) {
                if (isHiddenByLayout(widget)) {
                    widget->setAttribute(Qt::WA_WState_Hidden, false);
                    m_widgets << widget;
                }
            }
        }
    }
    ~AsIfShown()
    {
        for (const QPointer<QWidget> &widget : qAsConst(m_widgets)) {
            if (widget)
                widget->setAttribute(Qt::WA_WState_Hidden);
        }
    }
    Q_DISABLE_COPY(AsIfShown)

private:
    QVector<QPointer<QWidget>> m_widgets;
};

int ItemLayout::Item::heightAt(int width) const
{
    return hasHeightForWidth ? qBound(minimum.height(), item->heightForWidth(width), QLAYOUTSIZE_MAX) : hint.height();
}

ItemLayout::ItemLayout(QWidget *parent)
    : QLayout(parent)
{
}

ItemLayout::~ItemLayout()
{
    // A nested layout takes itself out of the list when it is deleted.
    while (!m_entries.isEmpty()) {
        const Entry entry = m_entries.takeLast();
        giveBack(entry);
        delete entry.item;
    }
}

bool ItemLayout::warn(const char *function, const char *text) const
{
    qWarning("%s::%s - %s", metaObject()->className(), function, text);
    return false;
}

bool ItemLayout::accepts(const char *function, const QWidget *widget) const
{
    if (!widget)
        return warn(function, "The widget is null");
    const QWidget *parent = parentWidget();
    if (parent && (widget == parent || widget->isAncestorOf(parent)))
        return warn(function, "A widget cannot be laid out inside itself");
    return true;
}

bool ItemLayout::isInside(const QLayout *layout) const
{
    const QObject *outer = this;
    while (outer && outer != layout)
        outer = outer->parent();
    return outer && outer == layout;
}

void ItemLayout::addWidget(QWidget *widget)
{
    if (accepts("addWidget", widget))
        QLayout::addWidget(widget);
}

void ItemLayout::insertWidget(int index, QWidget *widget)
{
    if (!accepts("insertWidget", widget))
        return;
    QLayout::addWidget(widget);
    if (index >= 0 && index < m_entries.size())
        m_entries.move(m_entries.size() - 1, index);
}

void ItemLayout::addLayout(QLayout *layout)
{
    if (!layout) {
        warn("addLayout", "The layout is null");
    } else if (layout->parent() || isInside(layout)) {
        warn("addLayout", "The layout is in use already");
    } else {
        addChildLayout(layout);
        addItem(layout);
    }
}

void ItemLayout::addItem(QLayoutItem *item)
{
    const auto has = [item](const Entry &entry) {
        return entry.item == item;
    };
    if (!item) {
        warn("addItem", "The item is null");
    } else if (isInside(item->layout()) || std::any_of(m_entries.cbegin(), m_entries.cend(), has)) {
        warn("addItem", "The item is in use already");
    } else {
        m_entries.append({item, false, {}});
        ++m_version;
        invalidate();
    }
}

void ItemLayout::setOverflow(QWidget *widget)
{
    const auto isOverflow = [](const Entry &entry) {
        return entry.isOverflow;
    };
    if (!accepts("setOverflowWidget", widget))
        return;
    if (std::any_of(m_entries.cbegin(), m_entries.cend(), isOverflow)) {
        warn("setOverflowWidget", "There is an overflow widget already");
        return;
    }
    QLayout::addWidget(widget);
    m_entries.last().isOverflow = true;
}

QLayoutItem *ItemLayout::itemAt(int index) const
{
    return index >= 0 && index < m_entries.size() ? m_entries.at(index).item : nullptr;
}

QLayoutItem *ItemLayout::takeAt(int index)
{
    if (index < 0 || index >= m_entries.size())
        return nullptr;
    const Entry entry = m_entries.takeAt(index);
    ++m_version;
    giveBack(entry);
    invalidate();
    // So that it may be put into another layout.
    if (QLayout *layout = entry.item->layout()) {
        if (layout->parent() == this)
            layout->setParent(nullptr);
    }
    return entry.item;
}

// Shown later, for the item leaves most often because its widget or the whole window goes.
void ItemLayout::giveBack(const Entry &entry)
{
    for (QWidget *widget : entry.hidden) {
        if (!isHiddenByLayout(widget))
            continue;
        const QWidget *parent = widget->parentWidget();
        const auto show = [widget, parent] {
            if (isHiddenByLayout(widget) && widget->parentWidget() == parent)
                widget->show();
        };
        QMetaObject::invokeMethod(widget, show, Qt::QueuedConnection);
    }
}

bool ItemLayout::isEmpty() const
{
    const QVector<Item> &all = items();
    return std::all_of(all.cbegin(), all.cend(), [](const Item &item) { return item.isSpacer; });
}

const QVector<ItemLayout::Item> &ItemLayout::items() const
{
    if (m_isMeasured)
        return m_items;
    const AsIfShown scope(m_entries);
    m_items.clear();
    int overflow = -1;
    for (int i = 0; i < m_entries.size(); ++i) {
        QLayoutItem *item = m_entries.at(i).item;
        const bool isSpacer = item->spacerItem();
        if (item->isEmpty() && !isSpacer)
            continue;
        const QSize limit(QLAYOUTSIZE_MAX, QLAYOUTSIZE_MAX); // for sums that fit into a number
        const QSize minimum = item->minimumSize().boundedTo(limit);
        const QSize maximum = item->maximumSize().boundedTo(limit).expandedTo(minimum);
        const QSize hint = item->sizeHint().boundedTo(maximum).expandedTo(minimum);
        if (m_entries.at(i).isOverflow)
            overflow = m_items.size();
        m_items.append({item, i, hint, minimum, maximum, item->expandingDirections(), isSpacer,
                        m_entries.at(i).isOverflow, item->hasHeightForWidth()});
    }
    if (overflow >= 0)
        m_items.move(overflow, m_items.size() - 1);
    m_isMeasured = true;
    return m_items;
}

const ItemLayout::Arrangement &ItemLayout::arrangement(const QSize &contents) const
{
    const QSize size(qMax(0, contents.width()), usesHeight() ? contents.height() : -1);
    if (m_arrangedFor != size) {
        const QVector<Item> &all = items();
        const AsIfShown scope(m_entries);
        m_arrangement = arrange(all, size);
        m_arrangedFor = size;
    }
    return m_arrangement;
}

QSize ItemLayout::withMargins(const QSize &size) const
{
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize ItemLayout::sizeHint() const
{
    const QVector<Item> &all = items();
    const AsIfShown scope(m_entries);
    return withMargins(contentHint(all)).expandedTo(minimumSize());
}

QSize ItemLayout::minimumSize() const
{
    const QVector<Item> &all = items();
    const AsIfShown scope(m_entries);
    return withMargins(contentMinimum(all));
}

Qt::Orientations ItemLayout::expandingDirections() const
{
    Qt::Orientations directions;
    for (const Item &item : items())
        directions |= item.expanding;
    return directions;
}

int ItemLayout::heightForWidth(int width) const
{
    if (!hasHeightForWidth())
        return -1;
    const QSize margins = withMargins(QSize(0, 0));
    width = qBound(0, width, QLAYOUTSIZE_MAX);
    return arrangement(QSize(width - margins.width(), -1)).height + margins.height();
}

void ItemLayout::invalidate()
{
    m_isMeasured = false;
    m_arrangedFor = QSize();
    QLayout::invalidate();
}

void ItemLayout::setGeometry(const QRect &rect)
{
    // Showing a widget makes Qt lay out its parent at once.
    if (m_isPlacing) {
        m_isAskedAgain = true;
        return;
    }
    if (rect == geometry()) // invalidate() takes it away
        return;
    m_isAskedAgain = false;
    m_isPlacing = true;
    const QPointer<ItemLayout> self(this);
    QLayout::setGeometry(rect);
    const QRect contents = (alignment() ? alignmentRect(rect) : rect).marginsRemoved(contentsMargins());
    const Arrangement places = arrangement(contents.size().expandedTo(QSize(0, 0)));
    const bool isComplete = place(contents, places);
    if (!self)
        return;
    m_isPlacing = false;
    if (m_isAskedAgain || !isComplete)
        invalidate();
    if (isComplete)
        placed(places);
}

void ItemLayout::placed(const Arrangement &) { }

// Widgets answer to what is done to them here, and may then change the layout: false when there are other items now.
bool ItemLayout::place(const QRect &contents, const Arrangement &arrangement)
{
    const QPointer<ItemLayout> self(this);
    const QVector<Item> all = items();
    const int version = m_version;
    const QWidget *parent = parentWidget();
    const Qt::LayoutDirection direction = parent ? parent->layoutDirection() : QGuiApplication::layoutDirection();
    for (int i = 0; i < all.size(); ++i) {
        if (!arrangement.places.at(i).isShown && (!hideItem(all.at(i).index) || m_version != version))
            return false;
    }
    for (int i = 0; i < all.size(); ++i) {
        const Place &place = arrangement.places.at(i);
        if (!place.isShown)
            continue;
        const QRect rect = place.rect.translated(contents.topLeft());
        {
            const Entry &entry = m_entries.at(all.at(i).index);
            const AsIfShown scope(entry.hidden.isEmpty() ? QVector<Entry>() : QVector<Entry> {entry});
            all.at(i).item->setGeometry(QStyle::visualRect(direction, contents, rect));
        }
        if (!self || m_version != version)
            return false;
    }
    for (int i = 0; i < all.size(); ++i) {
        if (arrangement.places.at(i).isShown && (!showItem(all.at(i).index) || m_version != version))
            return false;
    }
    return true;
}

bool ItemLayout::hideItem(int index)
{
    const QPointer<ItemLayout> self(this);
    const int version = m_version;
    QVector<QPointer<QWidget>> widgets;
    collectWidgets(m_entries.at(index).item, &widgets);
    for (const QPointer<QWidget> &widget : qAsConst(widgets)) {
        if (!widget || widget->isHidden())
            continue;
        if (isBecomingVisible(widget)) {
            m_isAskedAgain = true;
            continue;
        }
        if (!m_entries.at(index).hidden.contains(widget))
            m_entries[index].hidden << widget;
        setVisibleByLayout(widget, false);
        if (!self || m_version != version)
            return false;
    }
    return true;
}

bool ItemLayout::showItem(int index)
{
    if (m_entries.at(index).hidden.isEmpty())
        return true;
    const QPointer<ItemLayout> self(this);
    const int version = m_version;
    const QVector<QPointer<QWidget>> widgets = std::exchange(m_entries[index].hidden, {});
    for (const QPointer<QWidget> &widget : widgets) {
        if (!isHiddenByLayout(widget))
            continue;
        setVisibleByLayout(widget, true);
        if (!self || m_version != version)
            return false;
    }
    return true;
}

QVector<QWidget *> ItemLayout::widgetsWithoutRoom() const
{
    QVector<QWidget *> widgets;
    for (const Entry &entry : m_entries) {
        for (QWidget *widget : entry.hidden) {
            if (!entry.isOverflow && isHiddenByLayout(widget))
                widgets << widget;
        }
    }
    return widgets;
}

int ItemLayout::spacingOr(int own) const
{
    return qBound(0, own < 0 ? spacing() : own, QLAYOUTSIZE_MAX);
}

int ItemLayout::spacingCount(const QVector<Item> &items)
{
    const auto count = std::count_if(items.cbegin(), items.cend(), [](const Item &item) { return !item.isSpacer; });
    return qMax(0, int(count) - 1);
}

QSize ItemLayout::largestHint(const QVector<Item> &items)
{
    QSize size(0, 0);
    for (const Item &item : items)
        size = size.expandedTo(item.hint);
    return size;
}

QSize ItemLayout::largestMinimum(const QVector<Item> &items)
{
    QSize size(0, 0);
    for (const Item &item : items)
        size = size.expandedTo(item.minimum);
    return size;
}

int ItemLayout::share(int room, QVector<int> *widths, QVector<int> growths)
{
    while (room > 0) {
        const int takers = int(std::count_if(growths.cbegin(), growths.cend(), [](int growth) { return growth > 0; }));
        if (!takers)
            break;
        const int part = qMax(1, room / takers);
        for (int i = 0; i < growths.size() && room > 0; ++i) {
            const int taken = qMin(part, qMin(room, growths.at(i)));
            (*widths)[i] += taken;
            growths[i] -= taken;
            room -= taken;
        }
    }
    return room;
}
