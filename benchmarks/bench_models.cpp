// List models: 10,000 rows of ten values with ids of 36 characters, and a list of a million rows.

#include "Bench.h"

#include <UiElements/models/BaseListModel.h>
#include <UiElements/models/LazyLoadedListModel.h>

#include <QCoreApplication>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <memory>

namespace {

using Row = BaseListModel::Row;
using Rows = BaseListModel::Rows;

constexpr int RowCount = 10000;
constexpr int Roles = 10;
constexpr int Looks = 20000;

int role(int i)
{
    return Qt::UserRole + 1 + i;
}

Row someRow(int i)
{
    char id[48];
    std::snprintf(id, sizeof id, "%08x-5c1d-4e0a-9b7f-%012x", unsigned(i) * 2654435761u, unsigned(i));
    return {id,
            {{role(0), QStringLiteral("Participant number %1").arg(i)},
             {role(1), QStringLiteral("participant.%1@example.org").arg(i)},
             {role(2), QStringLiteral("The last message of row %1").arg(i)},
             {role(3), QStringLiteral(":/Resources/avatar_%1.svg").arg(i % 32)},
             {role(4), i},
             {role(5), i % 7},
             {role(6), 0},
             {role(7), bool(i & 1)},
             {role(8), bool(i & 2)},
             {role(9), i * .5}}};
}

/// The plain way: a vector of rows and a map from id to row.
class PlainModel : public QAbstractListModel
{
public:
    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : int(m_rows.size()); }
    QVariant data(const QModelIndex &index, int role) const override
    {
        const auto &values = m_rows[std::size_t(index.row())].second;
        const auto found = values.find(role);
        return found == values.end() ? QVariant() : found->second;
    }
    void appendRows(const Rows &batch)
    {
        beginInsertRows({}, rowCount(), rowCount() + int(batch.size()) - 1);
        for (const Row &row : batch) {
            if (m_index.emplace(row.first, rowCount()).second)
                m_rows.push_back(row);
        }
        endInsertRows();
    }
    void clear()
    {
        beginResetModel();
        m_rows.clear();
        m_index.clear();
        endResetModel();
    }

private:
    Rows m_rows;
    std::unordered_map<std::string, int> m_index;
};

class OurModel : public BaseListModel
{
public:
    QVariant data(const QModelIndex &index, int asked) const override
    {
        // What a view asks for; in the figures for data() alone the base class is called.
        return asked < Qt::UserRole ? (asked == Qt::DisplayRole ? BaseListModel::data(index, role(0)) : QVariant())
                                    : BaseListModel::data(index, asked);
    }
};

class ShownPlainModel : public PlainModel
{
public:
    QVariant data(const QModelIndex &index, int asked) const override
    {
        return PlainModel::data(index, asked == Qt::DisplayRole ? role(0) : asked);
    }
};

QList<QStandardItem *> itemsOf(const Rows &rows, bool isShown = false)
{
    QList<QStandardItem *> items;
    items.reserve(int(rows.size()));
    for (const Row &row : rows) {
        auto *item = new QStandardItem;
        for (const auto &value : row.second)
            item->setData(value.second, value.first);
        if (isShown)
            item->setData(item->data(role(0)), Qt::DisplayRole);
        items << item;
    }
    return items;
}

struct State
{
    State()
    {
        for (int i = 0; i < RowCount; ++i)
            rows.push_back(someRow(i));
        for (const Row &row : rows)
            single.push_back({row});
        changed = rows;
        for (int i = 0; i < RowCount; i += 10)
            changed[std::size_t(i)].second[role(2)] = QStringLiteral("A new message in row %1").arg(i);
        moved = changed;
        for (int i = 0; i < RowCount / 100; ++i) // each a new last message: to the front
            std::rotate(moved.begin(), moved.begin() + 99 * i + 50, moved.begin() + 99 * i + 51);
        for (int i = 0; i < 1000; ++i)
            ids.push_back(rows[std::size_t(i * 7919 % RowCount)].first);
        ours.appendRows(rows);
        theirs.appendColumn(itemsOf(rows));
        for (int i = 0; i < Looks; ++i)
            places.push_back(i * 131 % RowCount);
    }

    Rows rows, changed, moved;
    std::vector<Rows> single;
    std::vector<std::string> ids;
    std::vector<int> places;
    BaseListModel ours;
    QStandardItemModel theirs;
    int turn = 0;
};

/// Freed blocks are joined when some later call needs a large one, and what that takes has nothing to do with it.
void settleHeap()
{
    std::free(std::malloc(100000));
}

template <typename Function>
double timed(Function function)
{
    settleHeap();
    const double start = bench::microseconds();
    function();
    return bench::microseconds() - start;
}

double bytesOf(const std::function<std::unique_ptr<QAbstractItemModel>()> &make)
{
    const auto before = mallinfo2().uordblks;
    const auto model = make();
    return (double(mallinfo2().uordblks) - double(before)) / RowCount;
}

/// The time until the view has been laid out again.
template <typename Change>
double withView(QAbstractItemModel &model, bool hasProxy, Change change)
{
    QSortFilterProxyModel proxy;
    QListView view;
    view.setUniformItemSizes(true);
    view.resize(300, 600);
    if (hasProxy) {
        proxy.setSortRole(role(4));
        proxy.setFilterRole(role(0));
        proxy.setFilterFixedString(QStringLiteral("1"));
        proxy.setSourceModel(&model);
        proxy.sort(0);
    }
    view.setModel(hasProxy ? static_cast<QAbstractItemModel *>(&proxy) : &model);
    view.show();
    QCoreApplication::processEvents();
    return timed([&] {
        change();
        QCoreApplication::processEvents();
    });
}

bench::Subject storing(const std::shared_ptr<std::unique_ptr<State>> &s)
{
    bench::Subject subject;
    subject.name = QLatin1String("List model: rows");
    subject.rounds = 15;
    subject.quickRounds = 5;
    subject.prepare = [s] {
        if (!*s)
            *s = std::make_unique<State>();
        return QString();
    };
    const QLatin1String batch("batch"), movedIn("moved-in batch"), single("one by one"), replaced("replace"),
        front("first row removed"), bytes("bytes per row"), theirBatch("items, batch"), plain("copied into maps"),
        theirSingle("items, one by one"), theirReplaced("items, set where they differ"),
        theirFront("items, first row removed"), theirBytes("bytes of an item");
    subject.variants = {
        {batch,
         [s] {
             BaseListModel model;
             return timed([&] { model.appendRows((*s)->rows); });
         }},
        {movedIn,
         [s] {
             BaseListModel model;
             Rows rows = (*s)->rows;
             return timed([&] { model.appendRows(std::move(rows)); });
         }},
        {plain,
         [s] {
             PlainModel model;
             return timed([&] { model.appendRows((*s)->rows); });
         }},
        {theirBatch,
         [s] {
             QStandardItemModel model;
             return timed([&] { model.appendColumn(itemsOf((*s)->rows)); });
         }},
        {single,
         [s] {
             BaseListModel model;
             return timed([&] {
                 for (const Rows &row : (*s)->single)
                     model.appendRows(row);
             });
         }},
        {theirSingle,
         [s] {
             QStandardItemModel model;
             return timed([&] {
                 for (const Rows &row : (*s)->single)
                     model.appendRow(itemsOf(row));
             });
         }},
        {replaced,
         [s] {
             const Rows &rows = ++(*s)->turn % 2 ? (*s)->changed : (*s)->rows;
             return timed([&] { (*s)->ours.replace(rows); });
         }},
        {theirReplaced,
         [s] {
             const Rows &rows = (*s)->turn % 2 ? (*s)->changed : (*s)->rows;
             return timed([&] {
                 for (int i = 0; i < RowCount; ++i) {
                     QStandardItem *item = (*s)->theirs.item(i);
                     for (const auto &value : rows[std::size_t(i)].second) {
                         if (item->data(value.first) != value.second)
                             item->setData(value.second, value.first);
                     }
                 }
             });
         }},
        {front,
         [s] {
             BaseListModel model;
             model.appendRows((*s)->rows);
             return timed([&] {
                 for (int i = 0; i < 1000; ++i)
                     model.removeRows(0, 1);
             });
         }},
        {theirFront,
         [s] {
             QStandardItemModel model;
             model.appendColumn(itemsOf((*s)->rows));
             return timed([&] {
                 for (int i = 0; i < 1000; ++i)
                     model.removeRows(0, 1);
             });
         }},
        {bytes,
         [s] {
             return bytesOf([s] {
                 auto model = std::make_unique<BaseListModel>();
                 model->appendRows((*s)->rows);
                 return model;
             });
         },
         bench::Variant::Count},
        {theirBytes,
         [s] {
             return bytesOf([s] {
                 auto model = std::make_unique<QStandardItemModel>();
                 model->appendColumn(itemsOf((*s)->rows));
                 return model;
             });
         },
         bench::Variant::Count},
    };
    subject.rows = {
        {QLatin1String("models: append a batch"), batch, theirBatch, 0.65},
        {QLatin1String("models: append a moved-in batch"), movedIn, plain, 0.13},
        {QLatin1String("models: append one by one"), single, theirSingle, 0.45},
        {QLatin1String("models: replace, a tenth changed"), replaced, theirReplaced, 0.7},
        {QLatin1String("models: remove the first row 1,000 times"), front, theirFront, 0.2},
        {QLatin1String("models: memory"), bytes, theirBytes, 0.55},
    };
    return subject;
}

bench::Subject asking(const std::shared_ptr<std::unique_ptr<State>> &s)
{
    bench::Subject subject;
    subject.name = QLatin1String("List model: values and ids");
    subject.rounds = 31;
    subject.quickRounds = 9;
    subject.prepare = [s] {
        if (!*s)
            *s = std::make_unique<State>();
        return QString();
    };
    const QLatin1String value("value"), theirValue("value of an item"), id("id"), hash("hash of the id");
    const auto valueOf = [s](const QAbstractItemModel &model) {
        QVariant last;
        return timed([&] {
                   for (int i = 0; i < Looks; ++i)
                       last = model.data(model.index((*s)->places[std::size_t(i)], 0), role(i % Roles));
               })
            / Looks;
    };
    subject.variants = {
        {value,
         [s, valueOf] {
             return valueOf((*s)->ours);
         }},
        {theirValue,
         [s, valueOf] {
             return valueOf((*s)->theirs);
         }},
        {id,
         [s] {
             long sum = 0;
             const double time = timed([&] {
                 for (int i = 0; i < Looks; ++i)
                     sum += (*s)->ours.getRowIndex((*s)->ids[std::size_t(i) % 1000]);
             });
             bench::keep(sum);
             return time / Looks;
         }},
        {hash,
         [s] {
             std::size_t sum = 0;
             const double time = timed([&] {
                 for (int i = 0; i < Looks; ++i)
                     sum += std::hash<std::string>()((*s)->ids[std::size_t(i) % 1000]);
             });
             bench::keep(sum);
             return time / Looks;
         }},
    };
    subject.rows = {
        {QLatin1String("models: data()"), value, theirValue, 0.95},
        {QLatin1String("models: look up an id"), id, hash, 2.5},
    };
    return subject;
}

bench::Subject shown(const std::shared_ptr<std::unique_ptr<State>> &s)
{
    bench::Subject subject;
    subject.name = QLatin1String("List model: with a view");
    subject.rounds = 15;
    subject.quickRounds = 5;
    subject.prepare = [s]() -> QString {
        if (!*s)
            *s = std::make_unique<State>();
        BaseListModel model;
        model.appendRows((*s)->rows);
        model.synchronize((*s)->moved);
        return model.getRows() == (*s)->moved ? QString() : QStringLiteral("synchronize() leaves other rows");
    };
    const QLatin1String batch("batch, view"), items("items, view"), proxy("batch, view and proxy"),
        itemsProxy("items, view and proxy"), update("update by id"), reset("reset"), ourReset("clear and append"),
        proxyUpdate("update by id, proxy"), proxyReset("reset, proxy");
    const auto ours = [s](bool hasProxy) {
        return [s, hasProxy] {
            OurModel model;
            return withView(model, hasProxy, [&] { model.appendRows((*s)->rows); });
        };
    };
    const auto theirs = [s](bool hasProxy) {
        return [s, hasProxy] {
            QStandardItemModel model;
            return withView(model, hasProxy, [&] { model.appendColumn(itemsOf((*s)->rows, true)); });
        };
    };
    const auto updated = [s](bool hasProxy) {
        return [s, hasProxy] {
            OurModel model;
            model.appendRows((*s)->rows);
            return withView(model, hasProxy, [&] { model.synchronize((*s)->moved); });
        };
    };
    const auto wasReset = [s](bool hasProxy) {
        return [s, hasProxy] {
            ShownPlainModel model;
            model.appendRows((*s)->rows);
            return withView(model, hasProxy, [&] {
                model.clear();
                model.appendRows((*s)->moved);
            });
        };
    };
    subject.variants = {
        {batch, ours(false)},
        {items, theirs(false)},
        {proxy, ours(true)},
        {itemsProxy, theirs(true)},
        {update, updated(false)},
        {reset, wasReset(false)},
        {ourReset,
         [s] {
             OurModel model;
             model.appendRows((*s)->rows);
             return withView(model, false, [&] {
                 model.clear();
                 model.appendRows((*s)->moved);
             });
         }},
        {proxyUpdate, updated(true)},
        {proxyReset, wasReset(true)},
    };
    subject.rows = {
        {QLatin1String("models: append a batch under a view"), batch, items, 0.65},
        {QLatin1String("models: append a batch under a view and a proxy"), proxy, itemsProxy, 0.65},
        {QLatin1String("models: update by id under a view"), update, reset, 0.3},
        {QLatin1String("models: update by id under a view, against ours"), update, ourReset, {}},
        {QLatin1String("models: update by id under a view and a proxy"), proxyUpdate, proxyReset, {}},
    };
    return subject;
}

/// A list in memory, shown by a view that scrolls by a third of a page at a time.
struct LazyList
{
    explicit LazyList(int size)
    {
        model.setPagingConfig(50, 8);
        model.setSize(size);
        QObject::connect(&model, &LazyLoadedListModel::loadPages, &model, [this](const QVector<int> &pages) {
            for (const int page : pages) {
                QVector<QStandardItem *> items;
                for (int i = 0; i < 50; ++i)
                    items << new QStandardItem;
                model.setItemsAtPage(page, items);
            }
        });
        model.loadStorageAtPage(0);
    }
    double scroll()
    {
        constexpr int Steps = 400; // down, and up again
        const int start = model.size() / 2;
        return timed([&] {
                   for (int i = 0; i < Steps; ++i)
                       model.setScrolledIndex(start + 17 * (i < Steps / 2 ? i : Steps - i));
               })
            / Steps;
    }
    LazyLoadedListModel model;
};

bench::Subject scrolling()
{
    bench::Subject subject;
    subject.name = QLatin1String("Lazy list");
    subject.rounds = 31;
    subject.quickRounds = 9;
    const QLatin1String large("of 1,000,000"), small("of 10,000");
    const auto scroll = [](int size) {
        const auto list = std::make_shared<std::unique_ptr<LazyList>>();
        return [list, size] {
            if (!*list)
                *list = std::make_unique<LazyList>(size);
            return (*list)->scroll();
        };
    };
    subject.variants = {{large, scroll(1000000)}, {small, scroll(10000)}};
    subject.rows = {{QLatin1String("models: a scroll step"), large, small, 1.1}};
    return subject;
}

} // namespace

std::vector<bench::Subject> bench::models()
{
    const auto state = std::make_shared<std::unique_ptr<State>>();
    return {storing(state), asking(state), shown(state), scrolling()};
}
