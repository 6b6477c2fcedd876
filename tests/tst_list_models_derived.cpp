#include "support/WarningLog.h"

#include <UiElements/models/EmptyStateBaseListModel.h>
#include <UiElements/models/LazyLoadedListModel.h>
#include <UiElements/models/OverflowListProxyModel.h>
#include <UiElements/models/SmallListModel.h>

#include <QAbstractItemModelTester>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QtTest>

#include <deque>
#include <memory>
#include <random>
#include <set>

class tst_ListModelsDerived : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void overflow();
    void overflowFollowsTheSource();
    void smallList();
    void smallListEvents_data();
    void smallListEvents();
    void emptyState();

    void pages_data();
    void pages();
    void pagingConfig();
    void farthestPages();
    void scrolling_data();
    void scrolling();
    void answers();
    void places();
    void sizes();
    void unreliableServer();
};

namespace {

const auto QtTestMode = QAbstractItemModelTester::FailureReportingMode::QtTest;

QString letters(const QAbstractItemModel &model)
{
    QString text;
    for (int row = 0; row < model.rowCount(); ++row)
        text += model.index(row, 0).data().toString();
    return text;
}

/// An item that is counted.
struct Item : QStandardItem
{
    explicit Item(int itemNumber)
        : number(itemNumber)
    {
        ++alive;
    }
    ~Item() override { --alive; }
    const int number;
    static int alive;
};
int Item::alive = 0;

QVector<QStandardItem *> items(int first, int count)
{
    QVector<QStandardItem *> list;
    for (int i = 0; i < count; ++i)
        list << new Item(first + i);
    return list;
}

int indexAt(const LazyLoadedListModel &model, int index)
{
    const auto *item = static_cast<const Item *>(model.getItemAt(index));
    return item ? item->number : -1;
}

QString numbers(const QVector<int> &list)
{
    QStringList words;
    for (const int number : list)
        words << QString::number(number);
    return words.join(QLatin1Char(' '));
}

/// What was asked for since the last call.
QString takeRequests(QSignalSpy &spy)
{
    QStringList requests;
    for (const QVariantList &arguments : qAsConst(spy))
        requests << numbers(arguments.at(0).value<QVector<int>>());
    spy.clear();
    return requests.join(QLatin1Char('|'));
}

} // namespace

void tst_ListModelsDerived::overflow()
{
    QStringListModel source(QString(QStringLiteral("abcdef")).split(QString(), Qt::SkipEmptyParts));
    OverflowListProxyModel proxy(3, nullptr);
    QAbstractItemModelTester tester(&proxy, QtTestMode);
    proxy.setSourceModel(&source);
    QCOMPARE(letters(proxy), QStringLiteral("ef"));
    QSignalSpy changed(&proxy, &OverflowListProxyModel::firstVisibleIndexChanged);
    QSignalSpy removed(&proxy, &QAbstractItemModel::rowsRemoved);
    proxy.setFirstVisibleIndex(3);
    QCOMPARE(changed.count() + removed.count(), 0);
    proxy.setFirstVisibleIndex(4);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(letters(proxy), QStringLiteral("f"));
    proxy.setFirstVisibleIndex(-1);
    QCOMPARE(letters(proxy), QStringLiteral("abcdef"));

    OverflowListProxyModel byDefault;
    byDefault.setSourceModel(&source);
    QCOMPARE(letters(byDefault), QStringLiteral("bcdef"));
    byDefault.unsetSourceModel();
    QVERIFY(!byDefault.sourceModel() || byDefault.sourceModel() != &source);
    QCOMPARE(byDefault.rowCount(), 0);
    source.removeRows(0, 1); // of no concern any more

    auto gone = std::make_unique<QStringListModel>(source.stringList());
    byDefault.setSourceModel(gone.get());
    gone.reset();
    QCOMPARE(byDefault.rowCount(), 0);
    byDefault.setSourceModel(&source);
    byDefault.setSourceModel(&source);
    source.insertRows(0, 1);
    QCOMPARE(byDefault.rowCount(), 5);
}

void tst_ListModelsDerived::overflowFollowsTheSource()
{
    std::mt19937 random(3);
    BaseListModel source;
    OverflowListProxyModel proxy;
    proxy.setSourceModel(&source);
    WarningLog log;
    QAbstractItemModelTester tester(&proxy, QtTestMode);
    QSignalSpy reset(&proxy, &QAbstractItemModel::modelReset);
    int next = 0;
    for (int step = 0; step < 2000; ++step) {
        const int count = source.getCount();
        switch (random() % 5) {
        case 0:
        case 1: {
            BaseListModel::Rows batch;
            for (auto i = random() % 4; i > 0; --i)
                batch.push_back({std::to_string(++next), {{Qt::UserRole, next}}});
            source.insertRows(int(random() % unsigned(count + 1)), batch);
            break;
        }
        case 2:
            if (count > 5)
                source.removeRows(int(random() % unsigned(count - 3)), 1 + int(random() % 3));
            break;
        case 3:
            if (count > 5)
                source.move(int(random() % unsigned(count - 2)), int(random() % unsigned(count - 2)), 2);
            break;
        default: proxy.setFirstVisibleIndex(int(random() % 12) - 2);
        }
        const int first = qMax(0, proxy.firstVisibleIndex() + 1);
        QCOMPARE(proxy.rowCount(), qMax(0, source.getCount() - first));
        for (int row = 0; row < proxy.rowCount(); ++row)
            QCOMPARE(proxy.index(row, 0).data(Qt::UserRole), source.index(first + row).data(Qt::UserRole));
    }
    QCOMPARE(reset.count(), 0);
}

void tst_ListModelsDerived::smallList()
{
    SmallListModel model({{Qt::UserRole, "name"}}, nullptr, QStringLiteral("Choices"));
    QAbstractItemModelTester tester(&model, QtTestMode);
    model.add({{{Qt::DisplayRole, 1}, {Qt::UserRole, 2}}, {{Qt::UserRole, 3}}});
    WarningLog log;
    QCOMPARE(model.roleNames().value(Qt::UserRole), QByteArray("name"));
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Choices"));
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::FontRole).isValid()); // a header view takes it for a font
    QCOMPARE(model.data(1, Qt::UserRole).toInt(), 3);
    QVERIFY(!model.data(1, Qt::DisplayRole).isValid() && !model.data(2, Qt::UserRole).isValid()
            && !model.data(-1, Qt::UserRole).isValid());
    QCOMPARE(log.take(), QStringList());

    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(model.setData(model.index(0), 5, Qt::DisplayRole));
    QCOMPARE(changed.count(), 1);
    QVERIFY(!model.setData(model.index(1), 5, Qt::DisplayRole));
    QCOMPARE(log.take(), QStringList(QStringLiteral("[SmallListModel] - Role is undefined! Row:1 Role:0")));
    const QStringListModel other({QStringLiteral("x")});
    for (const QModelIndex &index : {QModelIndex(), other.index(0)}) {
        QVERIFY(!model.setData(index, 5, Qt::UserRole));
        QVERIFY(!model.data(index, Qt::UserRole).isValid());
        QCOMPARE(log.take().size(), 1);
    }
    QCOMPARE(changed.count(), 1);
    QVERIFY(!model.data(1, Qt::DisplayRole).isValid());

    connect(&model, &QAbstractItemModel::dataChanged, &model, &SmallListModel::clear);
    model.replace({{{Qt::UserRole, 7}}, {{Qt::UserRole, 8}}});
    QCOMPARE(model.data(1, Qt::UserRole).toInt(), 8);
    QCOMPARE(model.rowCount(), 2);
}

void tst_ListModelsDerived::smallListEvents_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("announced"); // rows inserted, removed, changed, resets
    const auto add = [](const char *operation, const char *given, const char *after, const char *announced) {
        QTest::addRow("%s %s", operation, given) << QString::fromLatin1(operation) << QString::fromLatin1(given)
                                                 << QString::fromLatin1(after) << QString::fromLatin1(announced);
    };
    add("add", "de", "abcade", "1 0 0 0");
    add("add", "", "abca", "0 0 0 0");
    add("remove", "ca", "ba", "0 2 0 0");
    add("remove", "xb", "aca", "0 1 0 0"); // and a warning
    add("replace", "abxa", "abxa", "0 0 1 0");
    add("replace", "ax", "ax", "0 1 1 0");
    add("replace", "abcade", "abcade", "1 0 0 0");
    add("replace", "", "", "0 1 0 0");
    add("clear", "", "", "0 0 0 1");
}

void tst_ListModelsDerived::smallListEvents()
{
    QFETCH(QString, operation);
    QFETCH(QString, given);
    QFETCH(QString, after);
    QFETCH(QString, announced);
    const auto rows = [](const QString &text) {
        SmallListModel::Rows list;
        for (const QChar letter : text)
            list.push_back({{Qt::DisplayRole, QString(letter)}});
        return list;
    };
    SmallListModel model({});
    model.add(rows(QStringLiteral("abca")));
    QAbstractItemModelTester tester(&model, QtTestMode);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    WarningLog log;
    if (operation == QLatin1String("add"))
        model.add(rows(given));
    else if (operation == QLatin1String("remove"))
        model.remove(rows(given));
    else if (operation == QLatin1String("replace"))
        model.replace(rows(given));
    else
        model.clear();
    QCOMPARE(letters(model), after);
    QCOMPARE(numbers({inserted.count(), removed.count(), changed.count(), reset.count()}), announced);
    QCOMPARE(log.take().size(), given.contains(QLatin1Char('x')) && operation == QLatin1String("remove") ? 1 : 0);
}

void tst_ListModelsDerived::emptyState()
{
    EmptyStateBaseListModel model;
    QSignalSpy changed(&model, &EmptyStateBaseListModel::emptyStateDataChanged);
    const QList<QPair<const char *, QVariant>> values {
        {"emptyStateHeader", QStringLiteral("No messages")},
        {"emptyStateSubtitle", QStringLiteral("Write one")},
        {"emptyStateImage", QStringLiteral("qrc:/Resources/chat_24.svg")},
        {"emptyStateImageSize", QSize(48, 48)}};
    for (int turn = 0; turn < 2; ++turn) {
        for (const auto &value : values)
            QVERIFY(model.setProperty(value.first, value.second));
        QCOMPARE(changed.count(), 4); // once each
    }
    for (const auto &value : values) // each has a place of its own
        QCOMPARE(model.property(value.first), value.second);
    model.setHeader(QStringLiteral("List"));
    QCOMPARE(model.emptyStateHeader(), QStringLiteral("No messages"));
    QCOMPARE(changed.count(), 4);
}

void tst_ListModelsDerived::pages_data()
{
    QTest::addColumn<quint32>("pageSize");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("firstIndex");
    QTest::newRow("last of a page") << 20u << 39 << 1 << 20;
    QTest::newRow("first of a page") << 20u << 40 << 2 << 40;
    QTest::newRow("negative") << 20u << -45 << 0 << 0;
    QTest::newRow("no pages") << 0u << 45 << 0 << 0;
    QTest::newRow("largest index") << 20u << INT_MAX << INT_MAX / 20 << INT_MAX / 20 * 20;
    QTest::newRow("one large page") << 10000000u << 9999999 << 0 << 0;
}

void tst_ListModelsDerived::pages()
{
    QFETCH(quint32, pageSize);
    QFETCH(int, index);
    QFETCH(int, page);
    QFETCH(int, firstIndex);
    LazyLoadedListModel model;
    model.setPagingConfig(pageSize, 1);
    QCOMPARE(model.indexToPage(index), page);
    QCOMPARE(model.pageToIndex(page), firstIndex);
}

void tst_ListModelsDerived::pagingConfig()
{
    LazyLoadedListModel model;
    model.setSize(1000);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy requests(&model, &LazyLoadedListModel::loadPages);
    WarningLog log;
    model.setPagingConfig(0, 3);
    model.setPagingConfig(20, 0);
    model.setScrolledIndex(500);
    QVERIFY(!model.enabled());
    QCOMPARE(log.take(), QStringList());
    model.setPagingConfig(0xffffffff, 2);
    model.loadStorageAtPage(0);
    model.setItemsAtPage(0, items(0, 20));
    model.setItemAtIndex(0, new Item(0));
    QCOMPARE(log.take().size(), 4);
    QCOMPARE(Item::alive, 0);
    QVERIFY(!model.enabled());
    QCOMPARE(reset.count() + requests.count() + model.getStartIndex() + model.getStorageSize(), 0);

    model.setPagingConfig(20, 3);
    QVERIFY(model.enabled());
    QCOMPARE(reset.count(), 1);
    model.loadStorageAtPage(4);
    model.setItemsAtPage(4, items(80, 20));
    model.setPagingConfig(10, 0); // changes nothing
    QCOMPARE(model.getStorageSize(), 20);
    QCOMPARE(model.getStartIndex(), 80);
    model.setPagingConfig(10, 3);
    QCOMPARE(model.getStartIndex() + model.getStorageSize() + Item::alive, 0);
    QCOMPARE(model.rowCount(), 1000);
}

// Page numbers come from the host and from scripts.
void tst_ListModelsDerived::farthestPages()
{
    LazyLoadedListModel model; // of unknown size
    model.setPagingConfig(20, 3);
    WarningLog log;
    for (const int page : {-1, INT_MAX, INT_MAX / 20 + 1}) {
        model.loadStorageAtPage(page);
        QCOMPARE(log.take().size(), 1);
        QCOMPARE(model.getStartIndex(), 0);
    }
    QSignalSpy requests(&model, &LazyLoadedListModel::loadPages);
    model.scrollDown(INT_MAX);
    const int last = INT_MAX / 20;
    QCOMPARE(takeRequests(requests), QString::number(last));
    model.setItemsAtPage(last, items(0, 7));
    model.setItemAtIndex(INT_MAX, new Item(1)); // is no index of a row
    QCOMPARE(model.getStorageSize() + Item::alive, 14);
    model.setItemsAtPage(last + 1, items(0, 1));
    model.requestPages(INT_MAX, INT_MAX);
    model.requestPages(INT_MIN, INT_MIN);
    model.scrollUp(INT_MIN);
    QCOMPARE(model.getStartIndex() + model.getStorageSize() + Item::alive, 0);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(model.pageToIndex(INT_MAX), INT_MAX);
    QCOMPARE(model.pageToIndex(INT_MIN), INT_MIN);
}

void tst_ListModelsDerived::scrolling_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("startIndex");
    QTest::addColumn<QString>("requested");
    // Pages of 20, four in storage: 10 to 13.
    QTest::newRow("same page") << 225 << 200 << "";
    QTest::newRow("one down") << 245 << 220 << "14";
    QTest::newRow("three down") << 299 << 260 << "14 15 16";
    QTest::newRow("four down") << 300 << 280 << "14 15 16 17";
    QTest::newRow("one up") << 219 << 180 << "9";
    QTest::newRow("three up") << 160 << 140 << "7 8 9";
    QTest::newRow("four up") << 159 << 120 << "6 7 8 9";
    QTest::newRow("to the start") << 5 << 0 << "0 1 2 3";
    QTest::newRow("before the start") << -70 << 0 << "0 1 2 3";
    QTest::newRow("to the end") << 999 << 960 << "48 49";
    QTest::newRow("behind the end") << 5000 << 960 << "48 49";
}

void tst_ListModelsDerived::scrolling()
{
    QFETCH(int, index);
    QFETCH(int, startIndex);
    QFETCH(QString, requested);
    LazyLoadedListModel model;
    QAbstractItemModelTester tester(&model, QtTestMode);
    model.setPagingConfig(20, 4);
    model.setSize(1000);
    QSignalSpy requests(&model, &LazyLoadedListModel::loadPages);
    model.setScrolledIndex(45);
    QCOMPARE(model.getStartIndex(), 20);
    QCOMPARE(takeRequests(requests), QStringLiteral("1 2 3 4")); // nothing was there before
    model.loadStorageAtPage(10);
    QCOMPARE(takeRequests(requests), QStringLiteral("10 11 12 13"));
    for (int page = 10; page < 14; ++page)
        model.setItemsAtPage(page, items(page * 20, 20));

    model.setScrolledIndex(index);
    QCOMPARE(model.getStartIndex(), startIndex);
    QCOMPARE(takeRequests(requests), requested);
    for (int i = 0; i < 1000; ++i) {
        const bool isHeld = i >= 200 && i < 280 && i >= startIndex && i < startIndex + 80;
        QCOMPARE(indexAt(model, i), isHeld ? i : -1);
    }
    QCOMPARE(Item::alive, model.getStorageSize());
}

void tst_ListModelsDerived::answers()
{
    {
        LazyLoadedListModel model;
        model.setPagingConfig(3, 2);
        model.setSize(8);
        QSignalSpy requests(&model, &LazyLoadedListModel::loadPages);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const auto takeChanged = [&changed] {
            QStringList ranges;
            for (const QVariantList &range : qAsConst(changed))
                ranges << QStringLiteral("%1-%2")
                              .arg(range.at(0).toModelIndex().row())
                              .arg(range.at(1).toModelIndex().row());
            changed.clear();
            return ranges.join(QLatin1Char(' '));
        };
        WarningLog log;
        model.loadStorageAtPage(1);
        QCOMPARE(takeRequests(requests), QStringLiteral("1 2"));
        model.setItemsAtPage(2, items(6, 2)); // out of order, and the last page is short
        QCOMPARE(takeChanged(), QStringLiteral("6-7"));
        model.setItemsAtPage(0, items(0, 3)); // of no use any more
        QCOMPARE(takeChanged(), QString());
        QCOMPARE(Item::alive, 2);
        QCOMPARE(log.take(), QStringList());
        model.setItemsAtPage(3, items(9, 3)); // there is no such page
        model.setItemsAtPage(2, items(6, 3)); // more than there are
        QCOMPARE(log.take().size(), 1);
        QCOMPARE(Item::alive, 2);
        QCOMPARE(takeChanged(), QStringLiteral("6-7"));

        // The same items again, in another order, with one that is doubled and one that is missing.
        QStandardItem *six = model.getItemAt(6);
        model.setItemsAtPage(2, {nullptr, six});
        QCOMPARE(indexAt(model, 7), 6);
        QCOMPARE(Item::alive, 1);
        model.setItemsAtPage(1, {six, new Item(4), nullptr});
        QCOMPARE(log.take().size(), 1);
        QCOMPARE(indexAt(model, 3), -1);
        QCOMPARE(indexAt(model, 4), 4);
        QStandardItemModel other;
        other.appendRow(new Item(99));
        model.setItemAtIndex(5, other.item(0));
        QCOMPARE(log.take().size(), 1);
        model.setItemsAtPage(0, {other.item(0)}); // of no use, but not ours
        QCOMPARE(Item::alive, 3);

        // An answer counts, even if it has too few; an empty one does not.
        model.requestPages(0, 9);
        QCOMPARE(takeRequests(requests), QString());
        model.setItemsAtPage(1, {});
        QCOMPARE(Item::alive, 2);
        model.requestPages(0, 9);
        QCOMPARE(takeRequests(requests), QStringLiteral("1"));

        // Those who are told that an item goes can still look at it.
        QStandardItem *going = model.getItemAt(7);
        int seen = 0;
        connect(&model, &QAbstractItemModel::dataChanged, &model, [&](const QModelIndex &first) {
            if (first.row() == 6 && !model.getItemAt(7))
                seen = static_cast<Item *>(going)->number;
        });
        model.loadStorageAtPage(0);
        QCOMPARE(seen, 6);
        QCOMPARE(model.getStorageSize(), 0);
        // A host that has everything at hand answers at once.
        connect(&model, &LazyLoadedListModel::loadPages, &model, [&model](const QVector<int> &pages) {
            for (const int page : pages)
                model.setItemsAtPage(page, items(page * 3, 3));
        });
        model.loadStorageAtPage(0);
        QCOMPARE(model.getStorageSize(), 6);
    }
    QCOMPARE(Item::alive, 0);
}

void tst_ListModelsDerived::places()
{
    LazyLoadedListModel model;
    model.setPagingConfig(3, 2);
    model.setSize(100);
    model.loadStorageAtPage(1);
    QSignalSpy requests(&model, &LazyLoadedListModel::loadPages);
    for (const int index : {5, 3, 2, 9, 4, 4})
        model.setItemAtIndex(index, new Item(index)); // two of them have no place, one takes that of another
    QCOMPARE(model.getStorageSize(), 3);
    QCOMPARE(Item::alive, 3);
    model.setItemAtIndex(4, model.getItemAt(4));
    QCOMPARE(indexAt(model, 4), 4);
    model.requestPages(1, 2); // the first is complete
    QCOMPARE(takeRequests(requests), QStringLiteral("2"));
    model.deleteItemAtIndex(4);
    model.deleteItemAtIndex(4);
    model.deleteItemAtIndex(50);
    model.setItemAtIndex(5, nullptr);
    QCOMPARE(model.getStorageSize() + Item::alive, 2);
    QCOMPARE(model.rowCount(), 100);
    model.requestPages(1, 2);
    QCOMPARE(takeRequests(requests), QStringLiteral("1 2"));
    QCOMPARE(model.getItemAt(-1), nullptr);
    model.setItemsAtPage(1, items(3, 3));
    model.deleteItemAtIndex(4);
    model.requestPages(1, 1);
    QCOMPARE(takeRequests(requests), QStringLiteral("1"));

    model.eraseStorage();
    QCOMPARE(model.getStorageSize() + Item::alive, 0);
    QCOMPARE(model.getStartIndex(), 3);
    model.setItemAtIndex(3, new Item(3));
    model.reset();
    QCOMPARE(model.getStartIndex() + Item::alive, 0);
    QCOMPARE(model.size(), 100);
    model.setItemAtIndex(3, new Item(3));
    model.clearList();
    QCOMPARE(model.size() + model.rowCount() + Item::alive, 0);
}

void tst_ListModelsDerived::sizes()
{
    LazyLoadedListModel model;
    QAbstractItemModelTester tester(&model, QtTestMode);
    model.setPagingConfig(10, 3);
    QSignalSpy requests(&model, &LazyLoadedListModel::loadPages);
    // The first answer brings the size.
    model.loadStorageAtPage(0);
    QCOMPARE(takeRequests(requests), QStringLiteral("0 1 2"));
    model.setItemsAtPage(0, items(0, 10));
    model.setItemsAtPage(2, items(20, 10));
    model.setSize(15);
    QCOMPARE(model.getStorageSize() + Item::alive, 20);
    model.setItemsAtPage(1, items(10, 5));
    QCOMPARE(takeRequests(requests), QString());

    model.setSize(22); // the second page lacks items, the third is new
    QCOMPARE(takeRequests(requests), QStringLiteral("1 2"));
    QCOMPARE(indexAt(model, 14), 14); // until the answer comes
    model.setItemsAtPage(1, items(10, 10));
    model.setItemsAtPage(2, items(20, 2));
    model.setSize(500);
    QCOMPARE(takeRequests(requests), QStringLiteral("2"));
    model.setSize(12);
    QCOMPARE(model.getStorageSize(), 12);
    QCOMPARE(Item::alive, 12);
    QCOMPARE(model.rowCount(), 12);
    model.setSize(0);
    QCOMPARE(Item::alive, 0);
    model.loadStorageAtPage(0);
    model.setScrolledIndex(50);
    QCOMPARE(takeRequests(requests), QString());
    WarningLog log;
    model.setSize(-1);
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(model.size(), 0);
}

void tst_ListModelsDerived::unreliableServer()
{
    constexpr int Size = 1000000, PageSize = 50, Pages = 8;
    std::mt19937 random(11);
    {
        LazyLoadedListModel model;
        model.setPagingConfig(PageSize, Pages);
        model.setSize(Size);
        std::deque<int> pending; // pages that the server was asked for
        std::set<int> asked; // since they entered
        int repeated = 0;
        const auto isInRange = [&model](int page) {
            const int first = model.indexToPage(model.getStartIndex());
            return page >= first && page < first + Pages;
        };
        connect(&model, &LazyLoadedListModel::loadPages, &model, [&](const QVector<int> &pages) {
            QVERIFY(std::is_sorted(pages.begin(), pages.end()));
            for (const int page : pages) {
                QVERIFY(isInRange(page) && page < Size / PageSize);
                repeated += asked.insert(page).second ? 0 : 1;
                pending.push_back(page);
            }
        });
        model.loadStorageAtPage(0);
        int scrolled = 0;
        for (int step = 0; step < 20000; ++step) {
            switch (random() % 50) {
            case 0: scrolled = int(random() % Size); break;
            case 1: scrolled = Size - 1; break;
            case 2: scrolled = 0; break;
            default: scrolled = std::clamp(scrolled + int(random() % 400) - 150, 0, Size - 1);
            }
            model.setScrolledIndex(scrolled);
            for (auto page = asked.begin(); page != asked.end();)
                page = isInRange(*page) ? std::next(page) : asked.erase(page);
            for (int i = 0; i < 3 && !pending.empty(); ++i) {
                // Out of order and late; some twice, some never.
                const auto at = pending.begin() + int(random() % pending.size());
                const int page = *at;
                if (random() % 10)
                    pending.erase(at);
                if (random() % 10)
                    model.setItemsAtPage(page, items(page * PageSize, PageSize));
            }
            QVERIFY(scrolled >= model.getStartIndex() && scrolled < model.getStartIndex() + Pages * PageSize);
            QVERIFY(Item::alive == model.getStorageSize() && Item::alive <= PageSize * Pages);
            for (int i = 0; i < 5; ++i) {
                const int index = std::clamp(scrolled + int(random() % 900) - 450, 0, Size - 1);
                const int found = indexAt(model, index);
                QVERIFY(found == index || found == -1);
                QVERIFY(found == -1 || isInRange(index / PageSize));
                QVERIFY(!isInRange(index / PageSize) || asked.count(index / PageSize));
            }
        }
        QCOMPARE(repeated, 0);
    }
    QCOMPARE(Item::alive, 0);
}

QTEST_MAIN(tst_ListModelsDerived)
#include "tst_list_models_derived.moc"
