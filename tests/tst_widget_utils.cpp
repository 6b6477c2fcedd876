#include <UiElements/widgets/WidgetUtils.h>

#include "support/WarningLog.h"

#include <QDataStream>
#include <QDir>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMainWindow>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <QWidget>

#include <climits>
#include <memory>

#include <sys/stat.h>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject membersOf(const QString &path)
{
    return QJsonDocument::fromJson(contentOf(path)).object();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray json(const QJsonValue &geometry, const QJsonValue &state = QJsonValue::Undefined)
{
    QJsonObject members {{QStringLiteral("geometry"), geometry}};
    members.insert(QStringLiteral("WindowState"), state);
    return QJsonDocument(members).toJson();
}

QString base64(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

/// What QWidget::saveGeometry() writes, with values that a test cannot make the platform report.
struct GeometryBytes
{
    QRect normal {100, 100, 300, 200};
    QRect outer;
    quint16 version = 3;
    qint32 screenNumber = 0;
    qint32 screenWidth = QGuiApplication::primaryScreen()->geometry().width();
    bool maximized = false;

    QByteArray bytes() const
    {
        QByteArray result;
        QDataStream stream(&result, QIODevice::WriteOnly);
        stream.setVersion(QDataStream::Qt_4_0);
        stream << quint32(0x1D9D0CB) << version << quint16(0) << (outer.isValid() ? outer : normal) << normal
               << screenNumber << quint8(maximized) << quint8(0) << screenWidth << normal;
        return result;
    }
    QString text() const { return base64(bytes()); }
};

std::unique_ptr<QMainWindow> mainWindowWithDock()
{
    auto window = std::make_unique<QMainWindow>();
    auto *dock = new QDockWidget(window.get());
    dock->setObjectName(QStringLiteral("dock"));
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    return window;
}

Qt::DockWidgetArea dockArea(QMainWindow *window)
{
    return window->dockWidgetArea(window->findChild<QDockWidget *>());
}

QRect available()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

using Rects = QList<QRect>;

} // namespace

class tst_WidgetUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void fittedToScreen_data();
    void fittedToScreen();
    void keepOnScreenMovesTheFrame_data();
    void keepOnScreenMovesTheFrame();
    void keepOnScreenLeavesMaximizedWindows_data();
    void keepOnScreenLeavesMaximizedWindows();
    void keepOnScreenRespectsTheMinimumSize();
    void savedIsRestored_data();
    void savedIsRestored();
    void mainWindowState();
    void minimizedIsNotRemembered();
    void geometryOfAnotherScreen_data();
    void geometryOfAnotherScreen();
    void firstStart_data();
    void firstStart();
    void badFilesChangeNothing_data();
    void badFilesChangeNothing();
    void damagedStatesDoNotCrash();
    void aPipeIsNotWaitedFor();
    void foreignMembersAreKept();
    void theFileIsReplacedAsAWhole();
    void damagedFilesAreReplaced();
    void filesOfOthersAreNotTouched_data();
    void filesOfOthersAreNotTouched();
    void unusableWindows();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;
};

void tst_WidgetUtils::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_path = m_dir->filePath(QStringLiteral("window.json"));
}

void tst_WidgetUtils::fittedToScreen_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<Rects>("screens");
    QTest::addColumn<QRect>("fitted");

    // A panel of 30 at the top of the first; the second stands to the right of it, the third left and above.
    const QRect main(0, 30, 1000, 770);
    const QRect right(1000, 0, 1000, 800);
    const QRect upperLeft(-1000, -500, 1000, 800);
    const Rects one {main};
    const Rects all {main, right, upperLeft};

    QTest::newRow("inside") << QRect(10, 40, 300, 200) << one << QRect(10, 40, 300, 200);
    QTest::newRow("exactly the screen") << main << one << main;
    QTest::newRow("out at the left") << QRect(-1, 40, 300, 200) << one << QRect(0, 40, 300, 200);
    QTest::newRow("out at the top, under the panel") << QRect(10, 29, 300, 200) << one << QRect(10, 30, 300, 200);
    QTest::newRow("out at the right") << QRect(701, 40, 300, 200) << one << QRect(700, 40, 300, 200);
    QTest::newRow("out at the bottom") << QRect(10, 601, 300, 200) << one << QRect(10, 600, 300, 200);
    QTest::newRow("out at a corner") << QRect(900, 700, 300, 200) << one << QRect(700, 600, 300, 200);
    QTest::newRow("wholly outside") << QRect(5000, -5000, 300, 200) << one << QRect(700, 30, 300, 200);
    QTest::newRow("too wide") << QRect(500, 40, 1001, 200) << one << QRect(0, 40, 1000, 200);
    QTest::newRow("too high") << QRect(10, 300, 300, 771) << one << QRect(10, 30, 300, 770);
    QTest::newRow("larger than the screen all round") << QRect(-50, -50, 3000, 3000) << one << main;

    QTest::newRow("more on the left of two") << QRect(800, 40, 300, 200) << all << QRect(700, 40, 300, 200);
    QTest::newRow("more on the right of two") << QRect(900, 40, 300, 200) << all << QRect(1000, 40, 300, 200);
    QTest::newRow("half on each: the right one") << QRect(850, 40, 300, 200) << all << QRect(1000, 40, 300, 200);
    QTest::newRow("half on each, the right one listed first")
        << QRect(850, 40, 300, 200) << Rects {right, main} << QRect(1000, 40, 300, 200);
    QTest::newRow("negative coordinates, inside") << QRect(-900, -400, 300, 200) << all << QRect(-900, -400, 300, 200);
    QTest::newRow("negative coordinates, out at the top left")
        << QRect(-1100, -600, 300, 200) << all << QRect(-1000, -500, 300, 200);
    QTest::newRow("negative coordinates, out at the bottom right")
        << QRect(-299, 150, 300, 200) << all << QRect(-300, 100, 300, 200);
    QTest::newRow("in the corner that is no screen") << QRect(-500, 600, 300, 200) << all << QRect(0, 600, 300, 200);
    QTest::newRow("nearest is above") << QRect(-900, 350, 300, 200) << all << QRect(-900, 100, 300, 200);
    QTest::newRow("adjacent is nearer than one pixel off")
        << QRect(-300, 300, 300, 200) << Rects {QRect(1, 0, 1000, 800), upperLeft} << QRect(-300, 100, 300, 200);
    QTest::newRow("one pixel of overlap beats touching")
        << QRect(999, 600, 300, 200) << Rects {main, QRect(1000, 800, 1000, 800)} << QRect(700, 600, 300, 200);

    QTest::newRow("no screen") << QRect(-9000, 0, 300, 200) << Rects() << QRect(-9000, 0, 300, 200);
    QTest::newRow("empty screens do not count")
        << QRect(-9000, 0, 300, 200) << Rects {QRect(), QRect(0, 0, 0, 800)} << QRect(-9000, 0, 300, 200);
    QTest::newRow("empty frame") << QRect(-9000, 0, 0, 0) << one << QRect(-9000, 0, 0, 0);
    QTest::newRow("at the limits of int") << QRect(QPoint(INT_MIN, INT_MIN), QPoint(INT_MAX, INT_MAX)) << all
                                          << upperLeft.united(right).intersected(right);
    QTest::newRow("as far away as can be")
        << QRect(QPoint(INT_MAX - 299, INT_MIN), QPoint(INT_MAX, INT_MIN + 199)) << all << QRect(1700, 0, 300, 200);
}

void tst_WidgetUtils::fittedToScreen()
{
    QFETCH(QRect, frame);
    QFETCH(Rects, screens);
    QTEST(WidgetUtils::fittedToScreen(frame, screens), "fitted");
}

void tst_WidgetUtils::keepOnScreenMovesTheFrame_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<bool>("keepsSize");

    QTest::newRow("inside") << QRect(100, 100, 300, 200) << true;
    QTest::newRow("out at the top left") << QRect(0, 0, 300, 200) << true;
    QTest::newRow("out at the bottom right") << QRect(700, 700, 300, 200) << true;
    QTest::newRow("far away") << QRect(-9000, 9000, 300, 200) << true;
    QTest::newRow("larger than the screen") << QRect(100, 100, 5000, 4000) << false;
}

void tst_WidgetUtils::keepOnScreenMovesTheFrame()
{
    QFETCH(QRect, geometry);
    QFETCH(bool, keepsSize);

    QWidget window;
    window.show();
    window.setGeometry(geometry);
    QVERIFY(window.frameGeometry() != window.geometry()); // the platform draws a frame, or this tests less than it says
    WidgetUtils::keepOnScreen(&window);

    QCOMPARE(window.frameGeometry().intersected(available()), window.frameGeometry());
    if (keepsSize)
        QCOMPARE(window.size(), geometry.size());
    else
        QCOMPARE(window.frameGeometry(), available());
    if (available().contains(geometry.adjusted(-50, -50, 50, 50)))
        QCOMPARE(window.geometry(), geometry);
}

void tst_WidgetUtils::keepOnScreenLeavesMaximizedWindows_data()
{
    QTest::addColumn<Qt::WindowStates>("states");
    QTest::newRow("maximized") << Qt::WindowStates(Qt::WindowMaximized);
    QTest::newRow("full screen") << Qt::WindowStates(Qt::WindowFullScreen);
    QTest::newRow("minimized from maximized") << (Qt::WindowMaximized | Qt::WindowMinimized);
}

void tst_WidgetUtils::keepOnScreenLeavesMaximizedWindows()
{
    QFETCH(Qt::WindowStates, states);
    QWidget window;
    window.setGeometry(-9000, 9000, 300, 200);
    window.setWindowState(states);
    WidgetUtils::keepOnScreen(&window);
    QCOMPARE(window.geometry(), QRect(-9000, 9000, 300, 200));
    QCOMPARE(window.windowState(), states);
}

void tst_WidgetUtils::keepOnScreenRespectsTheMinimumSize()
{
    QWidget window;
    window.setMinimumSize(5000, 4000);
    window.setGeometry(-100, -100, 5000, 4000);
    WidgetUtils::keepOnScreen(&window);
    QCOMPARE(window.geometry(), QRect(available().topLeft(), QSize(5000, 4000)));
}

void tst_WidgetUtils::savedIsRestored_data()
{
    QTest::addColumn<bool>("shown");
    QTest::addColumn<Qt::WindowStates>("states");

    for (bool shown : {false, true}) {
        const char *when = shown ? "shown" : "hidden";
        QTest::addRow("normal, %s", when) << shown << Qt::WindowStates();
        QTest::addRow("maximized, %s", when) << shown << Qt::WindowStates(Qt::WindowMaximized);
        QTest::addRow("full screen, %s", when) << shown << Qt::WindowStates(Qt::WindowFullScreen);
    }
}

void tst_WidgetUtils::savedIsRestored()
{
    QFETCH(bool, shown);
    QFETCH(Qt::WindowStates, states);
    const QRect geometry(120, 130, 340, 250);
    WarningLog log;

    QWidget before;
    before.setGeometry(geometry);
    before.setVisible(shown);
    before.setWindowState(states);
    // A path below folders that do not exist yet, as in a new home.
    const QString path = m_dir->filePath(QStringLiteral("config/client/window.json"));
    QVERIFY(WidgetUtils::saveGeometry(&before, path));

    QWidget after;
    after.setGeometry(1, 2, 50, 60);
    after.setVisible(shown);
    after.setWindowState(Qt::WindowMaximized); // gives way to the saved state
    QVERIFY(WidgetUtils::restoreGeometry(&after, path));
    QCOMPARE(after.windowState() & ~Qt::WindowActive, states);
    if (!states)
        QCOMPARE(after.geometry(), geometry);
    after.setWindowState(Qt::WindowNoState);
    after.show();
    QTRY_COMPARE(after.geometry(), geometry);
    QCOMPARE(log.take(), QStringList());
}

void tst_WidgetUtils::mainWindowState()
{
    const auto before = mainWindowWithDock();
    before->setGeometry(50, 60, 400, 300);
    before->setWindowState(Qt::WindowMaximized);
    before->addDockWidget(Qt::BottomDockWidgetArea, before->findChild<QDockWidget *>());
    QVERIFY(WidgetUtils::saveGeometry(before.get(), m_path));
    QVERIFY(membersOf(m_path).value(QStringLiteral("WindowState")).isString());

    const auto after = mainWindowWithDock();
    QVERIFY(WidgetUtils::restoreGeometry(after.get(), m_path));
    QCOMPARE(dockArea(after.get()), Qt::BottomDockWidgetArea);
    QVERIFY(after->isMaximized());
}

void tst_WidgetUtils::minimizedIsNotRemembered()
{
    QWidget window;
    window.setWindowState(Qt::WindowMinimized | Qt::WindowMaximized);
    QVERIFY(WidgetUtils::saveGeometry(&window, m_path));
    QCOMPARE(membersOf(m_path).value(QStringLiteral("WindowState")), QJsonValue(int(Qt::WindowMaximized)));
    QWidget next;
    QVERIFY(WidgetUtils::restoreGeometry(&next, m_path));
    QCOMPARE(next.windowState(), Qt::WindowStates(Qt::WindowMaximized));

    // Nor is it taken from a file that has it all the same.
    write(m_path, json(GeometryBytes().text(), int(Qt::WindowMinimized)));
    QVERIFY(WidgetUtils::restoreGeometry(&next, m_path));
    QCOMPARE(next.windowState(), Qt::WindowStates());
}

void tst_WidgetUtils::geometryOfAnotherScreen_data()
{
    QTest::addColumn<QString>("geometry");
    QTest::addColumn<QRect>("expected");
    QTest::addColumn<bool>("maximized");

    const QRect screen = available();
    const QRect far(2500, 900, 300, 200);
    const QRect corner(screen.right() - 299, screen.bottom() - 199, 300, 200);

    GeometryBytes wide;
    wide.screenWidth = 3840;
    QTest::newRow("wider, and the window still fits") << wide.text() << QRect(100, 100, 300, 200) << false;
    wide.normal = far;
    QTest::newRow("wider, and the window was beyond") << wide.text() << corner << false;
    wide.outer = far.adjusted(-4, -24, 4, 4);
    QTest::newRow("the frame must fit as well") << wide.text() << corner.translated(-4, -4) << false;
    wide.outer = far.adjusted(-4000, -24, 4, 4);
    QTest::newRow("a frame that cannot be is ignored") << wide.text() << corner << false;
    wide.outer = QRect();
    wide.maximized = true;
    QTest::newRow("wider, maximized") << wide.text() << corner << true;

    GeometryBytes edge;
    edge.normal = QRect(0, 100, 300, 200);
    edge.outer = edge.normal.adjusted(-4, -24, 4, 4);
    QTest::newRow("the same, with the frame out at the left") << edge.text() << QRect(4, 100, 300, 200) << false;

    GeometryBytes gone;
    gone.normal = QRect(-1800, 100, 300, 200);
    gone.screenNumber = 7;
    QTest::newRow("gone") << gone.text() << QRect(0, 100, 300, 200) << false;
    gone.screenNumber = INT_MIN;
    QTest::newRow("never was") << gone.text() << QRect(0, 100, 300, 200) << false;
}

void tst_WidgetUtils::geometryOfAnotherScreen()
{
    QFETCH(QString, geometry);
    QFETCH(bool, maximized);
    write(m_path, json(geometry));
    WarningLog log;
    QWidget window;
    QVERIFY(WidgetUtils::restoreGeometry(&window, m_path));
    QTEST(window.geometry(), "expected");
    QCOMPARE(window.isMaximized(), maximized);
    QCOMPARE(log.take(), QStringList());
}

void tst_WidgetUtils::firstStart_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no file") << QByteArray();
    QTest::newRow("no geometry in it yet") << QByteArray(R"({"zoom": 3})");
}

void tst_WidgetUtils::firstStart()
{
    QFETCH(QByteArray, content);
    if (!content.isNull())
        write(m_path, content);
    WarningLog log;
    QWidget window;
    window.setGeometry(-9000, 0, 300, 200);
    QVERIFY(!WidgetUtils::restoreGeometry(&window, m_path));
    QCOMPARE(window.geometry(), QRect(-9000, 0, 300, 200));
    QCOMPARE(log.take(), QStringList());
}

void tst_WidgetUtils::badFilesChangeNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isMainWindow");

    const GeometryBytes good;
    const QByteArray goodState = mainWindowWithDock()->saveState();

    const QByteArray file = json(good.text(), 2);
    for (int length : {0, 1, 10, file.indexOf("WindowState"), file.size() - 3})
        QTest::addRow("truncated to %d of %d", length, file.size()) << file.left(length) << false;
    QTest::newRow("too large") << file + QByteArray(1024 * 1024, ' ') << false;
    QTest::newRow("an array") << "[" + file + "]" << false;
    QTest::newRow("binary") << QByteArray("\0\xff\xfe\x01", 4) << false;

    QTest::newRow("geometry: null") << json(QJsonValue::Null) << false;
    QTest::newRow("geometry: number") << json(5) << false;
    QTest::newRow("geometry: empty") << json(QString()) << false;
    QTest::newRow("geometry: no base64") << json(QLatin1Char('?') + good.text()) << false;
    for (int length : {3, 7, 39, 49, good.bytes().size() - 1})
        QTest::addRow("geometry: the first %d bytes", length) << json(base64(good.bytes().left(length))) << false;
    QTest::newRow("geometry: other first byte") << json(base64(good.bytes().replace(0, 1, "\x02"))) << false;
    GeometryBytes future;
    future.version = 4;
    QTest::newRow("geometry: of a later Qt") << json(future.text()) << false;
    GeometryBytes absurd;
    absurd.normal = QRect(QPoint(INT_MIN, 0), QPoint(INT_MAX, 200));
    QTest::newRow("geometry: absurd") << json(absurd.text()) << false;

    QTest::newRow("state: of a main window") << json(good.text(), base64(goodState)) << false;
    QTest::newRow("state: negative") << json(good.text(), -1) << false;
    QTest::newRow("state: fraction") << json(good.text(), 1.5) << false;
    QTest::newRow("state: unknown bit") << json(good.text(), 16) << false;
    QTest::newRow("state: huge") << json(good.text(), 1e300) << false;
    QTest::newRow("main window state: number") << json(good.text(), 2) << true;
    QTest::newRow("main window state: null") << json(good.text(), QJsonValue::Null) << true;
    QTest::newRow("main window state: no base64") << json(good.text(), QStringLiteral("/wAA?")) << true;
    for (int length : {1, 4, goodState.size() / 2})
        QTest::addRow("main window state: the first %d of %d bytes", length, goodState.size())
            << json(good.text(), base64(goodState.left(length))) << true;
}

void tst_WidgetUtils::badFilesChangeNothing()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isMainWindow);
    write(m_path, content);

    std::unique_ptr<QWidget> window;
    if (isMainWindow)
        window = mainWindowWithDock();
    else
        window = std::make_unique<QWidget>();
    window->setGeometry(-9000, 20, 330, 220); // off the screen: not even that is put right
    window->setWindowState(Qt::WindowFullScreen);
    auto *mainWindow = qobject_cast<QMainWindow *>(window.get());
    const QByteArray stateBefore = mainWindow ? mainWindow->saveState() : QByteArray();

    WarningLog log;
    QVERIFY(!WidgetUtils::restoreGeometry(window.get(), m_path));
    QCOMPARE(window->geometry(), QRect(-9000, 20, 330, 220));
    QCOMPARE(window->windowState(), Qt::WindowStates(Qt::WindowFullScreen));
    if (mainWindow)
        QCOMPARE(mainWindow->saveState(), stateBefore);

    const QStringList warnings = log.take();
    QCOMPARE(warnings.size(), 1);
    const QString start = QStringLiteral("WidgetUtils::restoreGeometry - \"%1\": ").arg(m_path);
    QVERIFY2(warnings.first().startsWith(start), qPrintable(warnings.first()));
    QVERIFY(warnings.first().size() > start.size());
    QCOMPARE(contentOf(m_path), content);
}

void tst_WidgetUtils::damagedStatesDoNotCrash()
{
    // Tabs, nesting, a floating dock, two areas, and tool bars in two lines.
    QMainWindow window;
    QList<QDockWidget *> docks;
    for (int i = 0; i < 6; ++i) {
        docks << new QDockWidget(&window);
        docks.last()->setObjectName(QString::number(i));
        window.addDockWidget(i < 5 ? Qt::LeftDockWidgetArea : Qt::BottomDockWidgetArea, docks.last());
    }
    window.splitDockWidget(docks.at(0), docks.at(1), Qt::Horizontal);
    window.tabifyDockWidget(docks.at(2), docks.at(3));
    docks.at(4)->setFloating(true);
    for (int i = 0; i < 3; ++i) {
        window.addToolBar(QStringLiteral("bar"))->setObjectName(QStringLiteral("bar %1").arg(i));
        if (i == 1)
            window.addToolBarBreak();
    }
    const QByteArray good = window.saveState();
    const QString geometry = GeometryBytes().text();

    WarningLog log; // holds what the platform and Qt say about floating docks as well
    const auto ours = [&log] {
        return log.take().filter(QStringLiteral("WidgetUtils::")).size();
    };
    write(m_path, json(geometry, base64(good)));
    QVERIFY(WidgetUtils::restoreGeometry(&window, m_path));
    QCOMPARE(ours(), 0);

    int refused = 0;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < good.size(); ++i) {
        for (char byte : {'\x7f', '\xff'}) {
            QByteArray damaged = good;
            damaged[i] = byte;
            write(m_path, json(geometry, base64(damaged)));
            refused += !WidgetUtils::restoreGeometry(&window, m_path);
        }
    }
    QVERIFY(refused > 0);
    QVERIFY2(timer.elapsed() < 30000, "a count is believed that the bytes cannot hold");
    QCOMPARE(ours(), refused);

    QByteArray nested = good.left(8);
    QDataStream stream(&nested, QIODevice::Append);
    stream << quint8(0xfd) << qint32(1) << qint32(0) << QSize(1, 1);
    for (int depth = 0; depth < 20000; ++depth)
        stream << quint8(0xfc) << quint8(1) << qint32(1) << quint8(0xfc) << 0 << 0 << 0 << 0;
    write(m_path, json(geometry, base64(nested)));
    QVERIFY(!WidgetUtils::restoreGeometry(&window, m_path));
    QCOMPARE(ours(), 1);
}

void tst_WidgetUtils::aPipeIsNotWaitedFor()
{
    QCOMPARE(mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    QWidget window;
    WarningLog log;
    QVERIFY(!WidgetUtils::restoreGeometry(&window, m_path));
    QVERIFY(!WidgetUtils::saveGeometry(&window, m_path));
    QCOMPARE(log.take().size(), 2);
}

void tst_WidgetUtils::foreignMembersAreKept()
{
    write(m_path, R"({"zoom": 1.25, "geometry": 5, "id": 9007199254740991, "Geometry": {"a": [null, true]}})");
    QWidget window;
    QVERIFY(WidgetUtils::saveGeometry(&window, m_path));
    QVERIFY(WidgetUtils::saveGeometry(&window, m_path));

    QJsonObject members = membersOf(m_path);
    QVERIFY(members.take(QStringLiteral("geometry")).isString());
    QCOMPARE(members.take(QStringLiteral("WindowState")), QJsonValue(0));
    QCOMPARE(QJsonDocument(members).toJson(QJsonDocument::Compact),
             QByteArray(R"({"Geometry":{"a":[null,true]},"id":9007199254740991,"zoom":1.25})"));
}

void tst_WidgetUtils::theFileIsReplacedAsAWhole()
{
    const QByteArray old = R"({"zoom": 3})";
    write(m_path, old);
    QFile reader(m_path);
    QVERIFY(reader.open(QIODevice::ReadOnly));
    QWidget window;
    QVERIFY(WidgetUtils::saveGeometry(&window, m_path));
    // Who has the old file open keeps it: nothing was written into it, so no crash can leave half of it.
    QCOMPARE(reader.readAll(), old);
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList(QStringLiteral("window.json")));
}

void tst_WidgetUtils::damagedFilesAreReplaced()
{
    write(m_path, R"({"zoom": 3, "geom)");
    QWidget window;
    window.setGeometry(70, 80, 300, 200);
    WarningLog log;
    QVERIFY(WidgetUtils::saveGeometry(&window, m_path));
    QCOMPARE(log.take().size(), 1);
    QWidget next;
    QVERIFY(WidgetUtils::restoreGeometry(&next, m_path));
    QCOMPARE(next.geometry(), QRect(70, 80, 300, 200));
    QCOMPARE(log.take(), QStringList());
}

void tst_WidgetUtils::filesOfOthersAreNotTouched_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    const QString file = QStringLiteral("window.json");
    QTest::newRow("an array") << file << QByteArray("[1, 2]");
    QTest::newRow("too large") << file << QByteArray("{}") + QByteArray(1024 * 1024, ' ');
    QTest::newRow("a folder") << QStringLiteral(".") << QByteArray("{}");
    QTest::newRow("a folder that is a file") << QStringLiteral("window.json/window.json") << QByteArray("{}");
    QTest::newRow("no path") << QString() << QByteArray("{}");
}

void tst_WidgetUtils::filesOfOthersAreNotTouched()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    write(m_path, content);
    const QString path = name.isEmpty() ? QString() : m_dir->filePath(name);
    QWidget window;
    WarningLog log;
    QVERIFY(!WidgetUtils::saveGeometry(&window, path));
    const QStringList warnings = log.take();
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.first().startsWith(QStringLiteral("WidgetUtils::saveGeometry - \"%1\": ").arg(path)),
             qPrintable(warnings.first()));
    QCOMPARE(contentOf(m_path), content);
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList(QStringLiteral("window.json")));
}

void tst_WidgetUtils::unusableWindows()
{
    write(m_path, json(GeometryBytes().text(), 0));
    QWidget window;
    QWidget child(&window);
    child.setObjectName(QStringLiteral("pane"));
    child.setGeometry(-9000, 9000, 30, 20);
    const QString other = m_dir->filePath(QStringLiteral("other.json"));
    WarningLog log;

    WidgetUtils::keepOnScreen(nullptr);
    QVERIFY(!WidgetUtils::saveGeometry(nullptr, other));
    QVERIFY(!WidgetUtils::restoreGeometry(nullptr, m_path));
    QCOMPARE(log.take(),
             QStringList() << QStringLiteral("WidgetUtils::keepOnScreen - The window is null")
                           << QStringLiteral("WidgetUtils::saveGeometry - The window is null")
                           << QStringLiteral("WidgetUtils::restoreGeometry - The window is null"));

    WidgetUtils::keepOnScreen(&child);
    QVERIFY(!WidgetUtils::saveGeometry(&child, other));
    QVERIFY(!WidgetUtils::restoreGeometry(&child, m_path));
    QCOMPARE(log.take(),
             QStringList() << QStringLiteral("WidgetUtils::keepOnScreen - Not a window: QWidget \"pane\"")
                           << QStringLiteral("WidgetUtils::saveGeometry - Not a window: QWidget \"pane\"")
                           << QStringLiteral("WidgetUtils::restoreGeometry - Not a window: QWidget \"pane\""));
    QCOMPARE(child.geometry(), QRect(-9000, 9000, 30, 20));
    QVERIFY(!QFileInfo::exists(other));
}

QTEST_MAIN(tst_WidgetUtils)
#include "tst_widget_utils.moc"
