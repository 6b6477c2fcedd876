#include "support/WarningLog.h"

#include <UiElements/emoji/EmojiParser.h>
#include <UiElements/emoji/EmojiPickerModel.h>

#include <QAbstractItemModelTester>
#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

using namespace EmojiPicker;
using Model = EmojiPickerModel;

namespace {

using Catalogue = std::shared_ptr<const EmojiData>;

Catalogue realCatalogue()
{
    static const Catalogue catalogue =
        EmojiParser().parseFile(QStringLiteral(UIELEMENTS_SOURCE_DIR "/resources/emoji/emoji.json"));
    return catalogue;
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QJsonObject emoji(const char *code, const char *tones = "")
{
    QJsonObject forms;
    const QStringList modifiers = words(tones);
    for (const QString &tone : modifiers)
        forms[tone] = QJsonObject {{QStringLiteral("unified"), QLatin1String(code) + QLatin1Char('-') + tone},
                                   {QStringLiteral("sheet_x"), 1},
                                   {QStringLiteral("sheet_y"), 1}};
    return {{QStringLiteral("a"), QStringLiteral("a ") + QLatin1String(code)},
            {QStringLiteral("b"), QLatin1String(code)},
            {QStringLiteral("k"), QJsonArray {0, 0}},
            {QStringLiteral("skin_variations"), forms}};
}

QJsonObject category(const char *id, const char *names, bool hasTones)
{
    return {{QStringLiteral("id"), QLatin1String(id)},
            {QStringLiteral("name"), QString::fromLatin1(id).toUpper()},
            {QStringLiteral("has_skin_variantions"), hasTones},
            {QStringLiteral("emojis"), QJsonArray::fromStringList(words(names))}};
}

// Tones with a gap, a category without any emoji, one that offers no tones, an emoji in two categories and one in none.
Catalogue smallCatalogue()
{
    const QJsonObject emojis {{QStringLiteral("hand"), emoji("270B", "1F3FB 1F3FE 1F3FF")},
                              {QStringLiteral("wave"), emoji("1F44B", "1F3FB 1F3FC 1F3FD 1F3FE 1F3FF")},
                              {QStringLiteral("cat"), emoji("1F408")},
                              {QStringLiteral("ski"), emoji("26F7", "1F3FB 1F3FC")},
                              {QStringLiteral("stray"), emoji("1F415", "1F3FB")}};
    const QJsonArray categories {category("people", "wave hand", true), category("empty", "", false),
                                 category("play", "cat ski hand", false)};
    return EmojiParser().parseObject({{QStringLiteral("emojis"), emojis}, {QStringLiteral("categories"), categories}});
}

// "category:name/tone" of each row; "*" behind those that are recent.
QString rows(const Model &model, int count = 100)
{
    QStringList out;
    for (int i = 0; i < qMin(count, model.rowCount()); ++i) {
        const QModelIndex row = model.index(i);
        QString text =
            row.data(Model::CategoryIdRole).toString() + QLatin1Char(':') + row.data(Model::NameRole).toString();
        if (const int tone = row.data(Model::ToneRole).toInt())
            text += QLatin1Char('/') + QString::number(tone);
        if (row.data(Model::IsRecentRole).toBool())
            text += QLatin1Char('*');
        out << text;
    }
    return out.join(QLatin1Char(' '));
}

// What a model announces, in order.
class Signals
{
public:
    explicit Signals(Model *model)
    {
        const auto log = [this](const char *what, int from, int to) {
            m_log << QStringLiteral("%1 %2-%3").arg(QLatin1String(what)).arg(from).arg(to);
        };
        QObject::connect(model, &Model::rowsInserted, &m_context,
                         [log](const QModelIndex &, int from, int to) { log("insert", from, to); });
        QObject::connect(model, &Model::rowsRemoved, &m_context,
                         [log](const QModelIndex &, int from, int to) { log("remove", from, to); });
        QObject::connect(
            model, &Model::rowsMoved, &m_context,
            [log](const QModelIndex &, int from, int, const QModelIndex &, int to) { log("move", from, to); });
        QObject::connect(model, &Model::dataChanged, &m_context,
                         [log](const QModelIndex &from, const QModelIndex &to, const QVector<int> &roles) {
                             log(roles.contains(Model::IsRecentRole) ? "recent" : "tone", from.row(), to.row());
                         });
        QObject::connect(model, &Model::modelReset, &m_context, [this] { m_log << QStringLiteral("reset"); });
        QObject::connect(model, &Model::recentsChanged, &m_context, [this] { m_log << QStringLiteral("recents"); });
        QObject::connect(model, &Model::toneChanged, &m_context, [this](const QString &name, int tone) {
            m_log << name + QLatin1Char('=') + QString::number(tone);
        });
    }
    QString take() { return std::exchange(m_log, {}).join(QStringLiteral(", ")); }

private:
    QObject m_context;
    QStringList m_log;
};

} // namespace

class tst_EmojiPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fullCatalogue();
    void everyRoleHasAValueAndAName();
    void recents_data();
    void recents();
    void tones_data();
    void tones();
    void filter();
    void recentsBehindAFilter();
    void choicesOutliveTheCatalogue();
    void withoutACatalogue();
    void badInput();
};

void tst_EmojiPicker::fullCatalogue()
{
    Model model(realCatalogue());
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    int rowsInCategories = 0;
    for (const auto &each : realCatalogue()->categories())
        rowsInCategories += int(each->emojis.size());
    QCOMPARE(model.rowCount(), 14 + rowsInCategories);
    QCOMPARE(rows(model, 2), QStringLiteral("recents:+1* recents:grinning*"));
    // Every jump leads to the row where the category begins, and all rows are in the order of the categories.
    QStringList begins;
    for (int i = 0; i < model.rowCount(); ++i) {
        const QString id = model.index(i).data(Model::CategoryIdRole).toString();
        if (begins.isEmpty() || begins.last() != id) {
            begins << id;
            QCOMPARE(model.firstRowOf(id), i);
            QCOMPARE(model.index(i).data(Model::CategoryNameRole).toString(), model.categoryName(id));
        }
    }
    QCOMPARE(begins, model.categoryIds());
    QVERIFY(begins.size() > 5);
}

void tst_EmojiPicker::everyRoleHasAValueAndAName()
{
    Model model(realCatalogue());
    const QModelIndex row = model.index(model.rowOf(QStringLiteral("+1")));
    QCOMPARE(row.data(Model::CategoryIdRole).toString(), QStringLiteral("people"));
    model.setTone(QStringLiteral("+1"), 5);
    const uint dark[] = {0x1F44D, 0x1F3FF};
    const QHash<QByteArray, QVariant> expected {
        {"display", QString::fromUcs4(dark, 2)},
        {"name", QStringLiteral("+1")},
        {"text", QString::fromUcs4(dark, 2)},
        {"localisedName", QStringLiteral("thumbs up")},
        {"toolTip", QStringLiteral("thumbs up")},
        {"unified", QStringLiteral("1F44D-1F3FF")},
        {"imagePath", QStringLiteral(":/emojis/1f44d-1f3ff.svg")},
        {"categoryId", QStringLiteral("people")},
        {"categoryName", QStringLiteral("Smileys & People")},
        {"hasTones", true},
        {"tone", 5},
        {"isRecent", true},
    };
    const QHash<int, QByteArray> names = model.roleNames();
    for (auto each = expected.begin(); each != expected.end(); ++each) {
        QVERIFY2(names.key(each.key(), -1) >= 0, each.key().constData());
        QCOMPARE(row.data(names.key(each.key())), each.value());
    }
    QCOMPARE(row.data(names.key("tones")).toStringList().size(), 6);
    QCOMPARE(row.data(Qt::AccessibleTextRole).toString(), QStringLiteral("thumbs up"));
}

void tst_EmojiPicker::recents_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("action"); // "add NAME", "set NAMES" or "limit N"
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("announced");

    const auto row = [](const char *name, const char *before, const char *action, const char *after,
                        const char *announced) {
        QTest::newRow(name) << QString::fromLatin1(before) << QString::fromLatin1(action) << QString::fromLatin1(after)
                            << QString::fromLatin1(announced);
    };
    // Behind the recents: wave hand cat ski hand.
    row("a new one comes first", "cat", "add wave", "wave cat", "insert 0-0, recent 2-2, recents");
    row("an old one moves", "cat wave ski", "add ski", "ski cat wave", "move 2-0, recents");
    row("the first stays", "cat wave", "add cat", "cat wave", "");
    row("the oldest goes, in all its rows", "cat ski hand", "add wave", "wave cat ski",
        "remove 2-2, insert 0-0, recent 3-4, recent 7-7, recents");
    row("without a category", "", "add stray", "stray", "insert 0-0, recents");
    row("set", "cat wave", "set cat ski", "cat ski", "remove 1-1, insert 1-1, recent 2-2, recent 5-5, recents");
    row("set to the same", "cat wave", "set cat wave", "cat wave", "");
    row("set twice, unknown, too many", "", "set ski ski dog cat wave hand", "ski cat wave",
        "insert 0-2, recent 3-3, recent 5-6, recents");
    row("cleared", "cat", "set", "", "remove 0-0, recent 2-2, recents");
    row("less room", "cat ski hand", "limit 1", "cat", "remove 1-2, recent 2-2, recent 4-5, recents");
    row("no room", "cat", "limit 0", "", "remove 0-0, recent 2-2, recents");
    row("more room", "cat ski hand", "limit 9", "cat ski hand", "");
}

void tst_EmojiPicker::recents()
{
    QFETCH(QString, before);
    QFETCH(QString, action);
    QFETCH(QString, after);

    Model model(smallCatalogue());
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setRecentsLimit(3);
    model.setRecents(before.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    Signals announced(&model);
    QStringList arguments = action.split(QLatin1Char(' '));
    const QString what = arguments.takeFirst();
    if (what == QLatin1String("add"))
        model.addRecent(arguments.first());
    else if (what == QLatin1String("set"))
        model.setRecents(arguments);
    else
        model.setRecentsLimit(arguments.first().toInt());

    QTEST(announced.take(), "announced");
    QCOMPARE(model.recents().join(QLatin1Char(' ')), after);
    // The rows say the same, and the categories stand right behind them.
    const int count = model.recents().size();
    for (int i = 0; i < count; ++i)
        QCOMPARE(model.index(i).data(Model::NameRole).toString(), model.recents().at(i));
    QCOMPARE(model.firstRowOf(RecentsId), count ? 0 : -1);
    QCOMPARE(model.firstRowOf(QStringLiteral("people")), count);
    QCOMPARE(model.firstRowOf(QStringLiteral("play")), count + 2);
    QCOMPARE(model.firstRowOf(QStringLiteral("empty")), -1);
    QCOMPARE(model.rowCount(), count + 5);
    for (int i = 0; i < model.rowCount(); ++i) {
        const QModelIndex row = model.index(i);
        QCOMPARE(row.data(Model::IsRecentRole).toBool(),
                 model.recents().contains(row.data(Model::NameRole).toString()));
    }
}

void tst_EmojiPicker::tones_data()
{
    QTest::addColumn<QString>("steps"); // "NAME=TONE", and the default without a name
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("announced"); // by the last step

    const auto row = [](const char *name, const char *steps, const char *shown, const char *announced) {
        QTest::newRow(name) << QString::fromLatin1(steps) << QString::fromLatin1(shown)
                            << QString::fromLatin1(announced);
    };
    // hand has the tones 1, 4 and 5; ski has two, in a category that offers none.
    row("none", "=0", "hand* wave hand cat ski hand", "");
    row("one emoji, in all its rows", "hand=3", "hand/3* wave hand/3 cat ski hand/3",
        "tone 0-0, tone 2-2, tone 5-5, hand=3");
    row("default: by the tone, not by the place", "=4", "hand/2* wave/4 hand/2 cat ski hand/2", "tone 0-5");
    row("default: a tone that one emoji lacks", "=2", "hand* wave/2 hand cat ski hand", "tone 1-1");
    row("its own one wins", "hand=1 =5", "hand/1* wave/5 hand/1 cat ski hand/1", "tone 1-1");
    row("its own one may be none", "=5 wave=0", "hand/3* wave hand/3 cat ski hand/3", "tone 1-1, wave=0");
    row("the same as before looks the same", "=5 wave=5", "hand/3* wave/5 hand/3 cat ski hand/3", "wave=5");
    row("forgotten", "=1 wave=3 wave=-1", "hand/1* wave/1 hand/1 cat ski hand/1", "tone 1-1, wave=-1");
    row("twice", "wave=3 wave=3", "hand* wave/3 hand cat ski hand", "");
}

void tst_EmojiPicker::tones()
{
    QFETCH(QString, steps);
    QFETCH(QString, shown);

    Model model(smallCatalogue());
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setRecents({QStringLiteral("hand")});
    Signals announced(&model);
    const QStringList each = steps.split(QLatin1Char(' '));
    for (const QString &step : each) {
        announced.take();
        const QString name = step.section(QLatin1Char('='), 0, 0);
        const int tone = step.section(QLatin1Char('='), 1).toInt();
        if (name.isEmpty())
            model.setDefaultTone(tone);
        else
            model.setTone(name, tone);
    }
    QTEST(announced.take(), "announced");
    QStringList texts;
    for (int i = 0; i < model.rowCount(); ++i) {
        const QModelIndex row = model.index(i);
        const QStringList forms = row.data(Model::TonesRole).toStringList();
        const int tone = row.data(Model::ToneRole).toInt();
        QCOMPARE(row.data(Model::TextRole).toString(), forms.value(tone));
        QCOMPARE(row.data(Model::HasTonesRole).toBool(), forms.size() > 1);
        texts << row.data(Model::NameRole).toString() + (tone ? QStringLiteral("/%1").arg(tone) : QString())
                + (i == 0 ? QStringLiteral("*") : QString());
    }
    QCOMPARE(texts.join(QLatin1Char(' ')), shown);
}

void tst_EmojiPicker::filter()
{
    Model model(realCatalogue());
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QString everything = rows(model);
    Signals announced(&model);
    model.setFilter(QStringLiteral("thumbs"));
    QCOMPARE(rows(model), QStringLiteral("people:+1* people:-1"));
    QCOMPARE(model.firstRowOf(QStringLiteral("people")), -1);
    QCOMPARE(model.rowOf(QStringLiteral("-1")), 1);
    QCOMPARE(model.rowOf(QStringLiteral("grinning")), -1);
    QCOMPARE(announced.take(), QStringLiteral("reset"));
    model.setFilter(QStringLiteral("thumbs "));
    QCOMPARE(model.filter(), QStringLiteral("thumbs "));
    QCOMPARE(announced.take(), QString());
    model.setFilter(QStringLiteral("no such thing"));
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(announced.take(), QStringLiteral("reset"));
    // From no rows of one kind to all of the other.
    model.setFilter(QStringLiteral("  "));
    QCOMPARE(announced.take(), QStringLiteral("reset"));
    QCOMPARE(rows(model), everything);
}

void tst_EmojiPicker::recentsBehindAFilter()
{
    Model model(smallCatalogue());
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setRecents({QStringLiteral("cat"), QStringLiteral("ski")});
    model.setRecentsLimit(2);
    model.setFilter(QStringLiteral("hand"));
    Signals announced(&model);
    model.addRecent(QStringLiteral("hand"));
    QCOMPARE(announced.take(), QStringLiteral("recent 0-0, recents"));
    QCOMPARE(rows(model), QStringLiteral("people:hand*"));
    model.setTone(QStringLiteral("wave"), 1); // not shown
    QCOMPARE(announced.take(), QStringLiteral("wave=1"));
    model.setFilter(QStringLiteral("stray"));
    model.setTone(QStringLiteral("stray"), 1);
    QCOMPARE(rows(model), QStringLiteral(":stray/1"));
    model.setFilter(QString());
    QCOMPARE(rows(model),
             QStringLiteral("recents:hand* recents:cat* people:wave/1 people:hand* play:cat* play:ski play:hand*"));
}

void tst_EmojiPicker::choicesOutliveTheCatalogue()
{
    Model model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setRecents({QStringLiteral("grinning"), QStringLiteral("cat")}); // before there is anything
    model.setCatalogue(smallCatalogue());
    QCOMPARE(model.recents(), QStringList {QStringLiteral("cat")});
    model.setTone(QStringLiteral("wave"), 5);
    model.setFilter(QStringLiteral("wave"));
    model.setCatalogue(nullptr);
    QCOMPARE(model.rowCount(), 0);
    model.setCatalogue(realCatalogue());
    // Not the place in the old list: that one is another emoji.
    QCOMPARE(rows(model, 1), QStringLiteral("people:wave/5"));
    QCOMPARE(model.recents(), QStringList {QStringLiteral("cat")});
    model.setTone(QStringLiteral("hand"), 5);
    model.setCatalogue(smallCatalogue()); // where it has three
    QCOMPARE(model.tone(QStringLiteral("hand")), 0);

    // Recents that nobody set are the defaults of whichever catalogue it is.
    Model untouched(smallCatalogue());
    QCOMPARE(untouched.recents(), QStringList());
    untouched.setCatalogue(realCatalogue());
    untouched.setRecentsLimit(2);
    QCOMPARE(untouched.recents().size(), 2);
    untouched.setRecentsLimit(20);
    QCOMPARE(untouched.recents().size(), 14);
    untouched.addRecent(QStringLiteral("cat"));
    untouched.setCatalogue(smallCatalogue());
    QCOMPARE(untouched.recents(), QStringList {QStringLiteral("cat")});
}

void tst_EmojiPicker::withoutACatalogue()
{
    Model model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    WarningLog log;
    model.setFilter(QStringLiteral("cat"));
    model.setFilter(QString());
    model.setDefaultTone(3);
    model.setRecents({QStringLiteral("cat")});
    model.setRecents({});
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.categoryIds(), QStringList());
    QCOMPARE(model.firstRowOf(RecentsId), -1);
    QCOMPARE(model.rowOf(QStringLiteral("cat")), -1);
    QCOMPARE(model.tone(QStringLiteral("cat")), 0);
    QCOMPARE(log.take(), QStringList());
    model.addRecent(QStringLiteral("cat"));
    model.setTone(QStringLiteral("cat"), 0);
    QCOMPARE(log.take().size(), 2);
}

void tst_EmojiPicker::badInput()
{
    Model model(smallCatalogue());
    model.setRecents({QStringLiteral("cat")});
    const QString before = rows(model);
    Signals announced(&model);
    WarningLog log;
    model.addRecent(QStringLiteral("Cat"));
    model.setRecentsLimit(-1);
    model.setDefaultTone(6);
    model.setDefaultTone(-1);
    model.setTone(QStringLiteral("dog"), 0);
    model.setTone(QStringLiteral("hand"), 4); // has three tones
    model.setTone(QStringLiteral("ski"), 1); // not offered
    model.setTone(QStringLiteral("hand"), -2);
    QCOMPARE(log.take().size(), 8);
    QCOMPARE(announced.take(), QString());
    QCOMPARE(rows(model), before);
    QVERIFY(!model.data(model.index(model.rowCount())).isValid());
    QCOMPARE(log.take(), QStringList());
}

QTEST_MAIN(tst_EmojiPicker)
#include "tst_emoji_picker.moc"
