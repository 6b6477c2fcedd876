#include "LazyRows.h"

#include <QLocale>
#include <QStandardItem>

QVector<int> LazyRows::heldPages() const
{
    QVector<int> pages;
    const QPair<int, int> all = range();
    for (int page = all.first; page < all.second; ++page) {
        if (getItemAt(pageToIndex(page)))
            pages.append(page);
    }
    return pages;
}

QPair<int, int> LazyRows::range() const
{
    const int first = indexToPage(getStartIndex());
    return {first, qMin(first + int(pagesInStorage()), indexToPage(size() - 1) + 1)};
}

QVariant LazyRows::data(const QModelIndex &index, int role) const
{
    if (const QStandardItem *item = getItemAt(index.row()))
        return item->data(role);
    if (index.isValid() && role == Qt::AccessibleTextRole)
        return tr("Message %1, not there yet").arg(QLocale().toString(index.row() + 1));
    return QVariant();
}
