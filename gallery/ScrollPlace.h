#pragma once

#include <QPersistentModelIndex>
#include <QVector>

class QListView;

/// Keeps the rows that are in view where they are while a change above them is made, in the scope of this. Rows that
/// move away by themselves are not followed, and a view at its top stays there and shows what is new.
class ScrollPlace
{
public:
    explicit ScrollPlace(QListView *view);
    ~ScrollPlace();

private:
    Q_DISABLE_COPY(ScrollPlace)

    struct Seen
    {
        QPersistentModelIndex index;
        int top;
    };
    QListView *const m_view;
    QVector<Seen> m_seen;
};
