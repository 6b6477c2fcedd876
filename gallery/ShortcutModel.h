#pragma once

#include <QAbstractListModel>
#include <QKeySequence>
#include <QVector>

/// Shortcuts in groups, for a help dialog: a row with the name of each group and below it one for each shortcut.
class ShortcutModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Qt::DisplayRole is the description, or the name of the group.
    enum Role { KeyRole = Qt::UserRole, IsHeadingRole };

    struct Shortcut
    {
        QString group;
        QString description;
        QKeySequence key;

        bool operator==(const Shortcut &other) const
        {
            return group == other.group && description == other.description && key == other.key;
        }
    };

    explicit ShortcutModel(QObject *parent = nullptr);

    /// Those of a group must stand together.
    void setShortcuts(const QVector<Shortcut> &shortcuts);
    /// Only the shortcuts whose description, key or group contain each of the words; upper and lower case are one.
    void setFilter(const QString &words);
    /// Without the headings.
    int matchCount() const { return m_matchCount; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct Row
    {
        int shortcut;
        bool isHeading;
    };
    bool matches(const Shortcut &shortcut) const;
    void filter();

    QVector<Shortcut> m_shortcuts;
    QVector<Row> m_rows;
    QStringList m_words;
    int m_matchCount = 0;
};
