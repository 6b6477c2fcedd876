#pragma once

#include <UiElements/uielements_export.h>

#include <QAbstractListModel>
#include <QVector>

#include <map>
#include <unordered_set>
#include <vector>

class QStandardItem;

/// A list too long to be held: of all pages, some consecutive ones are in memory, and the host is asked for others
/// when the view gets there.
///
/// The host calls setPagingConfig() and setSize(), answers loadPages() with setItemsAtPage(), whenever it can, and
/// starts with loadStorageAtPage(). The view calls setScrolledIndex() and takes items with getItemAt(). It is told by
/// dataChanged() of items that have come or gone; pointers are to be asked for again then.
///
/// data() has nothing to tell. For a view of Qt, derive a class whose data() asks the item:
/// `QStandardItem *item = getItemAt(index.row()); return item ? item->data(role) : QVariant();`
///
/// The pages in storage begin with the one before the scrolled page. When that changes, the pages that leave are
/// deleted and those that enter are asked for in ascending order, in one signal. So a page is asked for once each time
/// it enters, or again by requestPages(), until it is there. Answers may come late, twice and in any order: a later one
/// takes the place of an earlier one, and one for a page that has left is deleted. An answer without items says that
/// the page is not to be had; it stays missing. What is in memory is bounded by the configured pages, and a scroll step
/// takes time for the pages that enter and leave, whatever the size.
///
/// The model owns every item that it is given, also those that it has no use for and deletes. An item that it holds
/// already at another index, or that belongs to another model or item, is reported and left alone.
class UIELEMENTS_EXPORT LazyLoadedListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit LazyLoadedListModel(QObject *parent = nullptr);
    ~LazyLoadedListModel() override;

    /// Items per page, and pages in memory at once. Zeros change nothing; more than 10,000,000 items in memory are
    /// refused.
    void setPagingConfig(quint32 pageSize, quint32 pagesInStorage);
    quint32 pageSize() const { return m_pageSize; }
    quint32 pagesInStorage() const { return m_pagesInStorage; }
    bool enabled() const { return m_pageSize > 0; } ///< there is a paging configuration

    /// The number of items in the whole list. Before it is set, rowCount() is 0 and pages are asked for as if there
    /// was no end. Pages in range that a longer list adds, or adds to, are asked for.
    void setSize(int size);
    int size() const { return m_size; }

    Q_INVOKABLE int indexToPage(int index) const; ///< 0 for a negative index
    Q_INVOKABLE int pageToIndex(int page) const;
    int getStartIndex() const { return pageToIndex(m_firstPage); } ///< of the first page in range
    int getStorageSize() const; ///< items in memory
    QStandardItem *getItemAt(int index) const; ///< null while it is not there

    void setItemsAtPage(int page, const QVector<QStandardItem *> &items);
    void setItemAtIndex(int index, QStandardItem *item);
    void deleteItemAtIndex(int index); ///< its place stays and is empty
    void eraseStorage(); ///< all items; nothing is asked for
    void clearList(); ///< all items, and the list is empty
    void reset(); ///< all items, and the range begins with the first page again

    void scrollDown(int page);
    void scrollUp(int page);
    /// Asks for the pages of this run that are in range and not complete, also if they were asked for before.
    void requestPages(int firstPage, int count);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    Q_INVOKABLE void setScrolledIndex(int index);
    /// Forgets all items and asks for all pages in range, of which this is the first.
    Q_INVOKABLE void loadStorageAtPage(int page);

Q_SIGNALS:
    void loadPages(const QVector<int> &pages);

private:
    struct Page
    {
        std::vector<QStandardItem *> items; // null where one is missing
        bool isAnswered = false;
    };
    using Items = std::vector<QStandardItem *>;
    struct Taken
    {
        std::vector<int> pages;
        Items items;
    };

    void startAnew(int size, quint32 pageSize, quint32 pagesInStorage);
    bool isInRange(int page) const;
    int lastPage() const;
    int sizeOfPage(int page) const;
    bool isComplete(int page) const;
    bool isUsable(const QStandardItem *item) const;
    Taken takePages(int begin, int end);
    void drop(const Taken &taken);
    void moveRange(int firstPage);
    void announce(int first, int last);
    void deleteItems(Items items) const;

    std::map<int, Page> m_pages; // no others than those in range
    std::unordered_set<const QStandardItem *> m_held;
    quint32 m_pageSize = 0;
    quint32 m_pagesInStorage = 0;
    int m_firstPage = 0;
    int m_size = 0;
    bool m_isSizeKnown = false;
    bool m_isLoaded = false; // pages in range were asked for
};
