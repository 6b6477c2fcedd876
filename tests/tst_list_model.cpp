#include "support/WarningLog.h"

#include <UiElements/models/BaseListModel.h>

#include <QAbstractItemModelTester>
#include <QListView>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QtTest>

#include <map>
#include <random>

using Row = BaseListModel::Row;
using Rows = BaseListModel::Rows;

class tst_ListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refused_data();
    void refused();
    void limit();
    void events_data();
    void events();
    void moveOnlyWithinTheRows();
    void undefinedRoles();
    void roleValues();
    void differences_data();
    void differences();
    void rowsStayWhileChanging();
    void random();
    void widgetKeepsItsPlace();
    void quickViewKeepsItsPlace();

private:
    static void compareWithReference(int ids, int largestBatch, int steps);
};

namespace {

const auto QtTestMode = QAbstractItemModelTester::FailureReportingMode::QtTest;

enum Role { Text = Qt::UserRole, Number, Extra, Far = Qt::UserRole + 100000 };

/// "a1 b" is a row "a" with the text "1" and a row "b" with an empty text.
Rows rows(const QString &text)
{
    Rows rows;
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words)
        rows.push_back({QString(word.at(0)).toStdString(), {{Text, word.mid(1)}}});
    return rows;
}

Rows rows(const char *text)
{
    return rows(QString::fromLatin1(text));
}

QString text(const BaseListModel &model)
{
    QStringList words;
    const Rows content = model.getRows();
    for (const Row &row : content)
        words << QString::fromStdString(row.first) + row.second.at(Text).toString();
    return words.join(QLatin1Char(' '));
}

/// What a model announces, as one text; roles count from Qt::UserRole.
class Events : public QObject
{
public:
    explicit Events(BaseListModel *model)
    {
        using Model = QAbstractItemModel;
        const auto note = [this](const char *name, std::initializer_list<int> numbers) {
            QString event = QLatin1String(name);
            for (const int number : numbers)
                event += QLatin1Char(' ') + QString::number(number);
            list << event;
        };
        connect(model, &Model::rowsAboutToBeInserted, this, [note](const QModelIndex &, int first, int last) {
            note("+?", {first, last});
        });
        connect(model, &Model::rowsInserted, this, [note](const QModelIndex &, int first, int last) {
            note("+", {first, last});
        });
        connect(model, &Model::rowsAboutToBeRemoved, this, [note](const QModelIndex &, int first, int last) {
            note("-?", {first, last});
        });
        connect(model, &Model::rowsRemoved, this, [note](const QModelIndex &, int first, int last) {
            note("-", {first, last});
        });
        connect(model, &Model::rowsMoved, this,
                [note](const QModelIndex &, int first, int last, const QModelIndex &, int to) {
                    note("move", {first, last, to});
                });
        connect(model, &Model::layoutChanged, this, [note] { note("layout", {}); });
        connect(model, &Model::modelAboutToBeReset, this, [note] { note("reset?", {}); });
        connect(model, &Model::modelReset, this, [note] { note("reset", {}); });
        connect(model, &Model::dataChanged, this,
                [this](const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles) {
                    QString event = QStringLiteral("data %1 %2").arg(first.row()).arg(last.row());
                    for (const int role : roles)
                        event += QStringLiteral(" r%1").arg(role - Qt::UserRole);
                    list << event;
                });
        connect(model, &BaseListModel::countChanged, this, [note](int count) { note("count", {count}); });
    }
    QString take() { return std::exchange(list, {}).join(QStringLiteral(", ")); }

private:
    QStringList list;
};

using Call = std::function<void(BaseListModel &)>;

/// Calls the overload for temporaries or the other.
enum Passing { Copied, Moved };
void call(BaseListModel &model, const QByteArray &operation, const Rows &batch, Passing passing, int row = 0)
{
    Rows copy = batch;
    if (operation == "append")
        passing == Moved ? model.appendRows(std::move(copy)) : model.appendRows(batch);
    else if (operation == "insert")
        passing == Moved ? model.insertRows(row, std::move(copy)) : model.insertRows(row, batch);
    else if (operation == "appendOrUpdate")
        passing == Moved ? model.appendOrUpdate(std::move(copy)) : model.appendOrUpdate(batch);
    else if (operation == "replace")
        passing == Moved ? model.replace(std::move(copy)) : model.replace(batch);
    else if (operation == "synchronize")
        passing == Moved ? model.synchronize(std::move(copy)) : model.synchronize(batch);
    else
        qFatal("No such operation");
}

bool isIndexRight(const BaseListModel &model)
{
    const Rows content = model.getRows();
    auto next = content.begin();
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.itemData(model.index(row)).isEmpty())
            continue; // a skipped row that is about to go
        if (next == content.end() || model.getRowIndex(next++->first) != row)
            return false;
    }
    return next == content.end();
}

/// Knows a model by its signals only: what they leave out is wrong here.
class Mirror : public QObject
{
public:
    explicit Mirror(BaseListModel *model)
        : m_model(model)
    {
        using Model = QAbstractItemModel;
        reload();
        connect(model, &Model::modelReset, this, &Mirror::reload);
        connect(model, &Model::rowsInserted, this, [this](const QModelIndex &, int first, int last) {
            for (int row = first; row <= last; ++row)
                m_rows.insert(m_rows.begin() + row, m_model->itemData(m_model->index(row)));
            inserted += last - first + 1;
            checkIndex();
        });
        connect(model, &Model::rowsRemoved, this, [this](const QModelIndex &, int first, int last) {
            m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
            removed += last - first + 1;
            checkIndex();
        });
        connect(model, &Model::rowsMoved, this,
                [this](const QModelIndex &, int first, int last, const QModelIndex &, int to) {
                    const std::vector<QMap<int, QVariant>> block(m_rows.begin() + first, m_rows.begin() + last + 1);
                    m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
                    m_rows.insert(m_rows.begin() + (to > first ? to - int(block.size()) : to), block.begin(),
                                  block.end());
                    moved += int(block.size());
                    checkIndex();
                });
        connect(model, &Model::layoutAboutToBeChanged, this, [this] {
            m_places.clear();
            for (int row = 0; row < m_model->rowCount(); ++row)
                m_places.emplace_back(m_model->index(row));
        });
        connect(model, &Model::layoutChanged, this, [this] {
            isReordered = true;
            const auto before = m_rows;
            for (std::size_t row = 0; row < before.size(); ++row)
                m_rows[std::size_t(m_places[row].row())] = before[row];
            checkIndex();
        });
        connect(model, &Model::dataChanged, this, &Mirror::onDataChanged);
        connect(model, &BaseListModel::countChanged, this, [this](int count) {
            if (count != m_model->rowCount())
                faults << QStringLiteral("count");
        });
    }

    bool isRight() const
    {
        bool same = faults.isEmpty() && isIndexRight(*m_model) && int(m_rows.size()) == m_model->rowCount();
        for (int row = 0; same && row < m_model->rowCount(); ++row)
            same = m_rows[std::size_t(row)] == m_model->itemData(m_model->index(row));
        return same;
    }

    QStringList faults;
    int inserted = 0, removed = 0, moved = 0;
    bool isReordered = false;

private:
    void reload()
    {
        m_rows.clear();
        for (int row = 0; row < m_model->rowCount(); ++row)
            m_rows.push_back(m_model->itemData(m_model->index(row)));
    }
    void onDataChanged(const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles)
    {
        QVector<int> useful;
        for (int row = first.row(); row <= last.row(); ++row) {
            auto &known = m_rows[std::size_t(row)];
            const auto before = known;
            const auto now = m_model->itemData(m_model->index(row));
            if (roles.isEmpty()) {
                known = now;
            }
            for (const int role : roles) {
                if (now.contains(role))
                    known[role] = now[role];
                else
                    known.remove(role);
                if (before.value(role) != now.value(role) || before.contains(role) != now.contains(role))
                    useful << role;
            }
            if (known == before)
                faults << QStringLiteral("row %1 did not change").arg(row);
        }
        for (const int role : roles) {
            if (!useful.contains(role))
                faults << QStringLiteral("role %1 did not change").arg(role);
        }
    }
    void checkIndex()
    {
        if (!isIndexRight(*m_model))
            faults << QStringLiteral("index");
    }

    BaseListModel *m_model;
    std::vector<QMap<int, QVariant>> m_rows;
    std::vector<QPersistentModelIndex> m_places;
};

/// The rules once more, written for shortness and not for speed.
struct Reference
{
    std::vector<std::pair<std::string, std::map<int, QVariant>>> rows;
    int doubled = 0;

    auto find(const std::string &id)
    {
        return std::find_if(rows.begin(), rows.end(), [&id](const auto &row) { return row.first == id; });
    }
    void insert(std::size_t at, const Rows &batch)
    {
        for (const Row &row : batch) {
            if (find(row.first) != rows.end())
                ++doubled;
            else
                rows.insert(rows.begin() + int(at++), {row.first, {row.second.begin(), row.second.end()}});
        }
    }
    Rows unique(const Rows &batch)
    {
        Rows kept;
        for (const Row &row : batch) {
            if (std::any_of(kept.begin(), kept.end(), [&row](const Row &other) { return other.first == row.first; }))
                ++doubled;
            else
                kept.push_back(row);
        }
        return kept;
    }
    void appendOrUpdate(const Rows &batch)
    {
        for (const Row &row : unique(batch)) {
            const auto found = find(row.first);
            if (found == rows.end()) {
                insert(rows.size(), {row});
                continue;
            }
            for (const auto &value : row.second)
                found->second[value.first] = value.second;
        }
    }
    void become(const Rows &batch)
    {
        const Rows content = unique(batch);
        rows.clear();
        insert(0, content);
    }
};

/// Rows of `before` that need not move to get the order of `after`.
int longestCommonOrder(const std::vector<std::string> &before, const std::vector<std::string> &after)
{
    std::vector<std::vector<int>> best(before.size() + 1, std::vector<int>(after.size() + 1));
    for (std::size_t i = 1; i <= before.size(); ++i) {
        for (std::size_t j = 1; j <= after.size(); ++j)
            best[i][j] =
                before[i - 1] == after[j - 1] ? best[i - 1][j - 1] + 1 : std::max(best[i - 1][j], best[i][j - 1]);
    }
    return best.back().back();
}

Rows numberedRows(int count)
{
    Rows rows;
    for (int i = 0; i < count; ++i)
        rows.push_back({"id" + std::to_string(i), {{Text, QString::number(i)}, {Number, i}}});
    return rows;
}

} // namespace

Q_DECLARE_METATYPE(Call)

void tst_ListModel::refused_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("warning");
    const auto add = [](const Call &call, const char *warning) {
        QTest::newRow(warning) << call << QString::fromLatin1(warning);
    };
    using M = BaseListModel;
    // clang-format off
    add([](M &m) { m.removeRows(0, 0); }, "BaseListModel::removeRows - invalid row! row: 0 count: 0 size: 3");
    add([](M &m) { m.removeRows(2, 2); }, "BaseListModel::removeRows - invalid row! row: 2 count: 2 size: 3");
    add([](M &m) { m.removeRows(-1, 2); }, "BaseListModel::removeRows - invalid row! row: -1 count: 2 size: 3");
    add([](M &m) { m.removeRows(3, 1); }, "BaseListModel::removeRows - invalid row! row: 3 count: 1 size: 3");
    add([](M &m) { m.removeRows(2, INT_MAX); },
        "BaseListModel::removeRows - invalid row! row: 2 count: 2147483647 size: 3");
    add([](M &m) { m.removeRows(0, 1, m.index(0)); },
        "BaseListModel::removeRows - invalid row! row: 0 count: 1 size: 0");
    add([](M &m) { m.insertRows(4, rows("x")); }, "BaseListModel::insertRows - invalid row! row: 4 size: 3");
    add([](M &m) { m.insertRows(-1, rows("x")); }, "BaseListModel::insertRows - invalid row! row: -1 size: 3");
    add([](M &m) { m.setRoleValueForRow("b", {{Qt::UserRole - 1, 1}}); }, "Role is less than Qt::UserRole! Role: 255");
    add([](M &m) { QVERIFY(!m.setData(m.index(1), 1, Qt::EditRole)); }, "Role is less than Qt::UserRole! Role: 2");
    add([](M &m) { m.setRoleValueForRow("b", {{Text, QVariant()}}); }, "Role value is invalid! Row:1 Role:256");
    add([](M &m) { QVERIFY(!m.setData(m.index(1), QVariant(), Text)); }, "Role value is invalid! Row:1 Role:256");
    add([](M &m) { QVERIFY(!m.setData(m.index(1), 1, Number)); },
        "[BaseListModel] - Role is undefined! Row:1 Role:257");
    add([](M &m) { m.setRoleValueForRow("x", {{Text, 1}}); },
        "BaseListModel::setRoleValueForRow - unknown row id: \"x\"");
    add([](M &m) { m.setRoleValueForRow(QModelIndex(), {{Text, 1}}); },
        "BaseListModel::setRoleValueForRow - invalid row! row: -1 size: 3");
    add([](M &m) { QVERIFY(!m.setData(QModelIndex(), 1, Text)); },
        "BaseListModel::setData - invalid row! row: -1 size: 3");
    add([](M &m) {
            M other;
            other.appendRows(rows("x y z"));
            QVERIFY(!m.data(other.index(1), Text).isValid() && m.itemData(other.index(1)).isEmpty());
            m.setRoleValueForRow(other.index(1), {{Text, 1}});
        }, "BaseListModel::setRoleValueForRow - invalid row! row: 1 size: 3");
    add([](M &m) { m.appendRows(Rows()); }, "");
    add([](M &m) { m.insertRows(1, Rows()); }, "");
    add([](M &m) { m.appendOrUpdate(Rows()); }, "");
    // clang-format on
}

void tst_ListModel::refused()
{
    QFETCH(Call, call);
    QFETCH(QString, warning);
    BaseListModel model;
    model.appendRows(rows("a1 b2 c3"));
    Events events(&model);
    WarningLog log;
    call(model);
    QCOMPARE(log.take().join(QLatin1Char('|')), warning);
    QCOMPARE(events.take(), QString());
    QCOMPARE(text(model), QStringLiteral("a1 b2 c3"));
}

void tst_ListModel::limit()
{
    const QStringList tooMany(QStringLiteral("Too many rows!"));
    BaseListModel model;
    model.appendRows(numberedRows(9998));
    Events events(&model);
    WarningLog log;
    for (const char *operation : {"append", "insert", "appendOrUpdate"}) {
        call(model, operation, rows("a b c"), Copied);
        QCOMPARE(log.take(), tooMany);
    }
    for (const char *operation : {"replace", "synchronize"}) {
        call(model, operation, numberedRows(10001), Copied);
        QCOMPARE(log.take(), tooMany);
    }
    QCOMPARE(events.take(), QString());
    QCOMPARE(model.getCount(), 9998);

    model.appendOrUpdate({{"id0", {}}, {"a", {}}, {"b", {}}}); // two of them are new
    QCOMPARE(model.getCount(), 10000);
    model.appendRows(rows("c"));
    QCOMPARE(log.take(), tooMany);
    model.synchronize(numberedRows(10000));
    model.replace(numberedRows(10000));
    QCOMPARE(log.take(), QStringList());
    model.removeRows(0, 10000);
    model.replace(numberedRows(10001));
    QCOMPARE(log.take(), tooMany);
    QCOMPARE(model.getCount(), 0);
}

void tst_ListModel::events_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("announced");
    QTest::addColumn<QString>("skipped");
    const auto add = [](const char *name, const char *before, const Call &call, const char *after,
                        const char *announced, const char *skipped = "") {
        QTest::newRow(name) << QString::fromLatin1(before) << call << QString::fromLatin1(after)
                            << QString::fromLatin1(announced) << QString::fromLatin1(skipped);
    };
    using M = BaseListModel;
    // clang-format off
    add("append", "a", [](M &m) { m.appendRows(rows("b c")); }, "a b c", "+? 1 2, + 1 2, count 3");
    add("insert", "a b", [](M &m) { m.insertRows(1, rows("c")); }, "a c b", "+? 1 1, + 1 1, count 3");
    add("remove", "a b c", [](M &m) { QVERIFY(m.removeRows(0, 2)); }, "c", "-? 0 1, - 0 1, count 1");
    add("clear", "a b", [](M &m) { m.clear(); }, "", "reset?, reset, count 0");
    add("clear nothing", "", [](M &m) { m.clear(); }, "", "");
    add("update", "a1 b2 c3 d4 e5", [](M &m) { m.appendOrUpdate(rows("x9 d0 e0 b0 a1 y8")); },
        "a1 b0 c3 d0 e0 x9 y8", "data 1 1 r0, data 3 4 r0, +? 5 6, + 5 6, count 7");
    add("update only", "a1 b2", [](M &m) { m.appendOrUpdate(rows("b3")); }, "a1 b3", "data 1 1 r0");
    add("replace by nothing", "a b", [](M &m) { m.replace(Rows()); }, "", "reset?, reset, count 0");
    add("replace nothing", "", [](M &m) { m.replace(rows("a b")); }, "a b", "+? 0 1, + 0 1, count 2");
    add("replace by fewer", "a1 b2 c3 d4", [](M &m) { m.replace(rows("a1 b9")); }, "a1 b9",
        "-? 2 3, - 2 3, count 2, data 1 1 r0, count 2");
    add("replace by more", "a1 b2", [](M &m) { m.replace(rows("a9 b2 c3 d4")); }, "a9 b2 c3 d4",
        "+? 2 3, + 2 3, data 0 0 r0, count 4");
    add("replace joins", "a1 b2 c3 d4 e5", [](M &m) { m.replace(rows("a0 b0 c3 d0 e0")); }, "a0 b0 c3 d0 e0",
        "data 0 1 r0, data 3 4 r0, count 5");
    add("replace by the same", "a1 b2", [](M &m) { m.replace(rows("a1 b2")); }, "a1 b2", "count 2");
    add("replace by other rows of the same values", "a1 b1 c1", [](M &m) { m.replace(rows("a1 c1 b1")); },
        "a1 c1 b1", "data 1 2, count 3");
    add("replace shifts", "a1 b2", [](M &m) { m.replace(rows("x0 a1 b2")); }, "x0 a1 b2",
        "+? 2 2, + 2 2, data 0 1, count 3");
    add("synchronize with nothing", "a", [](M &m) { m.synchronize(Rows()); }, "", "reset?, reset, count 0");
    add("synchronize with the same", "a1 b2", [](M &m) { m.synchronize(rows("a1 b2")); }, "a1 b2", "");
    add("synchronize: to the front", "a b c d", [](M &m) { m.synchronize(rows("d a b c")); }, "d a b c",
        "move 3 3 0");
    add("synchronize: to the end", "a b c d", [](M &m) { m.synchronize(rows("b c d a")); }, "b c d a", "move 0 0 4");
    add("synchronize: neighbors together", "a b c d e f g", [](M &m) { m.synchronize(rows("a d e f g b c")); },
        "a d e f g b c", "move 1 2 7");
    add("synchronize: all at once", "a1 b2 c3 d4 e5", [](M &m) { m.synchronize(rows("x0 e5 b9 c3 y0 z0")); },
        "x0 e5 b9 c3 y0 z0",
        "-? 3 3, - 3 3, -? 0 0, - 0 0, move 2 2 0, +? 0 0, + 0 0, +? 4 5, + 4 5, data 2 2 r0, count 6");
    add("replace: another row and a changed one", "a1 b2", [](M &m) { m.replace(rows("x1 b9")); }, "x1 b9",
        "data 0 1, count 2");
    add("move and remove", "a b c d e f", [](M &m) { m.move(1, 4, 2); m.removeRows(0, 1); }, "d e f b c",
        "move 1 2 6, -? 0 0, - 0 0, count 5");
    // Rows that are skipped never stay in a proxy.
    add("append, doubled", "a1 b2 c3", [](M &m) { m.appendRows(rows("x1 a9 x2 y3")); }, "a1 b2 c3 x1 y3",
        "+? 3 6, + 3 6, -? 5 6, - 5 6, count 5", "a x");
    add("insert, doubled", "a1 b2 c3", [](M &m) { m.insertRows(1, rows("x1 a9 x2 y3")); }, "a1 x1 y3 b2 c3",
        "+? 1 4, + 1 4, -? 3 4, - 3 4, count 5", "a x");
    add("insert, all doubled", "a1 b2 c3", [](M &m) { m.insertRows(1, rows("a9 c9")); }, "a1 b2 c3",
        "+? 1 2, + 1 2, -? 1 2, - 1 2, count 3", "a c");
    add("update, doubled", "a1 b2 c3", [](M &m) { m.appendOrUpdate(rows("x1 a9 x2 a8")); }, "a9 b2 c3 x1",
        "data 0 0 r0, +? 3 3, + 3 3, count 4", "x a");
    add("replace, doubled", "a1 b2 c3", [](M &m) { m.replace(rows("c1 a9 c2 a3")); }, "c1 a9",
        "-? 2 2, - 2 2, count 2, data 0 1, count 2", "c a");
    add("synchronize, doubled", "a1 b2 c3", [](M &m) { m.synchronize(rows("c1 x9 c2 x3")); }, "c1 x9",
        "-? 0 1, - 0 1, +? 1 1, + 1 1, data 0 0 r0, count 2", "c x");
    // clang-format on
}

void tst_ListModel::events()
{
    QFETCH(QString, before);
    QFETCH(Call, call);
    QFETCH(QString, after);
    QFETCH(QString, announced);
    QFETCH(QString, skipped);
    WarningLog log;
    BaseListModel model;
    model.appendRows(rows(before));
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.setSortRole(Text);
    proxy.setFilterRole(Text);
    proxy.sort(0, Qt::DescendingOrder);
    proxy.rowCount(); // from now on it keeps a list of rows
    QAbstractItemModelTester tester(&model, QtTestMode);
    QAbstractItemModelTester proxyTester(&proxy, QtTestMode);
    log.take();
    Events events(&model);
    call(model);
    QCOMPARE(text(model), after);
    QCOMPARE(events.take(), announced);
    QVERIFY(isIndexRight(model));
    QString warnings = log.take().filter(QStringLiteral("Skipping")).join(QLatin1Char(' '));
    warnings.remove(QStringLiteral("Row id: ")).remove(QStringLiteral(" is not unique! Skipping row"));
    QCOMPARE(warnings, skipped);
    QStringList sorted, expected;
    for (int row = 0; row < proxy.rowCount(); ++row)
        sorted << proxy.index(row, 0).data(Text).toString();
    for (int row = 0; row < model.rowCount(); ++row)
        expected << model.index(row).data(Text).toString();
    std::sort(expected.rbegin(), expected.rend());
    QCOMPARE(sorted, expected);
}

void tst_ListModel::moveOnlyWithinTheRows()
{
    // All ranges around six rows, against the plain way to do it.
    for (int from = -1; from <= 7; ++from) {
        for (int to = -1; to <= 7; ++to) {
            for (int count = -1; count <= 7; ++count) {
                BaseListModel model;
                model.appendRows(rows("a b c d e f"));
                Mirror mirror(&model);
                const QPersistentModelIndex c = model.index(2);
                WarningLog log;
                model.move(from, to, count);
                QString expected = QStringLiteral("abcdef");
                const bool isValid = from >= 0 && to >= 0 && count >= 1 && from + count <= 6 && to + count <= 6;
                if (isValid) {
                    const QString block = expected.mid(from, count);
                    expected.remove(from, count).insert(to, block);
                }
                QCOMPARE(text(model).remove(QLatin1Char(' ')), expected);
                QCOMPARE(log.take().size(), isValid ? 0 : 1);
                QCOMPARE(c.row(), expected.indexOf(QLatin1Char('c')));
                QVERIFY(mirror.isRight());
            }
        }
    }
}

void tst_ListModel::undefinedRoles()
{
    BaseListModel model;
    model.appendRows({{"a", {{Text, 1}, {Far, 5}, {Extra, QVariant()}}}, {"b", {{Number, 2}}}});
    model.setObjectName(QStringLiteral("people"));
    WarningLog log;
    QCOMPARE(model.index(0).data(Far).toInt(), 5);
    QCOMPARE(model.index(0).data(Extra), QVariant()); // held, though it is nothing
    QCOMPARE(log.take(), QStringList());
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(model.index(1).data(Text), QVariant());
        QCOMPARE(model.index(0).data(INT_MAX), QVariant());
        QCOMPARE(log.take(),
                 QStringList({QStringLiteral("[people] - Role is undefined! Row:1 Role:256"),
                              QStringLiteral("[people] - Role is undefined! Row:0 Role:2147483647")}));
    }
    for (const int role : {int(Qt::DisplayRole), Qt::UserRole - 1, -1}) {
        QCOMPARE(model.index(0).data(role), QVariant());
        QCOMPARE(log.take(), QStringList(QStringLiteral("[people] - Role is undefined! Row:0 Role:%1").arg(role)));
        QCOMPARE(model.index(1).data(role), QVariant());
        QCOMPARE(log.take(), QStringList());
    }
    QCOMPARE(model.data(QModelIndex(), Text), QVariant());
    QCOMPARE(log.take(), QStringList());
}

void tst_ListModel::roleValues()
{
    BaseListModel model;
    model.appendRows(rows("a1 b2"));
    Events events(&model);
    WarningLog log;
    model.setRoleValueForRow("b", {{Text, 3}, {Extra, 4}, {Qt::DisplayRole, 5}, {Number, QVariant()}});
    QCOMPARE(events.take(), QStringLiteral("data 1 1 r0 r2"));
    QCOMPARE(log.take().size(), 2);
    QCOMPARE(model.getRowById("b"), Row("b", {{Text, 3}, {Extra, 4}}));
    QVERIFY(model.setData(model.index(1), 5, Extra));
    QCOMPARE(events.take(), QStringLiteral("data 1 1 r2"));
    QCOMPARE(model.getRowById("x"), Row());

    // Low roles never get in with a batch.
    model.appendRows({{"c", {{Text, 1}, {Qt::DisplayRole, 2}}}, {"d", {{Qt::DisplayRole, 2}}}});
    QCOMPARE(log.take(), QStringList(QStringLiteral("Role is less than Qt::UserRole! Role: 0")));
    QCOMPARE(model.getRowById("c"), Row("c", {{Text, 1}}));
    QCOMPARE(model.getCount(), 4);
    model.clear();

    // An update keeps the roles that it does not name; the others drop them.
    const Row full("a", {{Text, 1}, {Number, QVariant()}, {Extra, 3}, {Far, 4}});
    for (const Passing passing : {Copied, Moved}) {
        model.appendRows({full});
        events.take();
        call(model, "appendOrUpdate", {{"a", {{Extra, QVariant()}}}}, passing);
        QCOMPARE(model.getRowById("a"), Row("a", {{Text, 1}, {Number, QVariant()}, {Extra, QVariant()}, {Far, 4}}));
        QCOMPARE(events.take(), QStringLiteral("data 0 0 r2"));
        call(model, "synchronize", {{"a", {{Extra, QVariant()}, {Far, 5}}}}, passing);
        QCOMPARE(model.getRowById("a"), Row("a", {{Extra, QVariant()}, {Far, 5}}));
        QCOMPARE(events.take(), QStringLiteral("data 0 0 r0 r1 r100000"));
        call(model, "replace", {full}, passing);
        QCOMPARE(model.getRowById("a"), full);
        QCOMPARE(events.take(), QStringLiteral("data 0 0 r0 r1 r2 r100000, count 1"));
        model.clear();
    }
}

void tst_ListModel::differences_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after");
    QTest::addColumn<bool>("differs");
    QTest::newRow("number and text") << QVariant(1) << QVariant(QStringLiteral("1")) << true;
    QTest::newRow("next millisecond") << QVariant(1.7e12) << QVariant(1.7e12 + 1) << true;
    QTest::newRow("nearly the same float") << QVariant(1.f) << QVariant(1.000001f) << true;
    QTest::newRow("in a list") << QVariant(QVariantList {1, 1.7e12}) << QVariant(QVariantList {1, 1.7e12 + 1}) << true;
    QTest::newRow("in a map") << QVariant(QVariantMap {{QStringLiteral("a"), 1}})
                              << QVariant(QVariantMap {{QStringLiteral("a"), 1.0}}) << true;
    QTest::newRow("key of a map") << QVariant(QVariantMap {{QStringLiteral("a"), 1}})
                                  << QVariant(QVariantMap {{QStringLiteral("b"), 1}}) << true;
    QTest::newRow("null text") << QVariant(QString()) << QVariant(QString(QLatin1String(""))) << true;
    const QDateTime noon(QDate(2024, 5, 6), QTime(12, 0), Qt::UTC);
    QTest::newRow("zone") << QVariant(noon) << QVariant(noon.toOffsetFromUtc(3600)) << true;
    QTest::newRow("equal time") << QVariant(noon) << QVariant(noon.addDays(1).addDays(-1)) << false;
    QTest::newRow("in a hash") << QVariant(QVariantHash {{QStringLiteral("a"), 1}})
                               << QVariant(QVariantHash {{QStringLiteral("a"), 1.0}}) << true;
    QTest::newRow("more in a map") << QVariant(QVariantMap()) << QVariant(QVariantMap {{QStringLiteral("a"), 1}})
                                   << true;
    QTest::newRow("null number") << QVariant(QVariant::LongLong) << QVariant(0LL) << true;
    QTest::newRow("nothing") << QVariant(1) << QVariant() << true;
    QTest::newRow("something") << QVariant() << QVariant(1) << true;
    QTest::newRow("still nothing") << QVariant() << QVariant() << false;
    QTest::newRow("equal text") << QVariant(QStringLiteral("abc")) << QVariant(QString::fromLatin1("abc")) << false;
    QTest::newRow("equal list") << QVariant(QVariantList {1, QStringLiteral("b")})
                                << QVariant(QVariantList {1, QString::fromLatin1("b")}) << false;
    QTest::newRow("no number") << QVariant(qQNaN()) << QVariant(qQNaN()) << false;
}

void tst_ListModel::differences()
{
    QFETCH(QVariant, before);
    QFETCH(QVariant, after);
    QFETCH(bool, differs);
    BaseListModel model;
    model.appendRows({{"a", {{Text, before}}}});
    Events events(&model);
    model.synchronize({{"a", {{Text, after}}}});
    QCOMPARE(events.take(), differs ? QStringLiteral("data 0 0 r0") : QString());
    QCOMPARE(model.index(0).data(Text).userType(), after.userType());
}

void tst_ListModel::rowsStayWhileChanging()
{
    const auto interfere = [](BaseListModel &model) {
        model.appendRows(rows("z"));
        model.removeRows(0, 1);
        model.move(0, 1, 1);
        model.clear();
        model.replace(rows("q"));
        model.synchronize(rows("q"));
        model.appendOrUpdate(rows("q"));
        model.setRoleNames({});
        model.setRoleValueForRow("b", {{Extra, 1}});
    };
    const std::vector<std::pair<Call, QString>> calls {
        {[](BaseListModel &m) { m.appendRows(rows("d a")); }, QStringLiteral("a1 b2 c3 d")},
        {[](BaseListModel &m) { m.appendOrUpdate(rows("a9 c8 d")); }, QStringLiteral("a9 b2 c8 d")},
        {[](BaseListModel &m) { m.replace(rows("b9 a8")); }, QStringLiteral("b9 a8")},
        {[](BaseListModel &m) { m.replace(rows("a9 b2 c8 d")); }, QStringLiteral("a9 b2 c8 d")},
        {[](BaseListModel &m) { m.synchronize(rows("c8 a9 d")); }, QStringLiteral("c8 a9 d")},
        {[](BaseListModel &m) { m.removeRows(0, 1); }, QStringLiteral("b2 c3")},
        {[](BaseListModel &m) { m.move(0, 2, 1); }, QStringLiteral("b2 c3 a1")},
        {[](BaseListModel &m) { m.clear(); }, QString()},
    };
    for (const auto &[call, after] : calls) {
        WarningLog log;
        BaseListModel model;
        model.appendRows(rows("a1 b2 c3"));
        int told = 0;
        bool isInside = false;
        const auto onSignal = [&] {
            if (std::exchange(isInside, true))
                return; // told of the value that it changes
            ++told;
            interfere(model);
            isInside = false;
        };
        using Model = QAbstractItemModel;
        // Connected before the proxy: what they changed, it would learn in the wrong order.
        connect(&model, &Model::rowsInserted, &model, onSignal);
        connect(&model, &Model::rowsRemoved, &model, onSignal);
        connect(&model, &Model::dataChanged, &model, onSignal);
        connect(&model, &Model::rowsMoved, &model, onSignal);
        connect(&model, &Model::modelReset, &model, onSignal);
        QSortFilterProxyModel proxy;
        proxy.setSourceModel(&model);
        proxy.setSortRole(Text);
        proxy.sort(0);
        QAbstractItemModelTester tester(&proxy, QtTestMode);
        call(model);
        QCOMPARE(text(model), after);
        QVERIFY(told > 0);
        const QStringList refused = log.take().filter(QStringLiteral("Ignored"));
        QVERIFY(refused.size() >= told * (after.isEmpty() ? 4 : 7));
        QCOMPARE(proxy.rowCount(), model.rowCount());
        QVERIFY(isIndexRight(model));
        // Everything is possible when it is done.
        model.disconnect(&model);
        connect(&model, &BaseListModel::countChanged, &model, [&model](int count) {
            if (count > 1)
                model.removeRows(0, count - 1);
        });
        model.appendRows(rows("x7 y8"));
        QCOMPARE(text(model), QStringLiteral("y8"));
        QCOMPARE(proxy.rowCount(), 1);
    }
}

void tst_ListModel::random()
{
    compareWithReference(40, 12, 4000);
    if (!QTest::currentTestFailed())
        compareWithReference(700, 250, 150);
}

void tst_ListModel::compareWithReference(int ids, int largestBatch, int steps)
{
    std::mt19937 random(20);
    const auto upTo = [&random](int most) {
        return int(random() % unsigned(most + 1));
    };
    int version = 0;
    const auto someRow = [&](int id) {
        Row row("row " + std::to_string(id), {{Text, QStringLiteral("text %1").arg(id)}, {Number, upTo(9)}});
        if (upTo(3) == 0)
            row.second[Extra] = ++version;
        return row;
    };
    const auto someRows = [&] {
        Rows batch;
        for (int i = upTo(largestBatch); i > 0; --i)
            batch.push_back(someRow(upTo(ids - 1)));
        return batch;
    };

    WarningLog log;
    BaseListModel model;
    Reference reference;
    Mirror mirror(&model);
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.setSortRole(Number);
    proxy.sort(0);
    QAbstractItemModelTester tester(&model, QtTestMode);
    QAbstractItemModelTester proxyTester(&proxy, QtTestMode);
    int doubled = 0;
    for (int step = 0; step < steps; ++step) {
        const int count = model.getCount();
        const Passing passing = upTo(1) ? Copied : Moved;
        const int operation = upTo(9);
        mirror.inserted = mirror.removed = mirror.moved = 0;
        mirror.isReordered = false;
        std::vector<std::string> before, after;
        for (const auto &row : reference.rows)
            before.push_back(row.first);
        if (operation == 0) {
            const Rows batch = someRows();
            call(model, "append", batch, passing);
            reference.insert(reference.rows.size(), batch);
        } else if (operation == 1) {
            const Rows batch = someRows();
            const int row = upTo(count);
            call(model, "insert", batch, passing, row);
            reference.insert(std::size_t(row), batch);
        } else if (operation == 2) {
            const Rows batch = someRows();
            call(model, "appendOrUpdate", batch, passing);
            reference.appendOrUpdate(batch);
        } else if (operation == 3) {
            const Rows batch = someRows();
            call(model, "replace", batch, passing);
            reference.become(batch);
        } else if (operation == 4 || operation == 5) {
            // Mostly what is there, with some rows moved, gone, new or changed.
            Rows batch = model.getRows();
            for (int i = upTo(4); i > 0 && !batch.empty(); --i) {
                const int row = upTo(int(batch.size()) - 1);
                const int to = upTo(int(batch.size()) - 1);
                std::swap(batch[std::size_t(row)], batch[std::size_t(to)]);
                batch.insert(batch.begin() + to, someRow(upTo(ids - 1)));
                batch.erase(batch.begin() + upTo(int(batch.size()) - 1));
            }
            if (upTo(4) == 0)
                std::shuffle(batch.begin(), batch.end(), random);
            call(model, "synchronize", batch, passing);
            reference.become(batch);
        } else if (operation == 6 && count > 0) {
            const int row = upTo(count - 1);
            const int gone = 1 + upTo(std::min(count - row - 1, largestBatch));
            QVERIFY(model.removeRows(row, gone));
            reference.rows.erase(reference.rows.begin() + row, reference.rows.begin() + row + gone);
        } else if (operation == 7 && count > 0) {
            const int from = upTo(count - 1);
            const int moved = 1 + upTo(count - from - 1);
            const int to = upTo(count - moved);
            model.move(from, to, moved);
            const decltype(reference.rows) block(reference.rows.begin() + from, reference.rows.begin() + from + moved);
            reference.rows.erase(reference.rows.begin() + from, reference.rows.begin() + from + moved);
            reference.rows.insert(reference.rows.begin() + to, block.begin(), block.end());
        } else if (operation == 8 && count > 0) {
            auto &row = reference.rows[std::size_t(upTo(count - 1))];
            row.second[Extra] = ++version;
            model.setRoleValueForRow(row.first, {{Extra, version}});
        } else if (upTo(40) == 0) {
            model.clear();
            reference.rows.clear();
        }

        QCOMPARE(model.getCount(), int(reference.rows.size()));
        for (int row = 0; row < model.getCount(); ++row) {
            const auto &expected = reference.rows[std::size_t(row)];
            QCOMPARE(model.getRowIndex(expected.first), row);
            QCOMPARE(model.itemData(model.index(row)).toStdMap(), expected.second);
            after.push_back(expected.first);
        }
        for (int id = 0; id < ids; ++id) {
            const std::string name = "row " + std::to_string(id);
            QCOMPARE(model.hasRow(name), reference.find(name) != reference.rows.end());
        }
        QCOMPARE(mirror.faults.join(QLatin1Char('|')), QString());
        QVERIFY2(mirror.isRight(), qPrintable(QStringLiteral("step %1, operation %2").arg(step).arg(operation)));
        QCOMPARE(proxy.rowCount(), model.rowCount());
        for (int row = 1; row < proxy.rowCount(); ++row)
            QVERIFY(proxy.index(row - 1, 0).data(Number).toInt() <= proxy.index(row, 0).data(Number).toInt());
        const QStringList warnings = log.take();
        doubled += int(std::count_if(warnings.begin(), warnings.end(), [](const QString &warning) {
            return warning.endsWith(QLatin1String("is not unique! Skipping row"));
        }));
        QCOMPARE(doubled, reference.doubled);
        if (operation == 4 || operation == 5) {
            const auto isGone = [&reference](const std::string &id) {
                return reference.find(id) == reference.rows.end();
            };
            const int gone = int(std::count_if(before.begin(), before.end(), isGone));
            if (!after.empty()) { // that is a reset
                QCOMPARE(mirror.removed, gone);
                QCOMPARE(mirror.inserted, int(after.size()) - (int(before.size()) - gone));
                if (!mirror.isReordered)
                    QCOMPARE(mirror.moved, int(before.size()) - gone - longestCommonOrder(before, after));
            }
        }
    }
}

void tst_ListModel::widgetKeepsItsPlace()
{
    for (const bool isReversed : {false, true}) { // few moves, and a new layout
        WarningLog log;
        BaseListModel model;
        model.appendRows(numberedRows(1000));
        QAbstractItemModelTester tester(&model, QtTestMode);
        log.take();
        Mirror mirror(&model);
        QListView view;
        view.setModel(&model);
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        view.setUniformItemSizes(true);
        view.resize(200, 300);
        view.show();
        view.setCurrentIndex(model.index(500));
        view.selectionModel()->select(model.index(510), QItemSelectionModel::Select);
        view.scrollTo(model.index(500), QAbstractItemView::PositionAtTop);
        QCoreApplication::processEvents();
        const int scrolled = view.verticalScrollBar()->value();
        QVERIFY(scrolled > 0);

        Rows batch = numberedRows(1000);
        if (isReversed)
            std::reverse(batch.begin(), batch.end());
        batch[10].second[Number] = -1;
        batch.erase(batch.begin() + 700);
        batch.push_back({"new", {{Text, 1}, {Number, 2}}});
        std::rotate(batch.begin() + 800, batch.begin() + 810, batch.begin() + 820);
        model.synchronize(batch);
        QVERIFY(model.getRows() == batch && mirror.isRight());
        QCOMPARE(mirror.isReordered, isReversed);
        QCoreApplication::processEvents();
        QCOMPARE(view.currentIndex().data(Text).toString(), QStringLiteral("500"));
        QStringList selected;
        const QModelIndexList indexes = view.selectionModel()->selectedIndexes();
        for (const QModelIndex &index : indexes)
            selected << index.data(Text).toString();
        selected.sort();
        QCOMPARE(selected, QStringList({QStringLiteral("500"), QStringLiteral("510")}));
        QCOMPARE(view.verticalScrollBar()->value(), scrolled);
    }
}

void tst_ListModel::quickViewKeepsItsPlace()
{
    WarningLog log;
    BaseListModel model;
    model.setRoleNames({{Text, "text"}, {Number, "number"}});
    model.appendRows(numberedRows(300));
    QQuickView view;
    view.engine()->rootContext()->setContextProperty(QStringLiteral("people"), &model);
    QQmlComponent component(view.engine());
    component.setData("import QtQuick 2.15\n"
                      "ListView { width: 100; height: 200; model: people; currentIndex: 50\n"
                      "  property int rows: people.count\n"
                      "  property string current: currentItem ? currentItem.shown : ''\n"
                      "  delegate: Item { width: 100; height: 20; property string shown: text + '/' + number } }",
                      QUrl());
    QObject *root = component.create();
    QVERIFY2(root, qPrintable(component.errorString()));
    view.setContent(QUrl(), &component, root);
    view.show();
    QTRY_COMPARE(root->property("current").toString(), QStringLiteral("50/50"));
    Rows batch = numberedRows(300);
    batch[50].second[Number] = 9;
    batch.erase(batch.begin() + 20, batch.begin() + 25);
    std::rotate(batch.begin(), batch.end() - 3, batch.end()); // three come to the front
    batch.insert(batch.begin() + 1, {"new", {{Text, 1}, {Number, 2}}});
    model.synchronize(batch);
    QTRY_COMPARE(root->property("currentIndex").toInt(), 49);
    QCOMPARE(root->property("current").toString(), QStringLiteral("50/9"));
    QCOMPARE(root->property("rows").toInt(), 296);
    QCOMPARE(log.take(), QStringList());
}

QTEST_MAIN(tst_ListModel)
#include "tst_list_model.moc"
