#include "ScrollPlace.h"

#include <QListView>
#include <QScrollBar>

#include <algorithm>

ScrollPlace::ScrollPlace(QListView *view)
    : m_view(view)
{
    const QWidget *viewport = view->viewport();
    if (view->verticalScrollBar()->value() == view->verticalScrollBar()->minimum())
        return;
    QModelIndex index = view->indexAt(QPoint(viewport->width() / 2, 0));
    for (; index.isValid(); index = index.sibling(index.row() + 1, 0)) {
        const int top = view->visualRect(index).top();
        if (top >= viewport->height())
            return;
        m_seen.append({index, top});
    }
}

ScrollPlace::~ScrollPlace()
{
    QVector<int> shifts;
    for (const Seen &seen : qAsConst(m_seen)) {
        if (seen.index.isValid())
            shifts.append(m_view->visualRect(seen.index).top() - seen.top);
    }
    if (shifts.isEmpty())
        return;
    // The middle one is that of rows that did not move by themselves, as most do not.
    std::nth_element(shifts.begin(), shifts.begin() + shifts.size() / 2, shifts.end());
    QScrollBar *bar = m_view->verticalScrollBar();
    bar->setValue(bar->value() + shifts.at(shifts.size() / 2));
}
