#include <UiElements/models/LazyLoadedListModel.h>

#include <QDebug>
#include <QStandardItem>

#include <algorithm>
#include <limits>

namespace {

constexpr int NoEnd = std::numeric_limits<int>::max();
constexpr quint64 MostItemsInStorage = 10000000;

int bounded(qint64 number)
{
    return int(std::clamp<qint64>(number, std::numeric_limits<int>::min(), NoEnd));
}

} // namespace

LazyLoadedListModel::LazyLoadedListModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

LazyLoadedListModel::~LazyLoadedListModel()
{
    deleteItems(takePages(0, NoEnd).items);
}

void LazyLoadedListModel::setPagingConfig(quint32 pageSize, quint32 pagesInStorage)
{
    if (pageSize == 0 || pagesInStorage == 0)
        return;
    if (quint64(pageSize) * pagesInStorage > MostItemsInStorage) {
        qWarning() << "LazyLoadedListModel::setPagingConfig - Too many items! pageSize:" << pageSize
                   << "pagesInStorage:" << pagesInStorage;
        return;
    }
    startAnew(m_size, pageSize, pagesInStorage);
}

void LazyLoadedListModel::setSize(int size)
{
    if (size < 0) {
        qWarning("LazyLoadedListModel::setSize - Invalid size: %d", size);
        return;
    }
    const bool wasKnown = std::exchange(m_isSizeKnown, true);
    const int old = m_size;
    if (size > old) {
        beginInsertRows(QModelIndex(), old, size - 1);
        m_size = size;
        endInsertRows();
    } else if (size < old) {
        beginRemoveRows(QModelIndex(), size, old - 1);
        m_size = size;
    }
    if (!enabled()) {
        if (size < old)
            endRemoveRows();
        return;
    }

    // What lies behind the end, also where pages came before the size was known.
    Taken gone = takePages(size == 0 ? 0 : lastPage() + 1, NoEnd);
    const auto last = size == 0 ? m_pages.end() : m_pages.find(lastPage());
    if (last != m_pages.end()) {
        Items &items = last->second.items;
        const auto end = std::size_t(sizeOfPage(last->first));
        for (; items.size() > end; items.pop_back()) {
            if (items.back() && m_held.erase(items.back()))
                gone.items.push_back(items.back());
        }
    }
    if (size < old)
        endRemoveRows();
    deleteItems(gone.items);

    if (size <= old || !wasKnown || !m_isLoaded)
        return;
    const int grown = indexToPage(old);
    const auto page = m_pages.find(grown);
    if (page != m_pages.end())
        page->second.isAnswered = false; // the answer was for fewer items
    requestPages(grown, lastPage() - grown + 1);
}

int LazyLoadedListModel::indexToPage(int index) const
{
    if (m_pageSize == 0 || index < 0)
        return 0;
    const auto pageSize = qint64(m_pageSize);
    return int((index - index % pageSize) / pageSize);
}

int LazyLoadedListModel::pageToIndex(int page) const
{
    return bounded(qint64(page) * qint64(m_pageSize));
}

int LazyLoadedListModel::getStorageSize() const
{
    return int(m_held.size());
}

QStandardItem *LazyLoadedListModel::getItemAt(int index) const
{
    if (index < 0)
        return nullptr;
    const auto page = m_pages.find(indexToPage(index));
    if (page == m_pages.end())
        return nullptr;
    const auto at = std::size_t(index - pageToIndex(page->first));
    return at < page->second.items.size() ? page->second.items[at] : nullptr;
}

void LazyLoadedListModel::setItemsAtPage(int page, const QVector<QStandardItem *> &items)
{
    if (!enabled() || page < 0) {
        qWarning() << "LazyLoadedListModel::setItemsAtPage - Invalid page:" << page;
        deleteItems({items.begin(), items.end()});
        return;
    }
    if (!isInRange(page)) {
        deleteItems({items.begin(), items.end()});
        return;
    }
    const int room = sizeOfPage(page);
    if (items.size() > room)
        qWarning() << "LazyLoadedListModel::setItemsAtPage - Too many items! page:" << page << "items:" << items.size()
                   << "room:" << room;

    const Taken before = takePages(page, page + 1);
    if (!items.isEmpty()) {
        Page &filled = m_pages[page];
        filled.isAnswered = true;
        filled.items.reserve(std::size_t(std::min(room, items.size())));
        for (int i = 0; i < items.size() && i < room; ++i) {
            QStandardItem *item = items.at(i);
            const bool isUsed = item && isUsable(item);
            filled.items.push_back(isUsed ? item : nullptr);
            if (isUsed)
                m_held.insert(item);
        }
    }
    announce(pageToIndex(page), pageToIndex(page) + room - 1);
    Items unused = before.items; // without those that came again
    unused.insert(unused.end(), items.begin() + std::min(room, items.size()), items.end());
    deleteItems(unused);
}

void LazyLoadedListModel::setItemAtIndex(int index, QStandardItem *item)
{
    if (!enabled() || index < 0) {
        qWarning() << "LazyLoadedListModel::setItemAtIndex - Invalid index:" << index;
        deleteItems({item});
        return;
    }
    if (!item) {
        deleteItemAtIndex(index);
        return;
    }
    const int page = indexToPage(index);
    const int at = index - pageToIndex(page);
    if (!isInRange(page) || at >= sizeOfPage(page)) {
        deleteItems({item});
        return;
    }
    QStandardItem *before = getItemAt(index);
    if (before == item || !isUsable(item))
        return;
    Items &items = m_pages[page].items;
    if (std::size_t(at) >= items.size())
        items.resize(std::size_t(at) + 1);
    items[std::size_t(at)] = item;
    m_held.insert(item);
    m_held.erase(before);
    announce(index, index);
    deleteItems({before});
}

void LazyLoadedListModel::deleteItemAtIndex(int index)
{
    QStandardItem *item = getItemAt(index);
    if (!item)
        return;
    const int page = indexToPage(index);
    m_pages[page].items[std::size_t(index - pageToIndex(page))] = nullptr;
    m_pages[page].isAnswered = false;
    m_held.erase(item);
    announce(index, index);
    deleteItems({item});
}

void LazyLoadedListModel::eraseStorage()
{
    m_isLoaded = false;
    drop(takePages(0, NoEnd));
}

void LazyLoadedListModel::clearList()
{
    startAnew(0, m_pageSize, m_pagesInStorage);
}

void LazyLoadedListModel::reset()
{
    startAnew(m_size, m_pageSize, m_pagesInStorage);
}

void LazyLoadedListModel::startAnew(int size, quint32 pageSize, quint32 pagesInStorage)
{
    beginResetModel();
    const Taken taken = takePages(0, NoEnd);
    m_firstPage = 0;
    m_isLoaded = false;
    m_size = size;
    m_pageSize = pageSize;
    m_pagesInStorage = pagesInStorage;
    endResetModel();
    deleteItems(taken.items);
}

void LazyLoadedListModel::setScrolledIndex(int index)
{
    if (!enabled())
        return;
    if (m_isSizeKnown)
        index = std::min(index, m_size - 1);
    const int page = indexToPage(bounded(qint64(index) - qint64(m_pageSize)));
    if (m_firstPage > page)
        scrollUp(page);
    else if (m_firstPage < page)
        scrollDown(page);
}

void LazyLoadedListModel::scrollDown(int page)
{
    page = std::min(page, lastPage());
    const qint64 distance = qint64(page) - m_firstPage;
    if (!enabled() || distance <= 0)
        return;
    if (!m_isLoaded || distance >= qint64(m_pagesInStorage)) {
        loadStorageAtPage(page);
        return;
    }
    moveRange(page);
    requestPages(bounded(qint64(page) + m_pagesInStorage - distance), int(distance));
}

void LazyLoadedListModel::scrollUp(int page)
{
    page = std::max(page, 0);
    const int distance = m_firstPage - page;
    if (!enabled() || distance <= 0)
        return;
    if (!m_isLoaded || quint32(distance) >= m_pagesInStorage) {
        loadStorageAtPage(page);
        return;
    }
    moveRange(page);
    requestPages(page, distance);
}

void LazyLoadedListModel::loadStorageAtPage(int page)
{
    if (!enabled() || page < 0 || page > indexToPage(NoEnd - 1)) {
        qWarning() << "LazyLoadedListModel::loadStorageAtPage - Invalid page:" << page;
        return;
    }
    const Taken taken = takePages(0, NoEnd);
    m_firstPage = page;
    m_isLoaded = true;
    drop(taken);
    requestPages(page, int(m_pagesInStorage));
}

void LazyLoadedListModel::requestPages(int firstPage, int count)
{
    const qint64 end =
        std::min<qint64>({qint64(firstPage) + count, qint64(m_firstPage) + m_pagesInStorage, qint64(lastPage()) + 1});
    QVector<int> missing;
    for (int page = std::max(firstPage, m_firstPage); page < end; ++page) {
        if (!isComplete(page))
            missing.append(page);
    }
    if (!missing.isEmpty())
        Q_EMIT loadPages(missing);
}

int LazyLoadedListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_size;
}

QVariant LazyLoadedListModel::data(const QModelIndex &index, int role) const
{
    Q_UNUSED(index)
    Q_UNUSED(role)
    return QVariant();
}

bool LazyLoadedListModel::isInRange(int page) const
{
    return page >= m_firstPage && page - m_firstPage < qint64(m_pagesInStorage) && page <= lastPage();
}

/// -1 for an empty list; the last one that has an index while the size is not known.
int LazyLoadedListModel::lastPage() const
{
    if (!m_isSizeKnown)
        return indexToPage(NoEnd - 1);
    return m_size > 0 ? indexToPage(m_size - 1) : -1;
}

int LazyLoadedListModel::sizeOfPage(int page) const
{
    const int end = m_isSizeKnown ? m_size : NoEnd;
    return int(std::min<qint64>(m_pageSize, qint64(end) - pageToIndex(page)));
}

bool LazyLoadedListModel::isComplete(int page) const
{
    const auto found = m_pages.find(page);
    if (found == m_pages.end())
        return false;
    const Items &items = found->second.items;
    return found->second.isAnswered
        || (int(items.size()) == sizeOfPage(page) && !std::count(items.begin(), items.end(), nullptr));
}

bool LazyLoadedListModel::isUsable(const QStandardItem *item) const
{
    if (!m_held.count(item) && !item->model() && !item->parent())
        return true;
    qWarning("LazyLoadedListModel - An item that has a place already cannot be set!");
    return false;
}

LazyLoadedListModel::Taken LazyLoadedListModel::takePages(int begin, int end)
{
    Taken taken;
    const auto first = m_pages.lower_bound(begin);
    const auto last = m_pages.lower_bound(end);
    for (auto page = first; page != last; ++page) {
        taken.pages.push_back(page->first);
        for (QStandardItem *item : page->second.items) {
            if (item && m_held.erase(item))
                taken.items.push_back(item);
        }
    }
    m_pages.erase(first, last);
    return taken;
}

/// Deletes what was taken after it is announced: a slot may still look at the pointers that it has.
void LazyLoadedListModel::drop(const Taken &taken)
{
    for (const int page : taken.pages)
        announce(pageToIndex(page), bounded(qint64(pageToIndex(page)) + m_pageSize - 1));
    deleteItems(taken.items);
}

void LazyLoadedListModel::moveRange(int firstPage)
{
    Taken taken = takePages(0, firstPage);
    const Taken behind = takePages(bounded(qint64(firstPage) + m_pagesInStorage), NoEnd);
    taken.pages.insert(taken.pages.end(), behind.pages.begin(), behind.pages.end());
    taken.items.insert(taken.items.end(), behind.items.begin(), behind.items.end());
    m_firstPage = firstPage;
    drop(taken);
}

void LazyLoadedListModel::announce(int first, int last)
{
    last = std::min(last, m_size - 1);
    if (first <= last)
        Q_EMIT dataChanged(index(first), index(last));
}

/// Deletes each once, and none that has a place here or elsewhere.
void LazyLoadedListModel::deleteItems(Items items) const
{
    std::sort(items.begin(), items.end());
    items.erase(std::unique(items.begin(), items.end()), items.end());
    for (QStandardItem *item : items) {
        if (item && !m_held.count(item) && !item->model() && !item->parent())
            delete item;
    }
}
