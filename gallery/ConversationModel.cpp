#include "ConversationModel.h"

#include <QLocale>

#include <algorithm>
#include <unordered_set>

namespace {

constexpr qint64 Minute = 60 * 1000;

template <std::size_t N>
QString pick(const char *const (&texts)[N], int number)
{
    return QString::fromUtf8(texts[std::size_t(number) % N]);
}

constexpr const char *FirstNames[] = {
    "Ada",   "Boris",   "Chen",    "Dolores", "Emeka",  "Fatima", "Grace",  "Hiroshi", "Ingrid",   "Jamal",
    "Keiko", "Luca",    "Maya",    "Nils",    "Olga",   "Priya",  "Quinn",  "Rosa",    "Samir",    "Tereza",
    "Umar",  "Valerie", "Wanda",   "Xavier",  "Yara",   "Zoë",    "Anselm", "Beatriz", "Cyrus",    "Dagny",
    "Elif",  "Farouk",  "Gunilla", "Henrik",  "Ioanna", "Jorge",  "Kamala", "Łukasz",  "Mireille", "Noor"};
constexpr const char *LastNames[] = {
    "Abara",    "Bergström", "Castillo",  "Dvořák",   "Eriksen",  "Fontaine",     "García",  "Haddad",     "Ito",
    "Jansen",   "Kowalski",  "Lindqvist", "Moreau",   "Novak",    "Okafor",       "Petrov",  "Quintero",   "Rossi",
    "Sørensen", "Tanaka",    "Ueda",      "Vargas",   "Weber",    "Xu",           "Yılmaz",  "Zimmermann", "Almeida",
    "Brandt",   "Chaudhry",  "Dumont",    "Ek",       "Ferreira", "Gupta",        "Horváth", "Iyer",       "Jovanović",
    "Kim",      "Larsson",   "Murphy",    "Nguyen",   "O'Brien",  "Papadopoulos", "Rahman",  "Schäfer",    "Tremblay",
    "Usman",    "Virtanen",  "Walsh",     "Yamamoto", "Zhang"};
constexpr int Pairs = 40 * 50;
constexpr const char *Messages[] = {
    "See you tomorrow at ten",
    "Thanks, that worked!",
    "Can you have a look at the draft before the review? I left comments where I am not sure yet",
    "All tests are green",
    "Lunch?",
    "I will be ten minutes late, please start without me",
    "The new icons are in",
    "Notes from the interviews are in the folder",
    "Could we move this to Thursday?",
    "Frozen until Monday",
    "Who can take the call with the customer this afternoon?",
    "Good idea. Let us try it with the small team first and see how it goes",
    "Sent you the numbers",
    "Happy birthday!",
    "I am on the train and the connection comes and goes",
    "Done"};
constexpr const char *RightToLeftNames[] = {"נועה לוי", "يوسف حداد", "ليلى منصور", "איתן כהן"};
constexpr const char *RightToLeftMessages[] = {"נתראה מחר בעשר", "شكرا، هذا ممتاز", "أراك غدا في الاجتماع",
                                               "תודה רבה!"};

bool isRightToLeft(int number)
{
    return number % 53 == 4;
}

// Each pair of names once, then again with an initial between them.
QString nameOf(int number)
{
    if (isRightToLeft(number))
        return pick(RightToLeftNames, number / 53);
    const int mixed = int(qint64(number) * 7919 % Pairs);
    const int round = number / Pairs;
    const QString first = pick(FirstNames, mixed % 40);
    const QString last = pick(LastNames, mixed / 40);
    if (round == 0)
        return first + QLatin1Char(' ') + last;
    return QStringLiteral("%1 %2. %3").arg(first, QString(QChar(u'A' + (round - 1) % 26)), last);
}

qint64 timeOf(const BaseListModel::Row &row)
{
    return row.second.at(ConversationModel::TimeRole).toLongLong();
}

QString nameOf(const BaseListModel::Row &row)
{
    return row.second.at(ConversationModel::NameRole).toString();
}

QString timeText(const QDateTime &time, const QDateTime &now)
{
    const QLocale locale;
    const qint64 days = time.date().daysTo(now.date());
    if (days <= 0)
        return ConversationModel::clockText(time.time());
    if (days == 1)
        return ConversationModel::tr("Yesterday");
    return days < 7 ? locale.standaloneDayName(time.date().dayOfWeek(), QLocale::ShortFormat)
                    : locale.toString(time.date(), QLocale::ShortFormat);
}

} // namespace

ConversationModel::ConversationModel(int count, const QDateTime &now, QObject *parent)
    : EmptyStateBaseListModel(parent)
    , m_now(now)
{
    setRoleNames({{NameRole, "name"},
                  {MessageRole, "message"},
                  {TimeRole, "time"},
                  {UnreadRole, "unread"},
                  {PresenceRole, "presence"}});
    fill(count, now);
}

void ConversationModel::setSortedByTime(bool sorted)
{
    if (m_isSortedByTime == sorted)
        return;
    m_isSortedByTime = sorted;
    show(getRows());
}

void ConversationModel::receive(int messages, const QDateTime &now)
{
    m_now = now;
    Rows rows = getRows();
    if (rows.empty())
        return;
    const auto any = [&]() -> std::unordered_map<int, QVariant> & {
        return rows[std::size_t(m_random.bounded(int(rows.size())))].second;
    };
    for (int i = 0; i < messages; ++i) {
        auto &values = any();
        values[MessageRole] = pick(Messages, m_random.bounded(16));
        values[TimeRole] = now.toMSecsSinceEpoch() - i;
        values[UnreadRole] = values[UnreadRole].toInt() + 1;
        any()[PresenceRole] = m_random.bounded(int(Active), Offline + 1);
    }
    show(std::move(rows));
}

void ConversationModel::setMessage(const QModelIndex &index, const QString &text, const QDateTime &now)
{
    m_now = now;
    Rows rows = getRows();
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return;
    auto &values = rows[std::size_t(index.row())].second;
    values[MessageRole] = text;
    values[TimeRole] = now.toMSecsSinceEpoch();
    show(std::move(rows));
}

void ConversationModel::markRead(const QModelIndex &index)
{
    if (index.data(UnreadRole).toInt() > 0)
        setData(index, 0, UnreadRole);
}

int ConversationModel::addConversation(const QDateTime &now)
{
    m_now = now;
    Rows rows = getRows();
    if (rows.size() >= std::size_t(MaxRows))
        rows.erase(std::min_element(rows.begin(), rows.end(),
                                    [](const Row &a, const Row &b) { return timeOf(a) < timeOf(b); }));
    rows.insert(rows.begin(), inventRow(now.toMSecsSinceEpoch()));
    const std::string id = rows.front().first;
    show(std::move(rows));
    return getRowIndex(id);
}

void ConversationModel::removeConversations(const QModelIndexList &indexes)
{
    std::unordered_set<int> removed;
    for (const QModelIndex &index : indexes)
        removed.insert(index.row());
    const Rows rows = getRows();
    Rows kept;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (!removed.count(int(row)))
            kept.push_back(rows[row]);
    }
    synchronize(std::move(kept));
}

void ConversationModel::fill(int count, const QDateTime &now)
{
    m_now = now;
    Rows rows;
    rows.reserve(std::size_t(count));
    qint64 time = now.toMSecsSinceEpoch();
    for (int i = 0; i < count; ++i) {
        // The further back, the rarer.
        time -= Minute * (1 + m_random.bounded(2 + i / 4));
        rows.push_back(inventRow(time));
    }
    show(std::move(rows));
}

ConversationModel::Row ConversationModel::inventRow(qint64 time)
{
    const int number = m_invented++;
    const bool isUnread = m_random.bounded(4) == 0;
    const QString message =
        isRightToLeft(number) ? pick(RightToLeftMessages, number / 53) : pick(Messages, m_random.bounded(16));
    // Few conversations have been left alone for long.
    const int unread = !isUnread ? 0 : m_random.bounded(8) == 0 ? 1 + m_random.bounded(150) : 1 + m_random.bounded(4);
    return {QStringLiteral("conversation-%1").arg(number).toStdString(),
            {{NameRole, nameOf(number)},
             {MessageRole, message},
             {TimeRole, time},
             {UnreadRole, unread},
             {PresenceRole, m_random.bounded(int(Active), Offline + 1)}}};
}

void ConversationModel::show(Rows rows)
{
    if (m_isSortedByTime)
        std::stable_sort(rows.begin(), rows.end(), [](const Row &a, const Row &b) { return timeOf(a) > timeOf(b); });
    else
        std::stable_sort(rows.begin(), rows.end(), [](const Row &a, const Row &b) {
            return nameOf(a).compare(nameOf(b), Qt::CaseInsensitive) < 0;
        });
    synchronize(std::move(rows));
}

QVariant ConversationModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    switch (role) {
    case Qt::DisplayRole: return BaseListModel::data(index, NameRole);
    case Qt::AccessibleTextRole: return accessibleText(index);
    case TimeTextRole:
        return timeText(QDateTime::fromMSecsSinceEpoch(BaseListModel::data(index, TimeRole).toLongLong()), m_now);
    default: return role < Qt::UserRole ? QVariant() : BaseListModel::data(index, role);
    }
}

QString ConversationModel::presenceName(int presence)
{
    switch (presence) {
    case Active: return tr("active");
    case Away: return tr("away");
    case Busy: return tr("busy");
    case Offline: return tr("offline");
    default: return QString();
    }
}

QString ConversationModel::clockText(const QTime &time)
{
    // Some locales, such as that of C, count seconds even here.
    const QLocale locale;
    return locale.toString(time, locale.timeFormat(QLocale::ShortFormat).remove(QLatin1String(":ss")));
}

QString ConversationModel::accessibleText(const QModelIndex &index) const
{
    QStringList parts {index.data(NameRole).toString(), presenceName(index.data(PresenceRole).toInt())};
    const int unread = index.data(UnreadRole).toInt();
    if (unread > 0)
        parts << tr("%1 unread").arg(QLocale().toString(unread));
    parts << index.data(TimeTextRole).toString() << index.data(MessageRole).toString();
    return parts.join(QStringLiteral(", "));
}
