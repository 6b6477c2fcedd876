#pragma once

#include <UiElements/icons/WSvgIcon.h>

#include <QWidget>

class EmptyStateBaseListModel;
class Label;
class QAbstractItemView;

/// What an EmptyStateBaseListModel says, in the middle of a view while that has no rows. The view may show a proxy of
/// the model.
class EmptyState : public QWidget
{
    Q_OBJECT

public:
    EmptyState(const EmptyStateBaseListModel *model, QAbstractItemView *view);

private:
    class Picture;

    void read();
    void showIfEmpty();

    const EmptyStateBaseListModel *const m_model;
    QAbstractItemView *const m_view;
    Picture *m_picture;
    Label *m_header;
    Label *m_subtitle;
};
