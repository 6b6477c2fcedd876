#pragma once

#include <UiElements/models/LazyLoadedListModel.h>

/// A lazy list for views that ask the model: values are those of the items, by the roles of a ConversationModel. A row
/// whose item is not there has none but a text for screen readers.
class LazyRows : public LazyLoadedListModel
{
    Q_OBJECT

public:
    using LazyLoadedListModel::LazyLoadedListModel;

    QVector<int> heldPages() const;
    /// The pages in range, from the first up to but without the second.
    QPair<int, int> range() const;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
};
