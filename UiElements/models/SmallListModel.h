#pragma once

#include <UiElements/uielements_export.h>

#include <QAbstractListModel>

#include <unordered_map>
#include <vector>

/// A short list whose rows are nothing but values by role, such as the choices of a menu.
class UIELEMENTS_EXPORT SmallListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using Row = std::unordered_map<int, QVariant>;
    using Rows = std::vector<Row>;

    explicit SmallListModel(const QHash<int, QByteArray> &roleNames, QObject *parent = nullptr,
                            const QVariant &header = QVariant());

    void add(const Rows &rows); ///< at the end
    /// For each of the given rows the first one that is equal to it. One that is not there is reported.
    void remove(const Rows &rows);
    void replace(const Rows &rows); ///< position by position; only what differs is announced
    void clear();

    /// Empty for a row that is not there or lacks the role.
    QVariant data(int row, int role) const;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Changes only roles that the row has.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// The header for Qt::DisplayRole and for roles of one's own.
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QHash<int, QByteArray> roleNames() const override { return m_roleNames; }

private:
    QHash<int, QByteArray> m_roleNames;
    QVariant m_header;
    Rows m_rows;
};
