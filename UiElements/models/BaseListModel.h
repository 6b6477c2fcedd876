#pragma once

#include <UiElements/uielements_export.h>

#include <QAbstractListModel>

#include <bitset>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

class RowStore;

/// A flat list whose rows have a unique id and a value for each of some roles. The host fills it in batches.
///
/// Bad input is logged and changes nothing. A batch that would bring the model over MaxRows is refused whole; a row
/// whose id is taken is skipped. Roles below Qt::UserRole cannot be stored: the model says so once for each such role,
/// and likewise when a view asks for one; for other roles that a row lacks, each time.
///
/// Roles below Qt::UserRole are those that the views of Qt paint, so these need a delegate, or a derived class or a
/// proxy whose data() answers Qt::DisplayRole from a role of the model.
///
/// Batches that are passed as temporaries are moved in, which costs a fraction of copying them.
///
/// Slots may change values while the model announces what it does, but not rows: whoever is told after them would learn
/// of the second change first. Such calls are refused with a warning. Rows can be added, moved and removed again when
/// the model is done, in a slot of countChanged() at the earliest.
class UIELEMENTS_EXPORT BaseListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString header READ header WRITE setHeader NOTIFY headerChanged)
    Q_PROPERTY(int count READ getCount NOTIFY countChanged)

public:
    using Row = std::pair<std::string, std::unordered_map<int, QVariant>>; ///< id; role and value
    using Rows = std::vector<Row>;
    static constexpr int MaxRows = 10000;

    explicit BaseListModel(QObject *parent = nullptr);
    ~BaseListModel() override;

    QString header() const { return m_header; }
    void setHeader(const QString &header);
    int getCount() const;

    bool hasRow(const std::string &id) const;
    int getRowIndex(const std::string &id) const; ///< -1 for an id that is not there
    Row getRowById(const std::string &id) const; ///< an empty row for an id that is not there
    Rows getRows() const;

    /// Announces the whole batch. Rows that are then skipped are there, empty, while the insertion is announced, and
    /// are announced as removed right after, so that no view or proxy counts them.
    void appendRows(const Rows &batch);
    void appendRows(Rows &&batch);
    void insertRows(int row, const Rows &batch); ///< before the row; appends where it is the number of rows
    void insertRows(int row, Rows &&batch);
    using QAbstractListModel::insertRows;

    /// Gives rows that are there the values of the batch; roles that it does not name keep theirs. Appends the others.
    void appendOrUpdate(const Rows &batch);
    void appendOrUpdate(Rows &&batch);

    /// Makes the content equal to the batch, position by position: the first row becomes the first of the batch,
    /// whatever its id. Right for lists that are shown anew. A selection stays at its position.
    ///
    /// In a slot ids are the old ones while surplus rows go, and new ones from then on; values are new as far as they
    /// are announced.
    void replace(const Rows &batch);
    void replace(Rows &&batch);

    /// Makes the content equal to the batch, id by id: what has gone is removed, what stays is moved as little as
    /// possible, what is new is inserted, and of the rest only the values that differ are announced. Right for lists
    /// that live: selection and current item stay with their rows, and scroll bars where they are (so rows that come in
    /// above the visible ones push these down, in the views of Qt Widgets).
    ///
    /// Many moves in a long list (ten in the longest, a hundred among 1,000 rows) are announced at once, as a change of
    /// the layout. Widgets keep everything then, too; a ListView in QML shows the new order but keeps its current
    /// index.
    void synchronize(const Rows &batch);
    void synchronize(Rows &&batch);

    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    /// Afterwards the row `to` is the first of the moved ones, as in a ListModel of QML.
    void move(int from, int to, int count);
    void clear();

    /// Also roles that the row did not hold. Announces the roles that were accepted, if any.
    void setRoleValueForRow(const std::string &id, const QMap<int, QVariant> &values);
    void setRoleValueForRow(const QModelIndex &index, const QMap<int, QVariant> &values);
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QMap<int, QVariant> itemData(const QModelIndex &index) const override; ///< what the row holds
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QHash<int, QByteArray> roleNames() const override;
    void setRoleNames(
        const QHash<int, QByteArray> &names); ///< resets the model. QML that has shown a row keeps the names of then

Q_SIGNALS:
    void headerChanged();
    void countChanged(int count);

private:
    struct BatchRow;
    class ChangedRows;
    class Changing;

    template <typename Batch>
    void insertBatch(int row, Batch &&batch);
    template <typename Batch>
    void updateBatch(Batch &&batch);
    template <typename Batch>
    void replaceBatch(Batch &&batch);
    template <typename Batch>
    void synchronizeBatch(Batch &&batch);

    std::vector<BatchRow> sortOut(const Rows &batch) const;
    void removeAllBut(std::vector<int> *places);
    void arrange(const std::vector<int> &places);
    void moveAnnounced(int from, int to, int count);
    bool setValues(int row, const QMap<int, QVariant> &values);
    int rowOf(const QModelIndex &index) const;
    bool isFree(const char *function) const;
    bool hasRoom(std::size_t rows) const;

    std::unique_ptr<RowStore> m_rows;
    QString m_header;
    QHash<int, QByteArray> m_roleNames;
    mutable std::bitset<Qt::UserRole + 1> m_reportedRoles;
    bool m_isChanging = false;
    bool m_mayRemove = false; // all the same
};
