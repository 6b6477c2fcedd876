#include <UiElements/layouts/AutoGridLayout.h>
#include <UiElements/layouts/FixedItemRatioLayoutNotSupportScroll.h>
#include <UiElements/layouts/FlowLayout.h>
#include <UiElements/layouts/SmartLayout.h>

#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <QBoxLayout>
#include <QRandomGenerator>
#include <QStyle>

#include <functional>
#include <memory>

using RatioLayout = FixedItemRatioLayoutNotSupportScroll;
using MakeLayout = std::function<ItemLayout *(QWidget *)>;
Q_DECLARE_METATYPE(MakeLayout)

class tst_Layouts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusals_data() { addLayouts(); }
    void refusals();
    void ownership_data() { addLayouts(); }
    void ownership();
    void hiddenItemsTakeNoRoom_data() { addLayouts(); }
    void hiddenItemsTakeNoRoom();
    void mirrors_data() { addLayouts(); }
    void mirrors();
    void everySize_data() { addLayouts(); }
    void everySize();
    void settles_data() { addLayouts(); }
    void settles();
    void followsItsItems_data() { addLayouts(); }
    void followsItsItems();
    void changedWhilePlacing_data() { addLayouts(); }
    void changedWhilePlacing();
    void extremes_data() { addLayouts(); }
    void extremes();

    void flow_data();
    void flow();
    void flowHeights();
    void flowOverflow_data();
    void flowOverflow();
    void smart_data();
    void smart();
    void smartAndItsHost();
    void smartGivesBack();
    void smartNestedAndInside();
    void grid_data();
    void grid();
    void gridCellHeight();
    void tilesAreTheLargest();
    void badValues();

private:
    static void addLayouts();
};

namespace {

class Box : public QWidget
{
public:
    explicit Box(QSize hint, QSize minimum = QSize(0, 0), QWidget *parent = nullptr)
        : QWidget(parent)
        , m_hint(hint)
        , m_minimum(minimum)
    {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    }
    QSize sizeHint() const override { return m_hint; }
    QSize minimumSizeHint() const override { return m_minimum; }
    bool hasHeightForWidth() const override { return m_area > 0; }
    int heightForWidth(int width) const override { return m_area / qMax(1, width) + 1; }
    Box *withArea(int area)
    {
        m_area = area;
        return this;
    }
    void setHint(QSize hint)
    {
        m_hint = hint;
        updateGeometry();
    }

    std::function<void()> onResize;

protected:
    void resizeEvent(QResizeEvent *) override
    {
        if (onResize)
            std::exchange(onResize, nullptr)();
    }

private:
    QSize m_hint;
    QSize m_minimum;
    int m_area = 0;
};

/// Counts what is done to it.
class CountingItem : public QWidgetItem
{
public:
    CountingItem(QWidget *widget, int *deleted, int *placed)
        : QWidgetItem(widget)
        , m_deleted(deleted)
        , m_placed(placed)
    {
    }
    ~CountingItem() override { ++*m_deleted; }
    void setGeometry(const QRect &rect) override
    {
        ++*m_placed;
        QWidgetItem::setGeometry(rect);
    }

private:
    int *m_deleted;
    int *m_placed;
};

class RequestCounter : public QObject
{
public:
    explicit RequestCounter(QWidget *widget)
        : QObject(widget)
    {
        widget->installEventFilter(this);
    }
    int take() { return std::exchange(m_count, 0); }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_count += event->type() == QEvent::LayoutRequest;
        return false;
    }

private:
    int m_count = 0;
};

/// Items from words: a name, a width, a range "20-40" from minimum to hint, "x" and a height, "*" if it expands, "^"
/// and a priority ("^!" for the highest). "_10" is a spacer, "~" one that expands.
void fill(ItemLayout *layout, const QString &line)
{
    const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        if (word.startsWith(QLatin1Char('_'))) {
            layout->addItem(new QSpacerItem(word.midRef(1).toInt(), 0));
            continue;
        }
        if (word == QLatin1String("~")) {
            layout->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
            continue;
        }
        static const QRegularExpression form(
            QStringLiteral("^(\\w)(?:(\\d+)-)?(\\d+)(?:x(\\d+))?(\\*)?(?:\\^(!|-?\\d+))?$"));
        const QRegularExpressionMatch match = form.match(word);
        QVERIFY2(match.hasMatch(), qPrintable(word));
        const int width = match.captured(3).toInt();
        const int least = match.captured(2).isEmpty() ? width : match.captured(2).toInt();
        auto *box =
            new Box(QSize(width, match.captured(4).isEmpty() ? 10 : match.captured(4).toInt()), QSize(least, 0));
        box->setObjectName(match.captured(1));
        if (!match.captured(5).isEmpty())
            box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        layout->addWidget(box);
        if (auto *smart = qobject_cast<SmartLayout *>(layout)) {
            const QString priority = match.captured(6);
            smart->setPriority(box, priority == QLatin1String("!") ? SmartLayout::NeverHidden : priority.toInt());
        }
    }
}

QWidget *child(const ItemLayout *layout, const char *name)
{
    return layout->parentWidget()->findChild<QWidget *>(QString::fromLatin1(name));
}

/// "a 0+40, b 50+40 / c 0+40": name, left edge and width; a slash where a lower line begins. Hidden ones are left out.
QString picture(const ItemLayout *layout)
{
    QStringList lines;
    int top = -1;
    QVector<const QWidget *> widgets;
    for (int i = 0; i < layout->count(); ++i) {
        const QWidget *widget = layout->itemAt(i)->widget();
        if (widget && !widget->isHidden())
            widgets << widget;
    }
    std::stable_sort(widgets.begin(), widgets.end(), [](const QWidget *a, const QWidget *b) {
        return std::make_pair(a->y(), a->x()) < std::make_pair(b->y(), b->x());
    });
    for (const QWidget *widget : qAsConst(widgets)) {
        const QString text = QStringLiteral("%1 %2+%3").arg(widget->objectName()).arg(widget->x()).arg(widget->width());
        if (widget->y() == top && !lines.isEmpty())
            lines.last() += QLatin1String(", ") + text;
        else
            lines << text;
        top = widget->y();
    }
    return lines.join(QLatin1String(" / "));
}

QVector<QRect> places(const QLayout *layout)
{
    QVector<QRect> rects;
    for (int i = 0; i < layout->count(); ++i) {
        const QLayoutItem *item = layout->itemAt(i);
        if (!item->isEmpty())
            rects << item->geometry();
    }
    return rects;
}

void settle()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

QStringList hiddenNames(const SmartLayout *layout)
{
    QStringList names;
    const QVector<QWidget *> hidden = layout->hiddenWidgets();
    for (const QWidget *widget : hidden)
        names << widget->objectName();
    return names;
}

} // namespace

void tst_Layouts::addLayouts()
{
    QTest::addColumn<MakeLayout>("make");
    QTest::newRow("FlowLayout") << MakeLayout([](QWidget *parent) { return new FlowLayout(parent); });
    QTest::newRow("SmartLayout") << MakeLayout([](QWidget *parent) { return new SmartLayout(parent); });
    QTest::newRow("AutoGridLayout") << MakeLayout([](QWidget *parent) { return new AutoGridLayout(parent); });
    QTest::newRow("FixedItemRatio") << MakeLayout([](QWidget *parent) { return new RatioLayout(parent); });
}

void tst_Layouts::refusals()
{
    QFETCH(MakeLayout, make);
    QWidget outer;
    auto *window = new QWidget(&outer);
    ItemLayout *layout = make(window);
    auto *item = new QSpacerItem(1, 1);
    layout->addItem(item);
    auto *used = new QHBoxLayout;
    layout->addLayout(used);
    settle();
    const QRect before = layout->geometry();

    WarningLog log;
    const auto refused = [&](const char *text) {
        const QStringList warnings = log.take();
        return layout->count() == 2 && layout->geometry() == before && warnings.size() == 1
            && warnings.first().startsWith(QString::fromLatin1(layout->metaObject()->className()))
            && warnings.first().endsWith(QLatin1String(text));
    };
    layout->addWidget(nullptr);
    QVERIFY(refused("The widget is null"));
    layout->insertWidget(0, nullptr);
    QVERIFY(refused("The widget is null"));
    layout->addWidget(window);
    QVERIFY(refused("inside itself"));
    layout->addWidget(&outer);
    QVERIFY(refused("inside itself"));
    layout->addLayout(nullptr);
    QVERIFY(refused("The layout is null"));
    layout->addLayout(layout);
    QVERIFY(refused("in use already"));
    layout->addLayout(used);
    QVERIFY(refused("in use already"));
    // A layout that this one is in.
    QHBoxLayout around;
    auto *inner = new SmartLayout;
    around.addLayout(inner);
    inner->addLayout(&around);
    inner->addItem(&around);
    QVERIFY(log.take().size() == 2 && inner->count() == 0);
    layout->addItem(nullptr);
    QVERIFY(refused("The item is null"));
    layout->addItem(item);
    QVERIFY(refused("in use already"));
    for (int index : {-1, 2}) {
        QVERIFY(!layout->itemAt(index));
        QVERIFY(!layout->takeAt(index));
    }
    QVERIFY(log.take().isEmpty());
}

void tst_Layouts::ownership()
{
    QFETCH(MakeLayout, make);
    QWidget window;
    ItemLayout *layout = make(&window);
    int deleted = 0;
    int placed = 0;
    QPointer<QWidget> widget = new Box({40, 20}, {}, &window);
    for (int i = 0; i < 2; ++i)
        layout->addItem(new CountingItem(widget, &deleted, &placed));
    std::unique_ptr<QLayoutItem> taken(layout->takeAt(1));
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), widget.data());
    QCOMPARE(deleted, 0);

    // Both ways that a nested layout goes.
    QPointer<QLayout> nested = new QHBoxLayout;
    layout->addLayout(nested);
    delete nested;
    QCOMPARE(layout->count(), 1);
    nested = new QHBoxLayout;
    layout->addLayout(nested);
    QCOMPARE(layout->takeAt(1), nested.data());
    QVERIFY(!nested->parent());
    layout->addLayout(nested);
    auto *first = new Box({5, 5});
    layout->insertWidget(0, first);
    QCOMPARE(layout->itemAt(0)->widget(), first);
    delete first; // takes its item with it
    QCOMPARE(layout->count(), 2);

    delete layout;
    QCOMPARE(deleted, 1);
    QVERIFY(widget);
    QVERIFY(!nested);
}

void tst_Layouts::hiddenItemsTakeNoRoom()
{
    QFETCH(MakeLayout, make);
    QWidget with;
    QWidget without;
    ItemLayout *layout = make(&with);
    ItemLayout *other = make(&without);
    fill(layout, QStringLiteral("h80x50 a40 i80x50 b40 c30x20"));
    fill(other, QStringLiteral("a40 b40 c30x20"));
    child(layout, "h")->hide();
    child(layout, "i")->hide();
    QCOMPARE(layout->sizeHint(), other->sizeHint());
    QCOMPARE(layout->minimumSize(), other->minimumSize());
    for (int width : {60, 120, 300}) {
        QCOMPARE(layout->heightForWidth(width), other->heightForWidth(width));
        layout->setGeometry(QRect(0, 0, width, 100));
        other->setGeometry(QRect(0, 0, width, 100));
        QCOMPARE(picture(layout), picture(other));
    }
    for (const char *name : {"a", "b", "c"})
        child(layout, name)->hide();
    QVERIFY(layout->isEmpty());
    QVERIFY(!other->isEmpty());
}

void tst_Layouts::mirrors()
{
    QFETCH(MakeLayout, make);
    QWidget window;
    ItemLayout *layout = make(&window);
    layout->setContentsMargins(30, 5, 7, 11);
    fill(layout, QStringLiteral("a40 b35x20 c60 d25-50x15 e40"));
    for (int width : {75, 140, 203, 420}) {
        const QRect rect(3, 4, width, 150);
        const QRect contents = rect.adjusted(30, 5, -7, -11);
        window.setLayoutDirection(Qt::LeftToRight);
        layout->setGeometry(rect);
        const QVector<QRect> plain = places(layout);
        for (const QRect &place : plain)
            QVERIFY(contents.left() <= place.left() && contents.top() <= place.top());
        window.setLayoutDirection(Qt::RightToLeft);
        layout->setGeometry(rect);
        QVector<QRect> mirrored;
        for (const QRect &place : plain)
            mirrored << QStyle::visualRect(Qt::RightToLeft, contents, place);
        QCOMPARE(places(layout), mirrored);
    }
}

// Random items at every width: the height is exact, nothing overlaps, and from the minimum on nothing is too small or
// sticks out.
void tst_Layouts::everySize()
{
    QFETCH(MakeLayout, make);
    QRandomGenerator random(7);
    for (int round = 0; round < 12; ++round) {
        QWidget window;
        ItemLayout *layout = make(&window);
        layout->setSpacing(random.bounded(3) * 4);
        layout->setContentsMargins(random.bounded(9), random.bounded(9), random.bounded(9), random.bounded(9));
        if (auto *flow = qobject_cast<FlowLayout *>(layout)) {
            flow->setLineAlignment(FlowLayout::LineAlignment(round % 4));
            flow->setItemAlignment(FlowLayout::ItemAlignment(round / 4 % 4));
            flow->setMaximumLineCount(round % 3 == 2 ? 2 : 0);
            if (round % 2)
                flow->setOverflowWidget(new Box({25, 12}, {25, 12}));
        }
        auto *grid = qobject_cast<AutoGridLayout *>(layout);
        if (grid)
            grid->setAspectRatio(round % 3 ? 0 : 1.5);
        const int count = random.bounded(14);
        for (int i = 0; i < count; ++i) {
            const QSize minimum(random.bounded(30), random.bounded(20));
            auto *box = new Box(minimum + QSize(random.bounded(60), random.bounded(30)), minimum);
            if (random.bounded(3) == 0)
                box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
            if (random.bounded(4) == 0)
                box->withArea(random.bounded(1000));
            layout->addWidget(box);
            if (random.bounded(6) == 0)
                box->hide();
            if (random.bounded(6) == 0)
                layout->addItem(new QSpacerItem(random.bounded(20), 0,
                                                random.bounded(2) ? QSizePolicy::Expanding : QSizePolicy::Fixed));
        }
        const QSize least = layout->minimumSize();
        QVERIFY(layout->sizeHint().width() >= least.width() && layout->sizeHint().height() >= least.height());
        for (int width = 0; width < 420; ++width) {
            const int height =
                layout->hasHeightForWidth() ? layout->heightForWidth(width) : least.height() + random.bounded(200);
            const QRect rect(0, 0, width, height);
            layout->setGeometry(rect);
            const QVector<QRect> all = places(layout);
            int bottom = 0;
            for (int i = 0; grid && i < layout->count(); ++i) {
                if (layout->itemAt(i)->spacerItem()) // has a cell
                    bottom = qMax(bottom, layout->itemAt(i)->geometry().bottom() + 1);
            }
            for (int i = 0; i < all.size(); ++i) {
                bottom = qMax(bottom, all.at(i).y() + all.at(i).height());
                for (int j = i + 1; j < all.size(); ++j)
                    QVERIFY2(!all.at(i).intersects(all.at(j)), qPrintable(QString::number(width)));
                QVERIFY(width < least.width() || (all.at(i).left() >= 0 && all.at(i).right() < width));
            }
            if (!all.isEmpty() && layout->hasHeightForWidth())
                QCOMPARE(bottom, height - layout->contentsMargins().bottom());
            for (int i = 0; i < layout->count(); ++i) {
                QLayoutItem *item = layout->itemAt(i);
                if (item->isEmpty() || !item->widget()
                    || (qobject_cast<RatioLayout *>(layout) && width < least.width()))
                    continue;
                const QSize size = item->geometry().size();
                QVERIFY(size.width() >= item->minimumSize().width());
                QVERIFY(size.height() >= item->minimumSize().height());
                if (item->hasHeightForWidth() && layout->hasHeightForWidth() && !(grid && grid->aspectRatio() > 0))
                    QVERIFY(size.height() >= item->heightForWidth(size.width()));
            }
        }
    }
}

void tst_Layouts::settles()
{
    QFETCH(MakeLayout, make);
    for (const bool nested : {false, true}) {
        QWidget window;
        ItemLayout *layout = make(nested ? nullptr : &window);
        int deleted = 0;
        int placed = 0;
        if (nested)
            (new QVBoxLayout(&window))->addLayout(layout);
        for (int i = 0; i < 12; ++i) {
            auto *box = new Box({40, 20}, {20, 10}, &window);
            layout->addItem(new CountingItem(box, &deleted, &placed));
        }
        auto *flow = qobject_cast<FlowLayout *>(layout);
        auto *smart = qobject_cast<SmartLayout *>(layout);
        if (flow) {
            flow->setMaximumLineCount(2);
            flow->setOverflowWidget(new Box({30, 20}));
        }
        if (smart)
            smart->setOverflowWidget(new Box({30, 20}));
        window.show();
        settle();
        RequestCounter requests(&window);
        placed = 0;
        settle();
        layout->setGeometry(layout->geometry());
        QCOMPARE(requests.take(), 0);
        QCOMPARE(placed, 0);

        const auto shownOnes = [&] {
            QString text;
            for (int i = 0; i < layout->count(); ++i)
                text += QLatin1Char(layout->itemAt(i)->isEmpty() ? '.' : 'x');
            return text;
        };
        QString shown = shownOnes();
        for (int width = 700; width >= 60; width -= 7) {
            placed = 0;
            window.resize(width, 200);
            QVERIFY(placed <= 12); // once each, not again from inside
            // Already as it stays, before any event: nothing is painted in between.
            const QVector<QRect> now = places(layout);
            settle();
            QCOMPARE(places(layout), now);
            const int changes = std::exchange(shown, shownOnes()) == shown ? 0 : 1;
            const int count = requests.take();
            QVERIFY2(count <= changes, qPrintable(QStringLiteral("%1 at %2").arg(count).arg(width)));
        }
        QCOMPARE(shown.contains(QLatin1Char('.')), flow || smart);
        window.resize(1000, 200);
        settle();
        QCOMPARE(places(layout).size(), 12);
    }
}

void tst_Layouts::followsItsItems()
{
    QFETCH(MakeLayout, make);
    QWidget window;
    ItemLayout *layout = make(&window);
    fill(layout, QStringLiteral("a40 b40 c40"));
    window.resize(400, 300);
    window.show();
    settle();
    const QVector<QRect> before = places(layout);
    const QSize hint = layout->sizeHint();
    static_cast<Box *>(child(layout, "a"))->setHint({70, 33});
    QVERIFY(layout->sizeHint().width() > hint.width());
    child(layout, "b")->setMinimumSize(350, 50);
    if (auto *smart = qobject_cast<SmartLayout *>(layout))
        smart->setPriority(child(layout, "b"), SmartLayout::NeverHidden);
    settle();
    QVERIFY(places(layout) != before);
    QVERIFY(layout->minimumSize().width() >= 350);
    window.resize(1, 1); // a window asks its layout
    settle();
    QCOMPARE(window.size(), window.minimumSize());
    const QRect place = child(layout, "b")->geometry();
    QVERIFY(place.left() >= 0 && place.right() < window.width());
    QVERIFY(layout->hasHeightForWidth() || window.rect().contains(place)); // windows have no height for their width
    delete child(layout, "b");
    settle();
    window.resize(400, 300);
    child(layout, "a")->hide();
    settle();
    QCOMPARE(places(layout).size(), 1);
    child(layout, "a")->show();
    settle();
    QCOMPARE(places(layout).size(), 2);
}

void tst_Layouts::changedWhilePlacing()
{
    QFETCH(MakeLayout, make);
    enum Change { DeletesNext, DeletesFirst, Inserts, HidesNext, DeletesLayout };
    for (const int change : {DeletesNext, DeletesFirst, Inserts, HidesNext, DeletesLayout}) {
        QWidget window;
        QPointer<ItemLayout> layout = make(&window);
        fill(layout, QStringLiteral("a40 b40 c40 d40 e40"));
        window.resize(300, 200);
        window.show();
        settle();
        static_cast<Box *>(child(layout, "b"))->onResize = [&] {
            switch (change) {
            case DeletesNext: delete child(layout, "c"); break;
            case DeletesFirst: delete child(layout, "a"); break;
            case Inserts: layout->insertWidget(0, new Box({40, 10})); break;
            case HidesNext: child(layout, "c")->hide(); break;
            case DeletesLayout: delete layout; break;
            }
        };
        static_cast<Box *>(child(layout, "b"))->setHint({90, 60}); // setMinimumSize() would resize at once
        window.resize(320, 210);
        settle();
        if (change == DeletesLayout) {
            QVERIFY(!layout);
            continue;
        }
        QCOMPARE(places(layout).size(), change == Inserts ? 6 : 4);
        const QVector<QRect> now = places(layout);
        layout->invalidate();
        layout->activate();
        QCOMPARE(places(layout), now);
    }
}

// Whatever a host or an item says, sizes stay numbers of pixels.
void tst_Layouts::extremes()
{
    QFETCH(MakeLayout, make);
    QWidget window;
    ItemLayout *layout = make(&window);
    layout->setSpacing(INT_MAX);
    layout->addItem(new QSpacerItem(INT_MAX, INT_MAX));
    auto *box = new Box({INT_MAX, INT_MAX}, {5, 12});
    layout->addWidget(box);
    layout->addWidget((new Box({10, 10}, {5, 12}))->withArea(INT_MAX - 1));
    for (const char *name : {"horizontalSpacing", "verticalSpacing", "minimumCellWidth", "minimumItemWidth"})
        layout->setProperty(name, INT_MAX);
    const QSize small(5, 12);
    for (const QSize &size : {layout->sizeHint(), layout->minimumSize()})
        QVERIFY(size.expandedTo(small) == size && size.boundedTo({100000000, 100000000}) == size);
    for (const int width : {INT_MIN, 0, 100, INT_MAX}) {
        const int height = layout->heightForWidth(width);
        QVERIFY(layout->hasHeightForWidth() ? height >= 12 && height < 100000000 : height == -1);
    }
    layout->setGeometry(QRect(0, 0, 100, 100));
    QVERIFY(!box->geometry().isEmpty());
}

// --- FlowLayout

void tst_Layouts::flow_data()
{
    QTest::addColumn<QString>("items");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *items, int width, const char *expected,
                        FlowLayout::LineAlignment alignment = FlowLayout::LineAlignment::Start) {
        QTest::newRow(name) << QString::fromLatin1(items) << width << int(alignment) << QString::fromLatin1(expected);
    };
    using Line = FlowLayout::LineAlignment;
    row("just fits", "a40 b50", 100, "a 0+40, b 50+50");
    row("one pixel short", "a40 b50", 99, "a 0+40 / b 0+50");
    row("each alone", "a40 b40 c40", 0, "a 0+40 / b 0+40 / c 0+40");
    row("wider than the line", "a20 b20-200 c20", 100, "a 0+20 / b 0+100 / c 0+20");
    row("its minimum is wider", "a150-200 b20", 100, "a 0+150 / b 0+20");
    row("expands", "a40* b40 c90", 150, "a 0+100, b 110+40 / c 0+90");
    row("two expand", "a20* b20 c20*", 101, "a 0+31, b 41+20, c 71+30");
    row("end", "a40 b40 c40", 100, "a 10+40, b 60+40 / c 60+40", Line::End);
    row("center", "a40 b40 c40", 100, "a 5+40, b 55+40 / c 30+40", Line::Center);
    row("justified", "a20 b20 c20 d40", 87, "a 0+20, b 34+20, c 67+20 / d 0+40", Line::Justified);
    row("justified, alone in a line", "a60 b60", 100, "a 0+60 / b 0+60", Line::Justified);
    row("expanding before aligning", "a40* b40", 100, "a 0+50, b 60+40", Line::End);
    row("spacer adds to the spacing", "a40 _5 b40", 100, "a 0+40, b 55+40");
    row("spacer begins no line", "a20-90 _20 b40", 100, "a 0+90 / b 0+40");
    row("expanding spacer", "a20 ~ b20", 100, "a 0+20, b 80+20");
    row("indented", "_30 a20 b90", 100, "a 30+20 / b 0+90");
}

void tst_Layouts::flow()
{
    QFETCH(QString, items);
    QFETCH(int, width);
    QFETCH(int, alignment);
    QWidget window;
    auto *layout = new FlowLayout(10, 5, &window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setLineAlignment(FlowLayout::LineAlignment(alignment));
    fill(layout, items);
    layout->setGeometry(QRect(0, 0, width, 500));
    QTEST(picture(layout), "expected");
}

void tst_Layouts::flowHeights()
{
    QWidget window;
    auto *layout = new FlowLayout(10, 5, &window);
    layout->setContentsMargins(0, 0, 0, 0);
    fill(layout, QStringLiteral("a40x10 b40x30 c40x20"));
    layout->addWidget((new Box({50, 99}))->withArea(1000)); // 21 high in 50
    const auto tops = [&](FlowLayout::ItemAlignment alignment) {
        layout->setItemAlignment(alignment);
        layout->setGeometry(QRect(0, 0, 100, 500));
        QStringList list;
        const QVector<QRect> all = places(layout);
        for (const QRect &place : all)
            list << QStringLiteral("%1+%2").arg(place.y()).arg(place.height());
        return list.join(QLatin1Char(' '));
    };
    QCOMPARE(tops(FlowLayout::ItemAlignment::Top), QStringLiteral("0+10 0+30 35+20 35+21"));
    QCOMPARE(tops(FlowLayout::ItemAlignment::Center), QStringLiteral("10+10 0+30 35+20 35+21"));
    QCOMPARE(tops(FlowLayout::ItemAlignment::Bottom), QStringLiteral("20+10 0+30 36+20 35+21"));
    QCOMPARE(tops(FlowLayout::ItemAlignment::Stretch), QStringLiteral("0+30 0+30 35+21 35+21"));
    QCOMPARE(layout->heightForWidth(100), 56);
    QCOMPARE(layout->sizeHint(), QSize(40 + 40 + 40 + 50 + 30, 30));
    QCOMPARE(layout->minimumSize(), QSize(40, 0));
}

void tst_Layouts::flowOverflow_data()
{
    QTest::addColumn<QString>("items");
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("overflow"); // the width of the widget, 0 for none
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("count");
    const auto row = [](const char *name, const char *items, int lines, int overflow, const char *expected, int count) {
        QTest::newRow(name) << QString::fromLatin1(items) << lines << overflow << QString::fromLatin1(expected)
                            << count;
    };
    row("all fit", "a40 b50 c90", 2, 20, "a 0+40, b 50+50 / c 0+90", 0);
    row("without a widget", "a40 b40 c40 d40 e40", 2, 0, "a 0+40, b 50+40 / c 0+40, d 50+40", 1);
    row("beside the last", "a40 b40 c40 d20 e80", 2, 20, "a 0+40, b 50+40 / c 0+40, d 50+20, m 80+20", 1);
    row("in place of the last", "a40 b40 c40 d40 e40", 2, 20, "a 0+40, b 50+40 / c 0+40, m 50+20", 2);
    row("the only one shrinks", "a10-90 b40", 1, 20, "a 0+70, m 80+20", 1);
    row("the only one cannot shrink", "a90 b40", 1, 20, "m 0+20", 2);
    row("spacer is no reason", "a90 _50", 1, 20, "a 0+90", 0);
}

void tst_Layouts::flowOverflow()
{
    QFETCH(QString, items);
    QFETCH(int, lines);
    QFETCH(int, overflow);
    QFETCH(int, count);
    QWidget window;
    auto *layout = new FlowLayout(10, 5, &window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setMaximumLineCount(lines);
    if (overflow) {
        auto *more = new Box({overflow, 10}, {overflow, 10});
        more->setObjectName(QStringLiteral("m"));
        layout->setOverflowWidget(more); // stands last wherever it was added
    }
    fill(layout, items);
    QSignalSpy spy(layout, &FlowLayout::overflowCountChanged);
    layout->setGeometry(QRect(0, 0, 100, 500));
    QTEST(picture(layout), "expected");
    QCOMPARE(layout->overflowCount(), count);
    QCOMPARE(spy.count(), count ? 1 : 0);
    layout->setMaximumLineCount(0);
    layout->setGeometry(QRect(0, 0, 100, 500));
    QCOMPARE(layout->overflowCount(), 0);
    QCOMPARE(places(layout).size(),
             layout->findChildren<QWidget *>().size() + items.count(QRegularExpression(QStringLiteral("\\b[a-z]"))));
}

// --- SmartLayout

void tst_Layouts::smart_data()
{
    QTest::addColumn<QString>("items");
    QTest::addColumn<int>("overflow");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("least");
    const auto row = [](const char *name, const char *items, int overflow, int width, const char *expected, int least) {
        QTest::newRow(name) << QString::fromLatin1(items) << overflow << width << QString::fromLatin1(expected)
                            << least;
    };
    row("room left", "a40 b40", 0, 200, "a 0+40, b 50+40", 0);
    row("expands", "a40 b40* c20", 0, 200, "a 0+40, b 50+120, c 180+20", 0);
    row("spacer pushes", "a40 ~ b40", 0, 200, "a 0+40, b 160+40", 0);
    row("shrink together", "a20-40 b10-70 c30", 0, 120, "a 0+30, b 40+40, c 90+30", 0);
    row("uneven pixels", "a0-10 b0-10 c0-10", 0, 43, "a 0+8, b 18+8, c 36+7", 0);
    row("all at the minimum", "a20-40 b10-70", 0, 40, "a 0+20, b 30+10", 0);
    row("one too many", "a20-40 b10-70", 0, 39, "a 0+39", 0);
    row("the last of equal ones", "a40 b40 c40", 0, 139, "a 0+40, b 50+40", 0);
    row("the least important", "a40^2 b40^1 c40^3", 0, 139, "a 0+40, c 50+40", 0);
    row("and then the next", "a40^2 b40^1 c40^3", 0, 89, "c 0+40", 0);
    row("not one before a less important", "a60^1 b10^0 c50^2", 0, 105, "c 0+50", 0);
    row("nothing left", "a40 b40", 0, 10, "", 0);
    row("never hidden", "a40 b40^! c40", 0, 89, "b 0+40", 40);
    row("never hidden, too narrow", "a30-40^! b40", 0, 10, "a 0+30", 30);
    row("overflow is not needed", "a40 b40", 20, 90, "a 0+40, b 50+40", 20);
    row("overflow takes room", "a40 b40 c40", 20, 119, "a 0+40, m 50+20", 20);
    row("overflow and two", "a40 b40 c40", 20, 120, "a 0+40, b 50+40, m 100+20", 20);
    row("overflow alone", "a40 b40", 20, 5, "m 0+20", 20);
    row("overflow wider than all", "a10", 50, 9, "m 0+50", 10);
}

void tst_Layouts::smart()
{
    QFETCH(QString, items);
    QFETCH(int, overflow);
    QFETCH(int, width);
    QFETCH(int, least);
    QWidget window;
    auto *layout = new SmartLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    if (overflow) {
        auto *more = new Box({overflow, 10}, {overflow, 10});
        more->setObjectName(QStringLiteral("m"));
        layout->setOverflowWidget(more);
    }
    fill(layout, items);
    const QSize hint = layout->sizeHint();
    layout->setGeometry(QRect(0, 0, 1000, 30));
    layout->setGeometry(QRect(0, 0, width, 30));
    QTEST(picture(layout), "expected");
    QVERIFY(!hiddenNames(layout).contains(QStringLiteral("m")));
    QCOMPARE(layout->minimumSize(), QSize(least, overflow ? 10 : 0));
    layout->invalidate(); // what is hidden now counts as before
    QCOMPARE(layout->sizeHint(), hint);
    QVERIFY(!layout->isEmpty());
    QCOMPARE(layout->minimumSize(), QSize(least, overflow ? 10 : 0));
}

void tst_Layouts::smartAndItsHost()
{
    QStringList told;
    QWidget window;
    auto *layout = new SmartLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    fill(layout, QStringLiteral("a40 b40 c40 d40"));
    for (const char *name : {"a", "d"})
        child(layout, name)->setFocusPolicy(Qt::StrongFocus);
    const auto note = [&] {
        told << hiddenNames(layout).join(QLatin1Char(' ')) + QLatin1Char(':') + picture(layout);
    };
    connect(layout, &SmartLayout::hiddenWidgetsChanged, &window, note);
    window.resize(190, 30);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    settle();
    QVERIFY(told.isEmpty());
    child(layout, "d")->setFocus();

    window.resize(100, 30);
    settle();
    QCOMPARE(told, QStringList(QStringLiteral("c d:a 0+40, b 50+40")));
    QCOMPARE(window.focusWidget(), child(layout, "a"));
    told.clear();

    // What the host hides stays so, also where the layout had hidden it.
    child(layout, "d")->hide();
    settle();
    QCOMPARE(told.size(), 1);
    child(layout, "a")->hide();
    settle();
    QCOMPARE(picture(layout), QStringLiteral("b 0+40, c 50+40"));
    window.resize(300, 30);
    settle();
    QCOMPARE(picture(layout), QStringLiteral("b 0+40, c 50+40"));
    QVERIFY(hiddenNames(layout).isEmpty());
    child(layout, "d")->show();
    settle();
    QCOMPARE(picture(layout), QStringLiteral("b 0+40, c 50+40, d 100+40"));

    // What it shows without room is hidden again, for there to be room one day.
    window.resize(90, 30);
    settle();
    child(layout, "d")->show();
    settle();
    QVERIFY(!child(layout, "d")->isVisible());
    QVERIFY(child(layout, "d")->isHidden());
    child(layout, "a")->show();
    child(layout, "a")->raise();
    settle();
    QCOMPARE(picture(layout), QStringLiteral("a 0+40, b 50+40"));
    layout->setPriority(child(layout, "d"), 5);
    settle();
    QCOMPARE(picture(layout), QStringLiteral("a 0+40, d 50+40"));
    QCOMPARE(hiddenNames(layout), (QStringList {QStringLiteral("b"), QStringLiteral("c")}));

    // Hidden and shown as a whole.
    window.hide();
    window.show();
    settle();
    QCOMPARE(picture(layout), QStringLiteral("a 0+40, d 50+40"));
    QVERIFY(child(layout, "d")->isVisible() && !child(layout, "b")->isVisible());

    told.clear();
    delete child(layout, "b");
    settle();
    QCOMPARE(told, QStringList(QStringLiteral("c:a 0+40, d 50+40")));
}

void tst_Layouts::smartGivesBack()
{
    QWidget window;
    QWidget elsewhere;
    auto *layout = new SmartLayout(&window);
    fill(layout, QStringLiteral("a40 b40 c40 d40"));
    const QVector<QWidget *> boxes {child(layout, "a"), child(layout, "b"), child(layout, "c"), child(layout, "d")};
    layout->setGeometry(QRect(0, 0, 5, 30));
    for (QWidget *box : boxes)
        QVERIFY(box->isHidden());
    layout->removeWidget(boxes.at(0));
    settle();
    QVERIFY(!boxes.at(0)->isHidden());
    layout->addWidget(boxes.at(0), 3);
    layout->addItem(layout->takeAt(3)); // comes as a new one
    QCOMPARE(layout->priority(boxes.at(0)), 0);
    layout->setGeometry(QRect(0, 0, 5, 30));
    layout->removeWidget(boxes.at(0));
    boxes.at(0)->setParent(nullptr);
    settle();
    QVERIFY(boxes.at(0)->isHidden()); // does not pop up as a window
    delete boxes.at(0);
    boxes.at(1)->setParent(&elsewhere);
    QVERIFY(!boxes.at(1)->isHidden());
    boxes.at(2)->hide();
    delete layout;
    settle();
    QVERIFY(boxes.at(2)->isHidden());
    QVERIFY(!boxes.at(3)->isHidden());
    delete boxes.at(1);
}

void tst_Layouts::smartNestedAndInside()
{
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    column->setContentsMargins(0, 0, 0, 0);
    auto *layout = new SmartLayout;
    layout->setSpacing(10);
    column->addLayout(layout);
    fill(layout, QStringLiteral("a40"));
    auto *pair = new QHBoxLayout;
    pair->setSpacing(0);
    auto *left = new Box({30, 10}, {30, 10});
    auto *right = new Box({30, 10}, {30, 10});
    auto *off = new Box({30, 10}, {30, 10});
    for (Box *box : {left, right, off})
        pair->addWidget(box);
    off->hide();
    layout->addLayout(pair, -1);
    auto *text = new Box({100, 10}, {20, 10});
    text->withArea(1000);
    layout->addWidget(text, SmartLayout::NeverHidden);
    window.resize(300, 100);
    window.show();
    settle();
    QVERIFY(layout->hasHeightForWidth());
    QCOMPARE(right->x(), 80);
    QCOMPARE(layout->sizeHint().width(), 40 + 60 + 100 + 20);
    window.resize(139, 100); // 40 + 60 + 20 and the spacings are 140
    settle();
    QVERIFY(!left->isVisible() && !right->isVisible());
    QCOMPARE(layout->hiddenWidgets(), (QVector<QWidget *> {left, right}));
    QCOMPARE(text->geometry().left(), 50);
    QCOMPARE(layout->heightForWidth(139), 1000 / 89 + 1);
    right->hide(); // so that it would fit
    settle();
    QVERIFY(left->isVisible());
    QVERIFY(!right->isVisible() && !off->isVisible());
    window.resize(60, 100);
    settle();
    delete pair;
    settle();
    QVERIFY(left->isVisible());
    QCOMPARE(layout->count(), 2);
}

// --- AutoGridLayout

void tst_Layouts::grid_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("cell");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("fills");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, int count, int cell, int maximum, bool fills, int width,
                        const char *expected) {
        QTest::newRow(name) << count << cell << maximum << fills << width << QString::fromLatin1(expected);
    };
    row("two just fit", 3, 45, 0, false, 100, "a 0+45, b 55+45 / c 0+45");
    row("one pixel short", 3, 45, 0, false, 99, "a 0+99 / b 0+99 / c 0+99");
    row("pixels left over", 3, 20, 0, false, 99, "a 0+26, b 36+26, c 72+26");
    row("at most two", 3, 20, 2, false, 110, "a 0+50, b 60+50 / c 0+50");
    row("few keep their size", 2, 20, 0, false, 110, "a 0+20, b 30+20");
    row("few fill the line", 2, 20, 0, true, 110, "a 0+50, b 60+50");
    row("as wide as the hint", 2, 0, 0, false, 90, "a 0+40, b 50+40");
    row("not below the minimum", 2, 1, 0, false, 22, "a 0+22 / b 0+22");
    row("no width", 2, 20, 0, false, 0, "a 0+10 / b 0+10");
}

void tst_Layouts::grid()
{
    QFETCH(int, count);
    QFETCH(int, cell);
    QFETCH(int, maximum);
    QFETCH(bool, fills);
    QFETCH(int, width);
    QFETCH(QString, expected);
    QWidget window;
    auto *layout = new AutoGridLayout(&window);
    layout->setContentsMargins(3, 0, 4, 0);
    layout->setHorizontalSpacing(10);
    layout->setMinimumCellWidth(cell);
    layout->setMaximumColumns(maximum);
    layout->setFillsLine(fills);
    fill(layout, QStringLiteral("a10-40 b10-40 c10-40").left(count * 7));
    layout->setGeometry(QRect(-3, 0, width + 7, 500));
    QCOMPARE(picture(layout), expected);
    QCOMPARE(qMin(count, layout->columnCount(width + 7)),
             expected.section(QLatin1Char('/'), 0, 0).count(QLatin1Char('+')));
}

void tst_Layouts::gridCellHeight()
{
    QWidget window;
    auto *layout = new AutoGridLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->setMinimumCellWidth(45);
    fill(layout, QStringLiteral("a40x10 b40x30 c40x20"));
    QCOMPARE(layout->heightForWidth(100), 30 + 10 + 30);
    layout->addWidget((new Box({40, 5}, {0, 25}))->withArea(4500)); // 101 high in 45
    QCOMPARE(layout->heightForWidth(100), 101 + 10 + 101);
    layout->setAspectRatio(1.5);
    QCOMPARE(layout->heightForWidth(100), 30 + 10 + 30);
    QCOMPARE(layout->minimumSize(), QSize(45, 30));
    layout->setAspectRatio(9); // 5 high, but the minimum is 25
    QCOMPARE(layout->heightForWidth(100), 25 + 10 + 25);
    QCOMPARE(layout->minimumSize(), QSize(45, 25));
    QCOMPARE(layout->sizeHint(), QSize(100, 60)); // two by two
    layout->setMaximumColumns(1);
    QCOMPARE(layout->sizeHint(), QSize(45, 130));
}

// --- FixedItemRatioLayoutNotSupportScroll

void tst_Layouts::tilesAreTheLargest()
{
    for (const double ratio : {16.0 / 9.0, 1.0, 0.5}) {
        for (int count : {1, 2, 3, 5, 8, 13, 40}) {
            QWidget window;
            auto *layout = new RatioLayout(&window);
            layout->setContentsMargins(0, 0, 0, 0);
            layout->setSpacing(6);
            layout->setItemRatio(ratio);
            for (int i = 0; i < count; ++i)
                layout->addWidget(new Box({10, 10}));
            for (const QSize size : {QSize(640, 360), QSize(200, 900), QSize(900, 120), QSize(333, 331), QSize(30, 20),
                                     QSize(4, 4), QSize(0, 50), QSize(0, 0)}) {
                const QRect rect(QPoint(0, 0), size);
                layout->setGeometry(rect);
                const QVector<QRect> all = places(layout);
                double best = 0; // the width of the largest possible tile
                for (int columns = 1; columns <= count; ++columns) {
                    const int rows = (count + columns - 1) / columns;
                    best = qMax(best,
                                qMin((size.width() - 6.0 * (columns - 1)) / columns,
                                     (size.height() - 6.0 * (rows - 1)) / rows * ratio));
                }
                const QSize tile = all.first().size();
                if (best > 20)
                    QVERIFY2(tile.width() > best - 1 - ratio,
                             qPrintable(QStringLiteral("%1, %2").arg(best).arg(count)));
                QVERIFY(qAbs(tile.width() - tile.height() * ratio) <= qMax(1.0, ratio) || tile.width() <= 2);
                QVERIFY(!tile.isEmpty() || size.width() < 30); // where the spacings alone do not fit, too
                QRect used;
                for (const QRect &place : all) {
                    QCOMPARE(place.size(), tile);
                    QVERIFY(tile.isEmpty() || rect.contains(place));
                    used |= place;
                }
                if (tile.isEmpty())
                    continue;
                // In the middle, and the last row in its own middle.
                QVERIFY(qAbs(used.left() - (size.width() - 1 - used.right())) <= 1);
                QVERIFY(qAbs(used.top() - (size.height() - 1 - used.bottom())) <= 1);
                QRect lastRow;
                for (const QRect &place : all) {
                    if (place.top() == all.last().top())
                        lastRow |= place;
                }
                QVERIFY(qAbs(lastRow.left() - (size.width() - 1 - lastRow.right())) <= 1);
            }
        }
    }

    QWidget window;
    auto *layout = new RatioLayout(&window);
    layout->setContentsMargins(1, 0, 0, 0);
    layout->setSpacing(6);
    layout->setItemRatio(2);
    QCOMPARE(layout->minimumSize(), QSize(1, 0));
    for (int i = 0; i < 5; ++i)
        layout->addWidget(new Box({100, 20}, {30, 20}));
    QCOMPARE(layout->minimumSize(), QSize(1 + 3 * 40 + 12, 2 * 20 + 6)); // 40 x 20 holds 30 x 20
    QCOMPARE(layout->sizeHint(), QSize(1 + 3 * 100 + 12, 2 * 50 + 6));
    layout->setMinimumItemWidth(50);
    QCOMPARE(layout->minimumSize(), QSize(1 + 3 * 50 + 12, 2 * 25 + 6));

    // Two columns would do as well.
    RatioLayout two(new QWidget(&window));
    two.setContentsMargins(0, 0, 0, 0);
    two.setItemRatio(1);
    for (int i = 0; i < 2; ++i)
        two.addWidget(new Box({10, 10}));
    two.setSpacing(0);
    two.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(places(&two), (QVector<QRect> {{25, 0, 50, 50}, {25, 50, 50, 50}}));
}

void tst_Layouts::badValues()
{
    WarningLog log;
    QWidget window;
    FlowLayout flow(&window);
    flow.setMaximumLineCount(-1);
    flow.setOverflowWidget(nullptr);
    QVERIFY(log.take().size() == 2 && flow.maximumLineCount() == 0 && flow.count() == 0);
    flow.setOverflowWidget(new Box({1, 1}));
    Box second({1, 1});
    flow.setOverflowWidget(&second);
    QVERIFY(log.take().size() == 1 && flow.count() == 1 && !second.parent());

    SmartLayout smart;
    smart.setPriority(static_cast<QWidget *>(nullptr), 1);
    smart.setPriority(&second, 1);
    smart.setPriority(static_cast<QLayout *>(&flow), 1);
    smart.addWidget(nullptr, 3);
    smart.addLayout(nullptr, 3);
    QVERIFY(log.take().size() == 5 && smart.priority(&second) == 0);

    QWidget panel;
    AutoGridLayout grid;
    RatioLayout ratio(&panel);
    grid.setMinimumCellWidth(-1);
    grid.setMaximumColumns(-1);
    ratio.setMinimumItemWidth(-1);
    for (const double value : {-1.0, qQNaN(), qInf()}) {
        grid.setAspectRatio(value);
        ratio.setItemRatio(value);
    }
    ratio.setItemRatio(0);
    QCOMPARE(log.take().size(), 10);
    QVERIFY(grid.minimumCellWidth() == 0 && grid.maximumColumns() == 0 && grid.aspectRatio() == 0);
    QVERIFY(qFuzzyCompare(ratio.itemRatio(), 16.0 / 9.0) && ratio.minimumItemWidth() == 0);
    ratio.addWidget(new Box({10, 10}, {5, 5}));
    for (const double value : {1e-9, 1e9}) {
        ratio.setItemRatio(value);
        ratio.setGeometry(QRect(0, 0, 50, 50));
        QVERIFY(QRect(0, 0, 50, 50).contains(ratio.itemAt(0)->geometry()));
        QVERIFY(ratio.minimumSize().width() >= 0 && ratio.sizeHint().height() >= 0);
    }
}

W_TEST_MAIN(tst_Layouts)
#include "tst_layouts.moc"
