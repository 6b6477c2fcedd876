#pragma once

#include <UiElements/models/EmptyStateBaseListModel.h>

#include <QDateTime>
#include <QRandomGenerator>

/// Conversations as a client lists them, which somebody invented. All that changes them works by id, so views keep
/// their selection and their current row.
class ConversationModel : public EmptyStateBaseListModel
{
    Q_OBJECT

public:
    /// Qt::DisplayRole is the name.
    enum Role {
        NameRole = Qt::UserRole,
        MessageRole,
        TimeRole, ///< in milliseconds since 1970
        UnreadRole,
        PresenceRole,
        TimeTextRole ///< as short as it can be, seen from the last change
    };
    enum Presence { NoPresence, Active, Away, Busy, Offline };

    ConversationModel(int count, const QDateTime &now, QObject *parent = nullptr);

    /// By time the newest comes first, otherwise it goes by the names.
    bool isSortedByTime() const { return m_isSortedByTime; }
    void setSortedByTime(bool sorted);

    /// So many conversations get a message, and as many people come or go.
    void receive(int messages, const QDateTime &now);
    /// The last message of one of them, which comes to the top.
    void setMessage(const QModelIndex &index, const QString &text, const QDateTime &now);
    void markRead(const QModelIndex &index);
    /// Adds a conversation; when the model is full, the oldest goes. Returns the row.
    int addConversation(const QDateTime &now);
    void removeConversations(const QModelIndexList &indexes);
    /// Replaces all by the given number of new ones.
    void fill(int count, const QDateTime &now);

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    static QString presenceName(int presence);
    /// The time of the day, as short as the locale writes it.
    static QString clockText(const QTime &time);

private:
    Row inventRow(qint64 time);
    void show(Rows rows);
    QString accessibleText(const QModelIndex &index) const;

    QRandomGenerator m_random {20};
    QDateTime m_now;
    int m_invented = 0;
    bool m_isSortedByTime = true;
};
