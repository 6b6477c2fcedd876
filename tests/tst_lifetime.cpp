#include "support/Colors.h"
#include "support/ThemedClasses.h"
#include "support/WarningLog.h"

#include <UiElements/app/WAppSignals.h>
#include <UiElements/app/WApplication.h>
#include <UiElements/app/WGlobalSignalListener.h>
#include <UiElements/theme/WThemeUtils.h>

#include <malloc.h>

// Application objects come and go here, so each test makes its own.
class tst_Lifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutOurApplication();
    void applicationDestroyedFirst();
    void manyWidgets();
    void manySwitches();
};

namespace {

int argc = 1;
char name[] = "tst_lifetime";
char *argv[] = {name, nullptr};

class Application : public WApplication
{
public:
    Application()
        : WApplication(argc, argv)
    {
    }
    int followers() const { return receivers(SIGNAL(layoutDirectionChanged(Qt::LayoutDirection))); }
    int colorFollowers() const { return receivers(SIGNAL(colorSetsChanged())); }
};

qint64 heapInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return 0; // the sanitizer has a heap of its own, and its leak check does this job
#else
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
#endif
}

const QString css = QStringLiteral("$backgroundColors: a; $textColors: b; QLabel { color: $(b.hovered); }");

} // namespace

void tst_Lifetime::withoutOurApplication()
{
    const QStringList missing(QStringLiteral("Unable to find WApplication"));
    WarningLog log;
    QVERIFY(!WAppSignals::get()); // no application at all
    QCOMPARE(log.take(), missing);
    QVERIFY(WThemeUtils::getAppWColorSets().empty());
    QCOMPARE(log.take(), QStringList());

    QApplication app(argc, argv);
    QVERIFY(!WAppSignals::get());
    QVERIFY(!WGlobalSignalListener::get());
    QCOMPARE(log.take(), missing + missing);
    WThemeUtils::setAppWColorSets(spelledSets({"a"}));
    QCOMPARE(log.take(), missing);
    QVERIFY(WThemeUtils::getWColorSetsByThemeType(WThemeUtils::AppThemeTypeDark).empty());
    QVERIFY(!WThemeUtils::isHighContrastEnabled());

    // Elements work in a plain program, without colors.
    forEachThemedClass([&](const char *className, const MakeWidget &make) {
        const QScopedPointer<QWidget> widget(make(nullptr));
        widget->setProperty("styleSheet", QStringLiteral("* { padding: 3px; color: $(a.normal); }"));
        QVERIFY2(widget->styleSheet().contains(QLatin1String("padding: 3px; color: #ff000000")), className);
        QCOMPARE(log.take(), QStringList(QStringLiteral("ColorSet name does not exist!  \"a\"")));
        QCOMPARE(widget->font().pixelSize(), 16);
    });
    const WColorSets own = spelledSets({"a"}, 4); // sets handed over need no registry
    QCOMPARE(WThemeUtils::parseCSS(QStringLiteral("S"), QStringLiteral("$(a.normal)"), own).styleSheet,
             QStringLiteral("#ff000004"));
}

void tst_Lifetime::applicationDestroyedFirst()
{
    WarningLog log;
    QVector<QWidget *> survivors;
    QPointer<WAppSignals> bus;
    {
        Application app;
        app.setColorSets(spelledSets({"a", "b"}));
        bus = app.getAppSignals();
        forEachThemedClass([&](const char *, const MakeWidget &make) {
            survivors << make(nullptr);
            survivors.last()->setProperty("styleSheet", css);
            make(survivors.last())->setProperty("styleSheet", css);
            QCOMPARE(survivors.last()->property("styleSheet").toString(), css);
        });
        // Not shown: a window that outlives its QApplication crashes in Qt, themed or not.
        // Their interfaces go with it, in an order that differs from run to run.
        for (QWidget *widget : qAsConst(survivors))
            QVERIFY(QAccessible::queryAccessibleInterface(widget));
        app.processEvents();
    }
    QVERIFY(!bus);
    for (QWidget *widget : qAsConst(survivors))
        QCOMPARE(widget->property("styleSheet").toString(), css);
    qDeleteAll(survivors);
    QCOMPARE(log.take(), QStringList());

    // Another application object in the same process starts afresh.
    Application app;
    QVERIFY(app.getColorSets().empty());
    app.setColorSets(spelledSets({"a", "b"}, 3));
    WFrame frame;
    frame.setCSS(css);
    app.setColorSets(spelledSets({"a", "b"}, 5));
    QVERIFY(frame.styleSheet().contains(QLatin1String("#ff010105")));
    frame.setAccessibleRole(QAccessible::Notification);
    QCOMPARE(QAccessible::queryAccessibleInterface(&frame)->role(), QAccessible::Notification);
}

void tst_Lifetime::manyWidgets()
{
    Application app;
    app.setColorSets(spelledSets({"a", "b"}));
    WFrame window;
    const auto round = [&window](int count) {
        QVector<QWidget *> widgets;
        while (widgets.size() < count) {
            forEachThemedClass([&](const char *, const MakeWidget &make) {
                widgets << make(widgets.size() % 3 ? &window : nullptr);
                widgets.last()->setProperty("styleSheet", css);
                if (widgets.size() % 7 == 0)
                    QAccessible::queryAccessibleInterface(widgets.last());
            });
        }
        qDeleteAll(widgets);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents(); // clears the places of events for the dead
    };
    round(500);
    const int followers = app.followers(), colorFollowers = app.colorFollowers();
    round(10000); // Qt keeps the tables it needed for so many at once
    const qint64 before = heapInUse();
    round(10000);
    QCOMPARE(app.followers(), followers);
    QCOMPARE(app.colorFollowers(), colorFollowers);
    // The smallest block kept for each widget would be 320,000 bytes.
    QVERIFY2(heapInUse() - before < 200000, qPrintable(QString::number(heapInUse() - before)));
}

void tst_Lifetime::manySwitches()
{
    Application app;
    const WColorSets light = spelledSets({"a", "b"}, 1), dark = spelledSets({"a", "b"}, 2);
    app.setColorSets(light);
    WFrame window;
    forEachThemedClass([&](const char *, const MakeWidget &make) {
        QWidget *widget = make(&window);
        widget->setParent(&window, Qt::Widget);
        widget->setProperty("styleSheet", css);
    });
    window.show();
    const auto round = [&](int count) {
        for (int i = 0; i < count; ++i) {
            app.setIsDarkTheme(i % 2);
            app.setColorSets(i % 2 ? dark : light);
            app.setInvertedColorSets(i % 2 ? light : dark);
        }
        QCoreApplication::processEvents();
    };
    round(50);
    const qint64 before = heapInUse();
    round(1000);
    // Qt's own spin boxes and sliders keep some bytes at each change of a plain sheet too. A single small block kept by
    // each of the 50,000 restylings would be 800,000 bytes and more.
    QVERIFY2(heapInUse() - before < 150000, qPrintable(QString::number(heapInUse() - before)));
}

// No QTEST_MAIN: the tests make their application objects themselves, and one is there without any.
int main(int count, char **arguments)
{
    tst_Lifetime test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_lifetime.moc"
