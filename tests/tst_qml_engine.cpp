#include <UiElements/app/WApplication.h>
#include <UiElements/qml/WCustomAccessibleQuickWidget.h>
#include <UiElements/qml/WPopupQuickView.h>
#include <UiElements/qml/WQmlController.h>
#include <UiElements/qml/WQmlEngine.h>
#include <UiElements/qml/WQmlEngineLoader.h>
#include <UiElements/qml/WQmlEngineLoader_p.h>
#include <UiElements/qml/WQmlViewFactory.h>

#include "support/QmlFiles.h"

#include <QProcess>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>

#include <memory>

// Application objects come and go here. There must be no QQuickWidget: Qt makes them in one such object only.
class tst_QmlEngineAndApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loaderWithoutApplication();
    void applicationEngine();
    void firstAskedForAtTheEnd();
    void notAttached();
};

class tst_QmlEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void importPath_data();
    void importPath();
    void statusLog_data();
    void statusLog();
    void sceneGraphErrorIsToldOnce();
    void performanceWatcher();
    void loader();
    void refusals_data();
    void refusals();
    void rootCannotBeLeft_data();
    void rootCannotBeLeft();
    void lifeOfAView_data();
    void lifeOfAView();
    void deprecatedObject();
    void reloadsFromDisk();
    void keepsValues();
    void brokenFileHeals();
    void notReloaded();
    void reportsWhatStaysAlive();
    void qmlDirectory();
    void destroyedInAnyOrder_data();
    void destroyedInAnyOrder();
    void applicationDestroyedBefore_data();
    void applicationDestroyedBefore();
    void manyPopups();
};

namespace {

int argc = 1;
char name[] = "tst_qml_engine";
char *argv[] = {name, nullptr};

using Deprecated = WQmlEngine::Deprecated;

struct Application : WApplication
{
    Application()
        : WApplication(argc, argv)
    {
        qmlRegisterType<WQmlController>("Test", 1, 0, "Controller");
    }
};

Application *application = nullptr; // of tst_QmlEngine

const QString outsideText = QStringLiteral("W Refusing a Qml source that leads out of the QML root: ");

/// The emissions as words: "Creating Ready".
class Statuses
{
public:
    explicit Statuses(WQmlEngine *engine)
        : m_spy(engine, &WQmlEngine::qmlViewStatusChanged)
    {
    }
    QString take()
    {
        QStringList words;
        for (const QVariantList &call : qAsConst(m_spy)) {
            const auto status = call.at(0).value<WQmlEngine::QmlViewStatus>();
            words << QString::fromLatin1(QMetaEnum::fromType<WQmlEngine::QmlViewStatus>().valueToKey(status));
        }
        m_spy.clear();
        return words.join(QLatin1Char(' '));
    }

private:
    QSignalSpy m_spy;
};

/// Makes one of each and destroys them in the order of the letters; true when nothing was complained about.
bool destroyAll(WApplication *app, const QString &order)
{
    MessageLog log;
    QScopedPointer<WQmlEngineLoader> loader(new WQmlEngineLoader);
    QScopedPointer<WQmlViewFactory> factory(new WQmlViewFactory(*loader));
    const QPointer<WQmlEngine> engine(loader->getQmlEngine());
    const QString source = QStringLiteral("test/Resource.qml");
    QScopedPointer<WQmlController> controller(new WQmlController);
    QScopedPointer<QWidget> window(new QWidget);
    const QPointer<WQuickView> popup(factory->createQmlPopup(source, nullptr, controller.data(), false));
    const QPointer<WQuickView> dialog(factory->createQmlDialog(source, popup, controller.data(), true));
    factory->createQmlWidget(source, window.data(), controller.data());
    factory->createQmlComponent(source, window.data(), controller.data(), {});
    popup->show();
    window->show();
    for (const QChar step : order) {
        switch (step.toLatin1()) {
        case 'a': delete app; break;
        case 'c': controller.reset(); break;
        case 'e': delete engine; break;
        case 'f': factory.reset(); break;
        case 'l': loader.reset(); break;
        case 'v':
            delete popup;
            delete dialog;
            break;
        case 'w': window.reset(); break;
        }
        if (QCoreApplication::instance())
            QCoreApplication::processEvents();
    }
    return log.takeWarnings().isEmpty();
}

struct InitController : WQmlController
{
    QVector<QMap<QString, QVariant>> calls;
    void init(const QMap<QString, QVariant> &properties) override { calls << properties; }
};

} // namespace

void tst_QmlEngine::cleanup()
{
    delete application->getQmlEngine();
}

void tst_QmlEngine::importPath_data()
{
    QTest::addColumn<QString>("value"); // %1 and %2 are folders that exist; null: unset
    QTest::addColumn<QString>("expected"); // empty: as Qt has it
    QTest::addColumn<QStringList>("warnings");
    const QString many = QStringLiteral("QML2_IMPORT_PATH should have only one path! This should NEVER happen!");
    const QString none = QStringLiteral("QML2_IMPORT_PATH isn't being set! This should NEVER happen!");
    const QString bad =
        QStringLiteral("QML2_IMPORT_PATH is invalid! This should NEVER happen! isEmpty: true isRelative: ");
    const QString no = QStringLiteral("false"), yes = QStringLiteral("true");
    const auto row = [](const char *label, const char *value, const char *expected, const QStringList &warnings) {
        QTest::newRow(label) << QString::fromLatin1(value) << QString::fromLatin1(expected) << warnings;
    };
    row("unset", nullptr, "", {});
    row("empty", "", "", {});
    row("only a colon", ":", "", {});
    row("one", "%1", "%1", {});
    row("two", "%2:%1", "%2:%1", {many});
    row("one of two is missing", "/no/such:%2", "%2", {many, bad + no});
    row("all missing", "/no/such", "", {bad + no, none});
    row("relative and missing", "no/such", "", {bad + yes, none});
    row("empty part", ":%1:", "%1", {});
}

void tst_QmlEngine::importPath()
{
    QFETCH(QString, value);
    QFETCH(QString, expected);
    QFETCH(QStringList, warnings);
    qunsetenv("QML2_IMPORT_PATH");
    const QTemporaryDir one, two;
    const auto withFolders = [&](QString text) {
        return text.replace(QLatin1String("%1"), one.path()).replace(QLatin1String("%2"), two.path());
    };
    WQmlEngine engine(nullptr);
    const QStringList before = engine.importPathList();
    if (!value.isNull())
        qputenv("QML2_IMPORT_PATH", QFile::encodeName(withFolders(value)));
    MessageLog log;
    engine.fixImportPath();
    qunsetenv("QML2_IMPORT_PATH");
    for (QString &warning : warnings)
        warning.prepend(QLatin1String("W "));
    QCOMPARE(log.take(), warnings);
    QCOMPARE(engine.importPathList(), expected.isEmpty() ? before : withFolders(expected).split(QLatin1Char(':')));
}

void tst_QmlEngine::statusLog_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("line");
    const auto row = [](int status, const char *line) {
        QTest::newRow(line) << status << QString::fromLatin1(line);
    };
    row(0, "I Qml statusChanged(Creating) a.qml because");
    row(1, "I Qml statusChanged(Initializing) a.qml because");
    row(2, "I Qml statusChanged(Ready) a.qml because");
    row(3, "I Qml statusChanged(DestroyedController) a.qml because");
    row(4, "I Qml statusChanged(DestroyedView) a.qml because");
    row(5, "W Qml ERROR! view:  \"a.qml\"  msg:  \"because\"");
}

void tst_QmlEngine::statusLog()
{
    QFETCH(int, status);
    QFETCH(QString, line);
    WQmlEngine engine(nullptr);
    // Queued, so that the type must be known by its name.
    QObject receiver;
    int got = -1;
    connect(
        &engine, &WQmlEngine::qmlViewStatusChanged, &receiver, [&](WQmlEngine::QmlViewStatus s) { got = s; },
        Qt::QueuedConnection);
    MessageLog log;
    Q_EMIT engine.qmlViewStatusChanged(WQmlEngine::QmlViewStatus(status), QStringLiteral("a.qml"),
                                       QStringLiteral("because"));
    QCOMPARE(log.take(), QStringList(line));
    QCoreApplication::processEvents();
    QCOMPARE(got, status);
}

void tst_QmlEngine::sceneGraphErrorIsToldOnce()
{
    const WQmlEngineLoader loader;
    const WQmlViewFactory factory(loader);
    WQmlEngine *const engine = loader.getQmlEngine();
    QmlFiles files(engine);
    files.write("A.qml", "Item { width: 5; height: 5 }");
    QSignalSpy told(&loader, &WQmlEngineLoader::sceneGraphCriticalError);
    QWidget window;
    const QScopedPointer<WQuickView> view(factory.createQmlWindow(QStringLiteral("A.qml"), nullptr, nullptr));
    WQuickWidget *const widget = factory.createQmlWidget(QStringLiteral("A.qml"), &window, nullptr);
    MessageLog log;
    Q_EMIT view->sceneGraphError(QQuickWindow::ContextNotAvailable, QStringLiteral("no context"));
    Q_EMIT widget->sceneGraphError(QQuickWindow::ContextNotAvailable, QStringLiteral("no context"));
    const QString line =
        QStringLiteral("W [WQmlViewFactory] Critical Scene Graph Error creating: \"A\"  with message: \"no context\"");
    QCOMPARE(log.take(), QStringList({line, line}));
    QCOMPARE(told.count(), 1);
    delete engine;

    // A host that ends the engine at once.
    WQmlEngine *const failing = loader.getQmlEngine();
    connect(&loader, &WQmlEngineLoader::sceneGraphCriticalError, failing, [failing] { delete failing; });
    failing->onSceneGraphCriticalError();
    QCOMPARE(told.count(), 2);
}

void tst_QmlEngine::performanceWatcher()
{
    WQmlEngineLoader loader;
    const WQmlViewFactory factory(loader);
    WQmlEngine *const engine = loader.getQmlEngine();
    QmlFiles files(engine);
    for (const char *file : {"A.qml", "DevToolsView.qml"})
        files.write(file, "Rectangle { width: 50; height: 50 }");
    const auto heard = std::make_shared<int>(0);
    connect(engine, &WQmlEngine::finishedRendering, engine, [heard](const QString &source, qint64 time) {
        ++*heard;
        QVERIFY(source.endsWith(QLatin1String("/A.qml")));
        QVERIFY(time > 1000 && time < Q_INT64_C(60000000000)); // nanoseconds
    });
    QWidget window;
    window.resize(100, 100);
    const auto showAll = [&] {
        QVector<QPointer<WQuickView>> views;
        for (const char *file : {"A.qml", "DevToolsView.qml"}) {
            views << factory.createQmlWindow(QString::fromLatin1(file), nullptr, nullptr);
            views.last()->show();
            factory.createQmlWidget(QString::fromLatin1(file), &window, nullptr)->show();
        }
        window.show();
        for (WQuickView *view : qAsConst(views))
            (void)QTest::qWaitForWindowExposed(view);
        QTest::qWait(50);
        for (WQuickView *view : qAsConst(views))
            delete view;
    };
    showAll();
    QCOMPARE(*heard, 0);
    engine->setPerformanceWatcherEnabled(true);
    showAll();
    QCOMPARE(*heard, 2); // once for the view and once for the widget
    engine->setPerformanceWatcherEnabled(true); // no change: nobody is disconnected
    Q_EMIT engine->finishedRendering(QStringLiteral("/A.qml"), 5000);
    QCOMPARE(*heard, 3);
    engine->setPerformanceWatcherEnabled(false);
    engine->setPerformanceWatcherEnabled(true);
    Q_EMIT engine->finishedRendering(QStringLiteral("/A.qml"), 5000);
    QCOMPARE(*heard, 3);
    delete engine;
}

void tst_QmlEngine::loader()
{
    Application &app = *application;
    QPointer<WQmlEngine> engine;
    {
        WQmlEngineLoader loader;
        QSignalSpy initialized(&loader, &WQmlEngineLoader::engineInitialized);
        QVERIFY(initialized.isEmpty());
        MessageLog log;
        engine = loader.getQmlEngine();
        QVERIFY(engine);
        QVERIFY(!engine->parent());
        const QStringList lines = log.take();
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines.at(0).startsWith(QLatin1String("D Qml has been loaded. Backend: ")), qPrintable(lines.at(0)));
        QCOMPARE(lines.at(1),
                 QStringLiteral("D Qml search paths:  \"%1\"").arg(engine->importPathList().join(QLatin1String(", "))));
        QCOMPARE(loader.getQmlEngine(), engine.data());
        QCOMPARE(initialized.count(), 1);
        QCOMPARE(initialized.at(0).at(0).value<WQmlEngine *>(), engine.data());
        QCOMPARE(log.take(), QStringList());

        delete engine;
        QCOMPARE(log.take(), QStringList(QStringLiteral("D WQmlEngine destroyed.")));
        engine = loader.getQmlEngine();
        QVERIFY(engine);
        QCOMPARE(initialized.count(), 2);
    }
    QVERIFY(engine);
    QTimer::singleShot(0, &app, &QCoreApplication::quit);
    app.exec();
    QVERIFY(!engine);
    QCoreApplication::processEvents(); // the application goes on after all

    WQmlEngineLoader::Impl impl(nullptr);
    impl.load();
    const QPointer<WQmlEngine> first(impl.engine());
    MessageLog log;
    impl.load();
    QCOMPARE(log.take(), QStringList(QStringLiteral("W Qml engine has already been initialized.")));
    QCOMPARE(impl.engine(), first.data());
    delete first;
}

void tst_QmlEngineAndApplication::loaderWithoutApplication()
{
    const WQmlEngineLoader loader;
    MessageLog log;
    QVERIFY(!loader.getQmlEngine());
    QCOMPARE(log.take().size(), 1);
    const WQmlViewFactory factory(loader);
    QVERIFY(!factory.createQmlWindow(QStringLiteral("A.qml"), nullptr, nullptr));
    QCOMPARE(log.takeWarnings().size(), 2);
}

void tst_QmlEngineAndApplication::applicationEngine()
{
    QPointer<WQmlEngine> engine;
    {
        Application app;
        MessageLog log;
        engine = app.getQmlEngine();
        QCOMPARE(log.take(),
                 QStringList({QStringLiteral("I [UILifecycle][Startup] Creating WQmlEngine."),
                              QStringLiteral("I [UILifecycle][Startup] Finished creating WQmlEngine.")}));
        QCOMPARE(app.getQmlEngine(), engine.data());
        QVERIFY(!engine->parent());
        QVERIFY(log.take().isEmpty());

        QSignalSpy reloads(engine, &WQmlEngine::reloadAllQmlViews);
        Q_EMIT app.getAppSignals()->reloadAllQmlViews();
        QCOMPARE(reloads.count(), 1);
        QCOMPARE(log.take(), QStringList(QStringLiteral("D Reloading WQmlEngine")));
    }
    QVERIFY(!engine); // no event loop ran

    Application app;
    engine = app.getQmlEngine();
    QTimer::singleShot(0, &app, &QCoreApplication::quit);
    WQmlEngine *late = engine;
    connect(&app, &QCoreApplication::aboutToQuit, &app, [&] {
        deleteNow();
        late = app.getQmlEngine();
    });
    app.exec();
    QVERIFY(!engine);
    QVERIFY(!late);
}

void tst_QmlEngineAndApplication::firstAskedForAtTheEnd()
{
    Application app;
    WQmlEngine *late = nullptr;
    const auto ask = connect(&app, &QCoreApplication::aboutToQuit, &app, [&] { late = app.getQmlEngine(); });
    QTimer::singleShot(0, &app, &QCoreApplication::quit);
    app.exec();
    QVERIFY(!late);
    disconnect(ask);
    QTimer::singleShot(0, &app, [&] {
        late = app.getQmlEngine();
        app.quit();
    });
    app.exec();
    QVERIFY(late); // it went on after all
}

void tst_QmlEngineAndApplication::notAttached()
{
    QApplication app(argc, argv);
    QWidget parent;
    MessageLog log;
    const QString source = QStringLiteral("A.qml");
    QVERIFY(!Deprecated::createQmlPopup(source, nullptr, {}, {}, false));
    QVERIFY(!Deprecated::createQmlDialog(source, nullptr, {}, {}, false));
    QVERIFY(!Deprecated::createQmlWindow(source, nullptr, {}, {}));
    QVERIFY(!Deprecated::createQmlWidget(source, &parent, {}, {}));
    QVERIFY(!Deprecated::createCustomAccessibleQmlWidget(source, &parent, {}, {}));
    Deprecated::createQmlComponent(source, nullptr, {}, {});
    const QString text = QStringLiteral(
        "W Unable to create QML view! WQmlEngine is not attached to WApplication! This should never happen!");
    QCOMPARE(log.take(), QStringList({text, text, text, text, text, text}));
}

namespace {

using Create = std::function<bool(const QString &source, QWidget *parent)>; // whether it made something
} // namespace
Q_DECLARE_METATYPE(Create)

void tst_QmlEngine::refusals_data()
{
    QTest::addColumn<Create>("create");
    QTest::addColumn<QString>("emptyHint");
    QTest::addColumn<QString>("noParent"); // empty: needs none
    const QString none;
    QTest::newRow("popup") << Create([](const QString &s, QWidget *) {
        return bool(Deprecated::createQmlPopup(s, nullptr, {}, {}, true));
    }) << none << none;
    QTest::newRow("dialog") << Create([](const QString &s, QWidget *) {
        return bool(Deprecated::createQmlDialog(s, nullptr, {}, {}, true));
    }) << none << none;
    QTest::newRow("window") << Create([](const QString &s, QWidget *) {
        return bool(Deprecated::createQmlWindow(s, nullptr, {}, {}));
    }) << none << none;
    QTest::newRow("widget") << Create([](const QString &s, QWidget *parent) {
        return bool(Deprecated::createQmlWidget(s, parent, {}, {}));
    }) << none << QStringLiteral("createQmlWindow");
    QTest::newRow("accessible widget") << Create([](const QString &s, QWidget *parent) {
        return bool(Deprecated::createCustomAccessibleQmlWidget(s, parent, {}, {}));
    }) << none << QStringLiteral("createCustomAccessibleQmlWidget");
    QTest::newRow("component") << Create([](const QString &s, QWidget *parent) {
        bool made = false;
        Deprecated::createQmlComponent(s, parent, {}, [&made](QObject *, WQmlController *) { made = true; });
        return made;
    }) << QStringLiteral(" Resource:")
                               << none;
}

void tst_QmlEngine::refusals()
{
    QFETCH(Create, create);
    QFETCH(QString, emptyHint);
    QFETCH(QString, noParent);
    Application &app = *application;
    QWidget parent;
    Statuses statuses(app.getQmlEngine());
    MessageLog log;
    QVERIFY(!create(QString(), &parent));
    QCOMPARE(log.take(),
             QStringList(QStringLiteral("W Trying to create a Qml view for an empty source! This should never "
                                        "happen!")
                         + emptyHint));
    QVERIFY(!create(QStringLiteral("../A.qml"), &parent));
    QCOMPARE(log.take(), QStringList(outsideText + QStringLiteral("\"../A.qml\"")));
    if (!noParent.isEmpty()) {
        QVERIFY(!create(QStringLiteral("A.qml"), nullptr));
        QCOMPARE(log.take(),
                 QStringList(QStringLiteral("W WQuickWidget should be created with a valid parent! Use "
                                            "WQmlEngine::Deprecated::%1 to create a popout window!")
                                 .arg(noParent)));
    }
    QCOMPARE(statuses.take(), QString());
}

void tst_QmlEngine::rootCannotBeLeft_data()
{
    QTest::addColumn<bool>("inside");
    for (const char *source : {"../A.qml",
                               "..",
                               "a/../../A.qml",
                               "/etc/A.qml",
                               "//host/A.qml",
                               "file:///etc/A.qml",
                               "qrc:/A.qml",
                               "http://host/A.qml",
                               "HTTP:A.qml",
                               ":/Qml/A.qml",
                               "%2e%2e/A.qml",
                               "%2E./A.qml",
                               "%252e%252e/A.qml",
                               "a%2f..%2f..%2fA.qml",
                               "%2fetc/A.qml",
                               "..\\A.qml",
                               "a\\..\\..\\A.qml",
                               "file%3a///etc/A.qml",
                               ".",
                               "a/.."})
        QTest::newRow(source) << false;
    for (const char *source :
         {"In.qml", "sub/In.qml", "sub/../In.qml", "./In.qml", "..In.qml", "100% In.qml", "In#1?.qml"})
        QTest::newRow(source) << true;
}

void tst_QmlEngine::rootCannotBeLeft()
{
    QFETCH(bool, inside);
    Application &app = *application;
    const QString source = QString::fromUtf8(QTest::currentDataTag());
    QmlFiles files(app.getQmlEngine());
    QDir(files.path()).mkdir(QStringLiteral("sub"));
    if (inside)
        files.write(QTest::currentDataTag(), "Item {}");
    MessageLog log;
    const QScopedPointer<WQuickView> view(Deprecated::createQmlWindow(source, nullptr, {}, {}));
    QCOMPARE(!view.isNull(), inside);
    if (inside)
        QCOMPARE(view->status(), QQuickView::Ready);
    else
        QCOMPARE(log.takeWarnings().size(), 1);
}

void tst_QmlEngine::lifeOfAView_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("popup") << 0;
    QTest::newRow("dialog") << 1;
    QTest::newRow("window") << 2;
    QTest::newRow("widget") << 3;
    QTest::newRow("accessible widget") << 4;
}

void tst_QmlEngine::lifeOfAView()
{
    QFETCH(int, kind);
    Application &app = *application;
    qmlRegisterType<InitController>("Test", 1, 0, "InitController");
    WQmlEngine *const engine = app.getQmlEngine();
    QmlFiles files(engine);
    files.write("My.View.qml", "import Test 1.0\nItem { width: 30; height: 20; Item { InitController {} } }");
    files.write("Bad.qml", "Item { nonsense: }");
    Statuses statuses(engine);
    QWidget parent;
    const Deprecated::Properties properties {{QStringLiteral("x"), 7}};
    WQmlController *told = nullptr;
    const auto onCreated = [&](WQmlController *controller) {
        told = controller;
    };
    const auto make = [&](const char *file) -> QObject * {
        const QString source = QString::fromLatin1(file);
        switch (kind) {
        case 0: return Deprecated::createQmlPopup(source, nullptr, properties, onCreated, false);
        case 1: return Deprecated::createQmlDialog(source, nullptr, properties, onCreated, true);
        case 2: return Deprecated::createQmlWindow(source, nullptr, properties, onCreated);
        case 3: return Deprecated::createQmlWidget(source, &parent, properties, onCreated);
        default: return Deprecated::createCustomAccessibleQmlWidget(source, &parent, properties, onCreated);
        }
    };
    QScopedPointer<QObject> view(make("My.View.qml"));
    QVERIFY(view);
    QCOMPARE(view->objectName(), QStringLiteral("My"));
    QCOMPARE(statuses.take(), QStringLiteral("Creating Initializing Ready"));
    auto *controller = static_cast<InitController *>(told);
    QVERIFY(controller);
    QCOMPARE(controller->calls, {properties});
    view.reset();
    QCOMPARE(statuses.take(), QStringLiteral("DestroyedController DestroyedView"));

    // It is there, to show what is wrong.
    told = nullptr;
    MessageLog log;
    view.reset(make("Bad.qml"));
    QVERIFY(view);
    QCOMPARE(statuses.take(), QStringLiteral("Creating Error"));
    QVERIFY(!told);
    QVERIFY(log.takeWarnings().join(QLatin1Char('\n')).contains(QLatin1String("W Qml ERROR! view:  \"Bad.qml\"")));
}

void tst_QmlEngine::deprecatedObject()
{
    Application &app = *application;
    WQmlEngine *const engine = app.getQmlEngine();
    QmlFiles files(engine);
    files.write("Thing.qml", "import Test 1.0\nQtObject { property Controller c: Controller {} }");
    files.write("WithController.qml", "import Test 1.0\nItem { Controller { objectName: 'c' } }");
    Statuses statuses(engine);
    QObject parent;
    const auto make = [&](const char *file) {
        QPair<QObject *, WQmlController *> result;
        Deprecated::createQmlComponent(QString::fromLatin1(file), &parent, {}, [&](QObject *object, WQmlController *c) {
            result = {object, c};
        });
        return result;
    };
    QObject *const thing = make("Thing.qml").first;
    QVERIFY(thing);
    QCOMPARE(thing->parent(), &parent);
    QCOMPARE(thing->objectName(), QStringLiteral("Thing"));
    QVERIFY(make("WithController.qml").second);
    QCOMPARE(statuses.take(), QStringLiteral("Creating Initializing Ready Creating Initializing Ready"));
    delete thing;
    QCOMPARE(statuses.take(), QStringLiteral("DestroyedView"));

    // Whatever was begun ends.
    files.write("Bad.qml", "QtObject { nonsense: }");
    files.write("Required.qml", "QtObject { required property int must }");
    const MessageLog log;
    make("Bad.qml");
    QCOMPARE(statuses.take(), QStringLiteral("Creating Error DestroyedView"));
    make("Required.qml");
    QCOMPARE(statuses.take(), QStringLiteral("Creating DestroyedView"));
}

// --- reloading

void tst_QmlEngine::reloadsFromDisk()
{
    const WQmlEngineLoader loader;
    const WQmlViewFactory factory(loader);
    WQmlEngine *const engine = loader.getQmlEngine();
    QmlFiles files(engine);
    const QByteArray outer = "Item { property QtObject controller; property string text: inner.text\n"
                             "width: inner.width; height: 9; Inner { id: inner } }";
    files.write("Outer.qml", outer);
    files.write("Inner.qml", "Item { property string text: 'old'; width: 40 }");
    QWidget window;
    WQmlController controller;
    const QString source = QStringLiteral("Outer.qml");
    const QScopedPointer<WQuickView> dialog(factory.createQmlDialog(source, nullptr, &controller, true));
    WQuickWidget *const widget = factory.createQmlWidget(source, &window, &controller);
    const QPointer<QQuickItem> oldRoot(widget->rootObject());
    QCOMPARE(dialog->width(), 40);

    files.write("Inner.qml", "Item { property string text: 'new'; width: 70 }");
    MessageLog log;
    engine->reload();
    QStringList lines = log.take();
    QCOMPARE(lines.takeFirst(), QStringLiteral("D Reloading WQmlEngine"));
    QCOMPARE(lines.filter(QLatin1String("W ")), QStringList());
    QCOMPARE(lines.filter(QLatin1String("I [WQmlViewFactory] Reloading QML view: ")).size(), 2);
    QVERIFY(!oldRoot);
    for (const QQuickItem *root : {dialog->rootObject(), widget->rootObject()}) {
        QVERIFY(root);
        QCOMPARE(root->property("text").toString(), QStringLiteral("new"));
        QCOMPARE(root->property("controller").value<QObject *>(), &controller);
    }
    QCOMPARE(dialog->status(), QQuickView::Ready);
    QCOMPARE(dialog->width(), 70); // still as large as its content

    delete engine;
    QVERIFY(!widget->rootObject());
}

void tst_QmlEngine::keepsValues()
{
    const WQmlEngineLoader loader;
    const WQmlViewFactory factory(loader);
    QmlFiles files(loader.getQmlEngine());
    const QByteArray body =
        "Item { property int count: 1; property var list: [1]; property Item item; property int other: 1\n"
        "property var keptProperties: ['count', 'list', 'item', 'gone', 'missing']; %1 }";
    files.write("A.qml", QByteArray(body).replace("%1", "property int gone: 1"));
    const QScopedPointer<WQuickView> view(factory.createQmlWindow(QStringLiteral("A.qml"), nullptr, nullptr));
    QQuickItem *root = view->rootObject();
    root->setProperty("count", 5);
    root->setProperty("other", 5);
    root->setProperty("gone", 5);
    root->setProperty("list", QVariantList {QStringLiteral("a"), 2});
    root->setProperty("item", QVariant::fromValue(root));
    MessageLog log;
    const auto reload = [&] {
        loader.getQmlEngine()->reload();
        return view->rootObject();
    };
    files.write("A.qml", "Item { nonsense }");
    QVERIFY(!reload());
    QVERIFY(!reload());
    log.take();
    files.write("A.qml", QByteArray(body).replace("%1", ""));
    root = reload();
    QVERIFY(root);
    QCOMPARE(log.takeWarnings(), QStringList());
    QCOMPARE(root->property("count").toInt(), 5);
    QCOMPARE(root->property("other").toInt(), 1);
    QCOMPARE(root->property("list").toList(), QVariantList({QStringLiteral("a"), 2}));
    QVERIFY(!root->property("item").value<QObject *>()); // it is no more
    QVERIFY(!root->property("gone").isValid());
    delete loader.getQmlEngine();
}

void tst_QmlEngine::brokenFileHeals()
{
    const WQmlEngineLoader loader;
    const WQmlViewFactory factory(loader);
    WQmlEngine *const engine = loader.getQmlEngine();
    QmlFiles files(engine);
    QWidget window;
    QVector<QPair<const char *, QByteArray>> faults {
        {"syntax", "Item { width: }"},
        {"unknown type", "NoSuchType {}"},
        {"in another file", "Item { Broken {} }"},
        {"no item", "QtObject {}"},
        {"a window", "import QtQuick.Window 2.15\nWindow {}"},
        {"required property", "Item { required property int must }"},
    };
    files.write("Broken.qml", "Item { x: }");
    WQmlController controller;
    for (const auto &fault : faults) {
        files.write("A.qml", fault.second);
        engine->reload();
        Statuses statuses(engine);
        MessageLog log;
        const QScopedPointer<WQuickView> view(
            factory.createQmlPopup(QStringLiteral("A.qml"), nullptr, &controller, false));
        QScopedPointer<WQuickWidget> widget(factory.createQmlWidget(QStringLiteral("A.qml"), &window, &controller));
        QVERIFY(view && widget);
        const QString text = log.takeWarnings().join(QLatin1Char('\n'));
        QVERIFY2(text.contains(QLatin1String("W [WQmlViewFactory] Qml failed to load:  \"A\" ")), fault.first);
        QVERIFY2(text.contains(QLatin1String(
                     "W [WQmlViewFactory] Component creation failed (A) , object: QObject(0x0) , errors:(")),
                 fault.first);
        QCOMPARE(view->status(), QQuickView::Error);
        QCOMPARE(widget->status(), QQuickWidget::Error);
        QVERIFY(statuses.take().endsWith(QLatin1String("Error")));
        // What is wrong can be read in the view.
        for (const QQuickItem *content : {view->contentItem(), widget->quickWindow()->contentItem()}) {
            QCOMPARE(content->childItems().size(), 1);
            const QString message = content->childItems().constFirst()->property("message").toString();
            QVERIFY2(message.contains(QLatin1String(".qml")), fault.first);
            QCOMPARE(content->childItems().constFirst()->size(), QSizeF(content->window()->size()));
        }
        QVERIFY(view->width() >= 320);
        engine->reload(); // still broken
        QCOMPARE(view->contentItem()->childItems().size(), 1);
        log.take();

        files.write("A.qml", "Item { property QtObject controller; width: 50; height: 40 }");
        engine->reload();
        QCOMPARE(log.takeWarnings(), QStringList());
        QCOMPARE(view->status(), QQuickView::Ready);
        QCOMPARE(widget->status(), QQuickWidget::Ready);
        QCOMPARE(view->size(), QSize(50, 40));
        for (const QQuickItem *root : {view->rootObject(), widget->rootObject()}) {
            QCOMPARE(root->property("controller").value<QObject *>(), &controller);
            QCOMPARE(root->parentItem()->childItems().size(), 1);
        }
    }
    // Without a reload a later view also gets the mended file.
    MessageLog log;
    files.write("Late.qml", "Item { x: }");
    delete factory.createQmlWindow(QStringLiteral("Late.qml"), nullptr, nullptr).data();
    files.write("Late.qml", "Item {}");
    engine->reload();
    const QScopedPointer<WQuickView> late(factory.createQmlWindow(QStringLiteral("Late.qml"), nullptr, nullptr));
    QCOMPARE(late->status(), QQuickView::Ready);
    late.data()->setSource(QUrl());
    delete engine;
}

void tst_QmlEngine::notReloaded()
{
    const WQmlEngineLoader loader;
    const WQmlViewFactory factory(loader);
    WQmlEngine *const engine = loader.getQmlEngine();
    const QString resource = QStringLiteral("test/Resource.qml");
    const QScopedPointer<WQuickView> fromResources(factory.createQmlWindow(resource, nullptr, nullptr));
    QVERIFY(fromResources->rootObject());
    QCOMPARE(fromResources->source().toString(), QStringLiteral("qrc:/Qml/test/Resource.qml"));
    QmlFiles files(engine);
    files.write("A.qml", "Item {}");
    files.write("DevToolsView.qml", "Item { property int doubled: 2 * x }");
    const QScopedPointer<WQuickView> empty(factory.createQmlWindow(QStringLiteral("A.qml"), nullptr, nullptr));
    empty.data()->setSource(QUrl());
    const QScopedPointer<WQuickView> tools(
        factory.createQmlWindow(QStringLiteral("DevToolsView.qml"), nullptr, nullptr));
    const QVector<QPointer<QQuickItem>> roots {fromResources->rootObject(), tools->rootObject()};

    MessageLog log;
    engine->reload();
    QCOMPARE(log.takeWarnings(),
             QStringList({QStringLiteral("W [WQmlViewFactory] Reloading views from QRC is not supported."),
                          QStringLiteral("W [WQmlViewFactory] Trying to reload an empty QML view")}));
    for (QQuickItem *root : roots) {
        QVERIFY(root);
        root->setX(4);
        QCOMPARE(root->property("doubled").toInt(), 8); // their bindings still work
    }
    QCOMPARE(fromResources->rootObject(), roots.at(0).data());
    delete engine;
}

void tst_QmlEngine::reportsWhatStaysAlive()
{
    const WQmlEngineLoader loader;
    const WQmlViewFactory factory(loader);
    QmlFiles files(loader.getQmlEngine());
    files.write("Bare.qml", "QtObject {}");
    files.write("A.qml", "Item {}");
    QScopedPointer<QObject> bare;
    const QScopedPointer<WQuickView> view(factory.createQmlWindow(QStringLiteral("A.qml"), nullptr, nullptr));
    factory.createQmlComponent(QStringLiteral("Bare.qml"), nullptr, nullptr, [&](QObject *o) { bare.reset(o); });
    const auto reported = [&] {
        MessageLog log;
        loader.getQmlEngine()->reload();
        return log.take().filter(QLatin1String("alive"));
    };
    QCOMPARE(reported(), QStringList(QStringLiteral("I WQmlEngine::reload - Still alive: \"Bare.qml\"")));
    bare.reset();
    QCOMPARE(reported(), QStringList());
    delete loader.getQmlEngine();
}

void tst_QmlEngine::qmlDirectory()
{
    WQmlEngine engine(nullptr);
    QCOMPARE(engine.qmlDirectory(), QDir(QStringLiteral(UIELEMENTS_SOURCE_DIR "/Qml")).absolutePath());
    const QString before = engine.qmlDirectory();
    MessageLog log;
    engine.setQmlDirectory(QStringLiteral("/no/such"));
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(engine.qmlDirectory(), before);
}

// --- lifetimes

void tst_QmlEngine::destroyedInAnyOrder_data()
{
    QTest::addColumn<QString>("order");
    // c: controller, e: engine, f: factory, l: loader, v: windows, w: widget
    QString order = QStringLiteral("cefl");
    do {
        if (order.indexOf(QLatin1Char('f')) > order.indexOf(QLatin1Char('l'))) // the loader outlives the factory
            continue;
        for (int at = 0; at <= order.size(); ++at) {
            const QString all = QString(order).insert(at, at % 2 ? QStringLiteral("wv") : QStringLiteral("vw"));
            QTest::newRow(qPrintable(all)) << all;
        }
    } while (std::next_permutation(order.begin(), order.end()));
}

void tst_QmlEngine::destroyedInAnyOrder()
{
    QFETCH(QString, order);
    QVERIFY(destroyAll(application, order));
}

// a: the application object. Windows that outlive it crash in Qt.
void tst_QmlEngine::applicationDestroyedBefore_data()
{
    QTest::addColumn<QString>("order");
    for (const char *order : {"vwacefl", "wvfaecl", "wvceafl", "vweaflc", "vwflace", "wvcefla"})
        QTest::newRow(order) << QString::fromLatin1(order);
}

void tst_QmlEngine::applicationDestroyedBefore()
{
    QFETCH(QString, order);
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--destroy"), order});
    QVERIFY(process.waitForFinished());
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0, process.readAll().constData());
}

void tst_QmlEngine::manyPopups()
{
    const WQmlEngineLoader loader;
    const WQmlViewFactory factory(loader);
    QmlFiles files(loader.getQmlEngine());
    files.write("P.qml",
                "Item { property QtObject controller; width: 20; height: 20; Repeater { model: 3; Item {} } }");
    MessageLog log;
    int destroyed = 0;
    const int windows = QGuiApplication::allWindows().size();
    WQmlController controller;
    QWindow parent;
    for (int i = 0; i < 200; ++i) {
        const QPointer<WPopupQuickView> popup =
            factory.createQmlPopup(QStringLiteral("P.qml"), &parent, &controller, false);
        connect(popup->rootObject(), &QObject::destroyed, [&destroyed] { ++destroyed; });
        popup->show();
        if (i % 10 == 0)
            QCoreApplication::processEvents();
        popup->close();
        deleteNow();
        QVERIFY(!popup);
    }
    QCOMPARE(destroyed, 200);
    QCOMPARE(QGuiApplication::allWindows().size(), windows + 1);
    QVERIFY(controller.children().isEmpty());
    delete loader.getQmlEngine();
}

int main(int count, char **arguments)
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    if (count == 3 && qstrcmp(arguments[1], "--destroy") == 0)
        return destroyAll(new Application, QString::fromLatin1(arguments[2])) ? 0 : 1;
    tst_QmlEngineAndApplication withoutApplication;
    const int failed = QTest::qExec(&withoutApplication, count, arguments);
    Application app;
    application = &app;
    tst_QmlEngine test;
    return failed + QTest::qExec(&test, count, arguments);
}

#include "tst_qml_engine.moc"
