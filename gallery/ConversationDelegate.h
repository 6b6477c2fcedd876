#pragma once

#include "RowDelegates.h"

/// For the roles of a ConversationModel: who it is, with the presence, and beside it the last message, its time and how
/// many are unread. Where there is no name yet, the shape of a row stands in for it.
///
/// All rows are of the same height, and texts that are too long end in an ellipsis.
class ConversationDelegate : public RowDelegate
{
    Q_OBJECT

public:
    explicit ConversationDelegate(QAbstractItemView *view);

    int rowHeight() const;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    QSize content(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                  const QModelIndex &index) const override;

private:
    void paintPicture(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                      const QModelIndex &index) const;
    void paintPresence(QPainter *painter, const QStyleOptionViewItem &option, const QRectF &picture,
                       int presence) const;
    void paintPlaceholder(QPainter *painter, const QStyleOptionViewItem &option, const QRect &texts) const;

    mutable int m_rowHeight = 0; // 0 when the fonts are others
};
