#include <UiElements/app/WApplication.h>
#include <UiElements/qml/WCustomAccessibleQuickWidget.h>
#include <UiElements/qml/WPopupQuickView.h>
#include <UiElements/qml/WQmlController.h>
#include <UiElements/qml/WQmlEngine.h>
#include <UiElements/qml/WQmlEngineLoader.h>
#include <UiElements/qml/WQmlViewFactory.h>

#include "support/QmlFiles.h"
#include "support/WApplicationMain.h"

#include <QAccessible>
#include <QPushButton>
#include <QQuickItem>
#include <QScreen>
#include <QVBoxLayout>

class tst_QmlViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void windowSetUp_data();
    void windowSetUp();
    void refusals();
    void lines();
    void object();
    void objectInError();
    void viewsInsideViews();
    void endedWhileLoading();
    void sourceChangedByTheHost();
    void trackedActivation();
    void closing();
    void keys();
    void sizeFollowsContent();
    void widgetSize();
    void icons();
    void showAt_data();
    void showAt();
    void popupPlacement_data();
    void popupPlacement();
    void popupCloses_data();
    void popupCloses();
    void popupFollowsItsParent();
    void popupShownAgain();
    void popupWithoutParent();
    void endedByItsHandlers();
    void activationItem();
    void tabPassesThrough();
    void screenReader();
    void focusAboutToChange();

private:
    QScopedPointer<WQmlEngineLoader> m_loader;
    QScopedPointer<WQmlViewFactory> m_factory;
    QScopedPointer<QmlFiles> m_files;
};

namespace {

/// Runs what it was given when QML calls go().
class Controller : public WQmlController
{
    Q_OBJECT

public:
    using WQmlController::WQmlController;
    std::function<void()> run;
    Q_INVOKABLE void go()
    {
        if (run)
            run();
    }
};

const QString box = QStringLiteral("Box.qml"); // 120 x 60

struct EventCounter : QObject
{
    EventCounter(QObject *object, QEvent::Type counted)
        : type(counted)
    {
        object->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == type;
        return false;
    }
    const QEvent::Type type;
    int count = 0;
};

bool activate(QWindow *window)
{
    window->show();
    window->requestActivate();
    return QTest::qWaitFor([window] { return QGuiApplication::focusWindow() == window; });
}

void press(QWindow *window)
{
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
}

} // namespace

void tst_QmlViews::init()
{
    m_loader.reset(new WQmlEngineLoader);
    m_factory.reset(new WQmlViewFactory(*m_loader));
    m_files.reset(new QmlFiles(m_loader->getQmlEngine()));
    m_files->write("Box.qml", "Item { property QtObject controller; width: 120; height: 60 }");
    m_files->write("Bad.qml", "Item { Worse {} }"); // two errors
    m_files->write("Worse.qml", "Item { x: }");
}

void tst_QmlViews::cleanup()
{
    delete m_loader->getQmlEngine();
    deleteNow();
}

void tst_QmlViews::windowSetUp_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("expected");
    QTest::newRow("window") << "window"
                            << "deletes transient";
    QTest::newRow("dialog") << "dialog"
                            << "Dialog deletes transient";
    QTest::newRow("fixed dialog") << "fixed dialog"
                                  << "Dialog deletes transient fixed";
    QTest::newRow("popup") << "popup"
                           << "Frameless tracks deletes parent transient fixed transparent";
    QTest::newRow("popup as dialog") << "dialog popup"
                                     << "Dialog Frameless tracks deletes parent transient fixed transparent";
}

void tst_QmlViews::windowSetUp()
{
    QFETCH(QString, kind);
    QFETCH(QString, expected);
    QWindow parent;
    Controller controller;
    const auto make = [&](QWindow *window) -> WQuickView * {
        if (kind == QLatin1String("window"))
            return m_factory->createQmlWindow(box, window, &controller);
        if (kind.contains(QLatin1String("popup")))
            return m_factory->createQmlPopup(box, window, &controller, kind.contains(QLatin1String("dialog")));
        return m_factory->createQmlDialog(box, window, &controller, kind.contains(QLatin1String("fixed")));
    };
    const QScopedPointer<WQuickView> view(make(&parent));
    QVERIFY(view);
    const ViewOptions options = view->getViewOptions();
    QStringList words;
    const auto add = [&words](bool is, const char *word) {
        if (is)
            words << QString::fromLatin1(word);
    };
    add((view->flags() & Qt::Dialog) == Qt::Dialog, "Dialog");
    add(view->flags().testFlag(Qt::FramelessWindowHint), "Frameless");
    add(options.trackActivation, "tracks");
    add(options.deleteOnClose, "deletes");
    add(options.closeOnEscape || options.reserved, "more");
    add(options.parentWindow == &parent, "parent");
    add(view->transientParent() == &parent, "transient");
    add(view->minimumSize() == QSize(120, 60) && view->maximumSize() == QSize(120, 60), "fixed");
    // The balloon does not fill its window. The desktop must know before there is one.
    QVERIFY(!view->handle());
    add(view->color() == QColor(Qt::transparent) && view->requestedFormat().hasAlpha(), "transparent");
    QCOMPARE(words.join(QLatin1Char(' ')), expected);
    QVERIFY(!view->parent());
    QCOMPARE(view->objectName(), QStringLiteral("Box"));
    QCOMPARE(view->size(), QSize(120, 60));
    QCOMPARE(view->resizeMode(), QQuickView::SizeRootObjectToView);
    QCOMPARE(view->rootObject()->property("controller").value<QObject *>(), &controller);

    const QScopedPointer<WQuickView> alone(make(nullptr));
    QVERIFY(!alone->transientParent());
    QCOMPARE(alone->screen(), QGuiApplication::primaryScreen());
    view->show();
    QVERIFY(view->isTopLevel());
}

void tst_QmlViews::refusals()
{
    QWidget window;
    QWidget *const none = nullptr;
    MessageLog log;
    const auto made = [&](const QString &source) {
        int count = 0;
        count += m_factory->createQmlWidget(source, &window, nullptr) != nullptr;
        count += m_factory->createCustomAccessibleQmlWidget(source, &window, nullptr) != nullptr;
        count += m_factory->createQmlWindow(source, nullptr, nullptr) != nullptr;
        count += m_factory->createQmlDialog(source, nullptr, nullptr, true) != nullptr;
        count += m_factory->createQmlPopup(source, nullptr, nullptr, true) != nullptr;
        m_factory->createQmlComponent(source, nullptr, nullptr, [&count](QObject *) { ++count; });
        return count;
    };
    const auto six = [](const QString &line) {
        return QStringList({line, line, line, line, line, line});
    };
    QCOMPARE(made(QString()), 0);
    QCOMPARE(log.take(),
             six(QStringLiteral("W [WQmlViewFactory] Trying to create a Qml view for an empty source! This "
                                "should never happen!")));
    QCOMPARE(made(QStringLiteral("../Box.qml")), 0);
    QCOMPARE(log.take(),
             six(QStringLiteral("W [WQmlViewFactory] Refusing a Qml source that leads out of the QML root: "
                                "\"../Box.qml\"")));
    QVERIFY(!m_factory->createQmlWidget(box, none, nullptr));
    QVERIFY(!m_factory->createCustomAccessibleQmlWidget(box, none, nullptr));
    const QString text = QStringLiteral("W [WQmlViewFactory] %1 should be created with a valid parent! Use "
                                        "WQmlViewFactory::createQmlWindow to create a popout window!");
    QCOMPARE(log.take(),
             QStringList(
                 {text.arg(QLatin1String("WQuickWidget")), text.arg(QLatin1String("WCustomAccessibleQuickWidget"))}));
    QVERIFY(window.children().isEmpty());
}

void tst_QmlViews::lines()
{
    MessageLog log;
    QScopedPointer<QObject> view(m_factory->createQmlWindow(box, nullptr, nullptr));
    view.reset();
    QCOMPARE(log.take(),
             QStringList({
                 QStringLiteral("I Qml statusChanged(Creating) Box.qml "),
                 QStringLiteral("I Qml statusChanged(Initializing) Box.qml "),
                 QStringLiteral("I [WQmlViewFactory] Qml view ready: \"Box\""),
                 QStringLiteral("I Qml statusChanged(Ready) Box.qml "),
                 QStringLiteral("I [WQmlViewFactory] Qml view destroyed: \"Box\""),
                 QStringLiteral("I Qml statusChanged(DestroyedView) Box.qml "),
             }));

    // Two errors, the way they are joined.
    view.reset(m_factory->createQmlWindow(QStringLiteral("Bad.qml"), nullptr, nullptr));
    QList<QQmlError> errors = static_cast<WQuickView *>(view.data())->errors();
    QStringList descriptions;
    for (const QQmlError &error : qAsConst(errors))
        descriptions << error.description();
    QCOMPARE(descriptions.size(), 2);
    const QStringList failed = log.take().filter(QLatin1String("failed to load"));
    QCOMPARE(
        failed,
        QStringList(QStringLiteral("W [WQmlViewFactory] Qml failed to load:  \"Bad\" \"%1\"")
                        .arg(descriptions.join(QLatin1String(", ")).replace(QLatin1Char('"'), QLatin1String("\\\"")))));
}

void tst_QmlViews::object()
{
    m_files->write("Thing.qml", "QtObject { property QtObject controller }");
    const QString source = QStringLiteral("Thing.qml");
    Controller controller;
    MessageLog log;
    QScopedPointer<QObject> parent(new QObject);
    QPointer<QObject> made;
    m_factory->createQmlComponent(source, parent.data(), &controller, [&](QObject *object) {
        made = object;
        QCOMPARE(object->parent(), parent.data());
        QCOMPARE(object->objectName(), QStringLiteral("Thing"));
    });
    QVERIFY(made);
    QCOMPARE(made->property("controller").value<QObject *>(), &controller);
    QCOMPARE(log.take().filter(QLatin1String("WQmlViewFactory")),
             QStringList(QStringLiteral("I [WQmlViewFactory] Qml component ready:  \"Thing\"")));
    parent.reset();
    QVERIFY(!made);
    QCOMPARE(log.take().filter(QLatin1String("WQmlViewFactory")),
             QStringList(QStringLiteral("I [WQmlViewFactory] Qml component destroyed: \"Thing\"")));

    // From the resources, without a controller and a callback that deletes it.
    m_loader->getQmlEngine()->setReadQmlFromDisk(false);
    int calls = 0;
    m_factory->createQmlComponent(QStringLiteral("test/Resource.qml"), nullptr, nullptr, [&](QObject *object) {
        ++calls;
        delete object;
    });
    QCOMPARE(calls, 1);
    m_factory->createQmlComponent(QStringLiteral("test/Resource.qml"), this, nullptr, {});
    QCOMPARE(children().size(), 1);
    delete children().constFirst();
    QCOMPARE(log.takeWarnings(), QStringList());
}

void tst_QmlViews::objectInError()
{
    m_files->write("Required.qml", "QtObject { required property int must }");
    int calls = 0;
    const auto count = [&calls](QObject *) {
        ++calls;
    };
    MessageLog log;
    m_factory->createQmlComponent(QStringLiteral("Bad.qml"), nullptr, nullptr, count);
    QVERIFY(log.takeWarnings()
                .join(QLatin1Char('\n'))
                .contains(QLatin1String("W [WQmlViewFactory] Qml component error (Bad) :file://")));
    m_loader->getQmlEngine()->setReadQmlFromDisk(false);
    m_factory->createQmlComponent(QStringLiteral("test/Missing.qml"), nullptr, nullptr, count);
    QVERIFY(
        log.takeWarnings()
            .join(QLatin1Char('\n'))
            .contains(QLatin1String("W [WQmlViewFactory] Qml component error (Missing) :qrc:/Qml/test/Missing.qml")));
    m_loader->getQmlEngine()->setReadQmlFromDisk(true);
    m_factory->createQmlComponent(QStringLiteral("Required.qml"), nullptr, nullptr, count);
    QVERIFY(!log.take().join(QLatin1Char('\n')).contains(QLatin1String("ready")));
    QCOMPARE(calls, 0);
}

// One component makes one object at a time.
void tst_QmlViews::viewsInsideViews()
{
    m_files->write("Nest.qml",
                   "Item { property QtObject controller; width: 5; height: 5\n"
                   "Component.onCompleted: controller.go() }");
    Controller controller;
    QVector<QPointer<WQuickView>> views;
    int depth = 0;
    const auto open = [&] {
        views << m_factory->createQmlWindow(QStringLiteral("Nest.qml"), nullptr, &controller);
    };
    controller.run = [&] {
        if (++depth < 4)
            open();
    };
    MessageLog log;
    open();
    QCOMPARE(log.takeWarnings(), QStringList());
    QCOMPARE(views.size(), 4);
    for (const auto &view : qAsConst(views)) {
        QCOMPARE(view->status(), QQuickView::Ready);
        delete view;
    }

    // And from within one the engine is reloaded.
    controller.run = [&] {
        m_loader->getQmlEngine()->reload();
    };
    views = {};
    controller.run = [&] {
        controller.run = nullptr;
        m_loader->getQmlEngine()->reload();
    };
    open();
    QCOMPARE(views.constLast()->status(), QQuickView::Ready);
    delete views.constLast();
}

void tst_QmlViews::endedWhileLoading()
{
    m_files->write("Ends.qml", "Item { property QtObject controller; Component.onCompleted: controller.go() }");
    const QString source = QStringLiteral("Ends.qml");
    Controller controller;
    auto *window = new QWidget;
    controller.run = [&] {
        delete window;
    };
    QVERIFY(!m_factory->createQmlWidget(source, window, &controller));
    const QPointer<QObject> parent(new QObject);
    controller.run = [&] {
        delete parent;
    };
    QPointer<QObject> made;
    m_factory->createQmlComponent(source, parent, &controller, [&](QObject *object) { made = object; });
    QVERIFY(!made);
    // The engine itself ends while it makes something.
    auto *other = new QWidget;
    const QPointer<WQmlEngine> engine(m_loader->getQmlEngine());
    controller.run = [&] {
        engine->deleteLater();
    };
    QVERIFY(m_factory->createQmlWidget(source, other, &controller));
    deleteNow();
    QVERIFY(!engine);
    delete other;
}

void tst_QmlViews::sourceChangedByTheHost()
{
    m_files->write("Other.qml", "Item { width: 7; height: 7; property string text: 'other' }");
    const QScopedPointer<WQuickView> one(m_factory->createQmlWindow(box, nullptr, nullptr));
    const QScopedPointer<WQuickView> two(m_factory->createQmlWindow(box, nullptr, nullptr));
    static_cast<QQuickView *>(one.data())
        ->setSource(QUrl::fromLocalFile(m_files->path() + QStringLiteral("/Other.qml")));
    QCOMPARE(one->status(), QQuickView::Ready);
    QCOMPARE(two->status(), QQuickView::Ready); // Qt deleted a component, but not that of another view
    m_files->write("Other.qml", "Item { width: 7; height: 7; property string text: 'new' }");
    m_loader->getQmlEngine()->reload();
    QCOMPARE(one->rootObject()->property("text").toString(), QStringLiteral("new"));
}

// --- WQuickView

void tst_QmlViews::trackedActivation()
{
    struct View : WQuickView
    {
        using WQuickView::WQuickView;
        int calls = 0;
        void onActiveChanged() override { ++calls; }
        int take() { return std::exchange(calls, 0); }
    };
    QWindow first, second;
    View view(m_loader->getQmlEngine(), &first);
    const auto moved = [&view](QWindow &window) {
        view.take();
        window.setX(window.x() + 5);
        window.setY(window.y() + 5);
        return view.take();
    };
    QCOMPARE(moved(first), 0);
    ViewOptions options;
    options.trackActivation = true;
    options.parentWindow = &first;
    view.setViewOptions(options);
    view.setViewOptions(options); // once is enough
    QCOMPARE(moved(first), 2);
    Q_EMIT view.activeChanged();
    QCOMPARE(view.take(), 1);
    options.parentWindow = &second;
    view.setViewOptions(options);
    QCOMPARE(moved(first), 0);
    QCOMPARE(moved(second), 2);
    options.trackActivation = false;
    view.setViewOptions(options);
    QCOMPARE(moved(second), 0);
    Q_EMIT view.activeChanged();
    Q_EMIT qGuiApp->focusWindowChanged(nullptr);
    QCOMPARE(view.take(), 0);
}

void tst_QmlViews::closing()
{
    for (const bool deletes : {true, false}) {
        ViewOptions options;
        options.deleteOnClose = deletes;
        const QPointer<WQuickView> view(new WQuickView(m_loader->getQmlEngine(), nullptr, options));
        QSignalSpy shown(view, &WQuickView::aboutToShow), closed(view, &WQuickView::aboutToClose);
        view->show();
        QCOMPARE(shown.count(), 1);
        view->close();
        QCOMPARE(closed.count(), 1);
        QVERIFY(view); // later
        deleteNow();
        QCOMPARE(view.isNull(), deletes);
        delete view;
    }
    // A handler that does not wait.
    auto *view = new WQuickView(m_loader->getQmlEngine());
    connect(view, &WQuickView::aboutToClose, view, [view] { delete view; });
    view->show();
    QCloseEvent close;
    QCoreApplication::sendEvent(view, &close);
}

void tst_QmlViews::keys()
{
    m_files->write("Keys.qml",
                   "Item { width: 9; height: 9; focus: true; property int got: 0; property bool takes: false\n"
                   "Keys.onPressed: { ++got; event.accepted = takes } }");
    const QPointer<WQuickView> view = m_factory->createQmlWindow(QStringLiteral("Keys.qml"), nullptr, nullptr);
    QSignalSpy escape(view, &WQuickView::escapeKeyPressed), f6(view, &WQuickView::f6KeyPressed);
    QVERIFY(activate(view));
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_F6, Qt::Key_A})
        QTest::keyClick(view, key);
    QCOMPARE(escape.count(), 1);
    QCOMPARE(f6.count(), 1);
    QCOMPARE(view->rootObject()->property("got").toInt(), 3);
    QVERIFY(view->isVisible());

    ViewOptions options;
    options.closeOnEscape = true;
    view->setViewOptions(options);
    view->rootObject()->setProperty("takes", true);
    QTest::keyClick(view, Qt::Key_Escape);
    QVERIFY(view->isVisible());
    view->rootObject()->setProperty("takes", false);
    QTest::keyPress(view, Qt::Key_Escape); // there is nothing to release it in
    deleteNow();
    QVERIFY(!view);
}

void tst_QmlViews::sizeFollowsContent()
{
    m_files->write("Grows.qml", "Item { property int lines: 2; width: 100.4; height: 10 * lines }");
    const QScopedPointer<WQuickView> view(
        m_factory->createQmlDialog(QStringLiteral("Grows.qml"), nullptr, nullptr, true));
    QCOMPARE(view->size(), QSize(101, 20));
    view->setupFixedSize();
    view->rootObject()->setProperty("lines", 5);
    QCOMPARE(view->size(), QSize(101, 50));
    QCOMPARE(view->maximumHeight(), 50);
    view->rootObject()->setProperty("lines", 0); // a window cannot be empty
    QCOMPARE(view->size(), QSize(101, 50));
}

void tst_QmlViews::widgetSize()
{
    QWidget window;
    window.resize(300, 300);
    WQuickWidget *const widget = m_factory->createQmlWidget(box, &window, nullptr);
    QCOMPARE(widget->size(), QSize(120, 60));
    window.show();
    widget->resize(200, 200);
    QCOMPARE(widget->rootObject()->size(), QSizeF(200, 200));
}

void tst_QmlViews::icons()
{
    auto *app = qobject_cast<WApplication *>(qApp);
    QWindow parent;
    const auto iconOf = [&](QWindow *window) {
        return WQuickView(m_loader->getQmlEngine(), window).icon().pixmap(16).toImage();
    };
    QVERIFY(!iconOf(nullptr).isNull());
    QVERIFY(iconOf(nullptr) != iconOf(&parent));
    QPixmap red(16, 16), blue(16, 16);
    red.fill(Qt::red);
    blue.fill(Qt::blue);
    app->setDialogIcon(red, blue);
    QCOMPARE(iconOf(nullptr).pixelColor(5, 5), QColor(Qt::red));
    QCOMPARE(iconOf(&parent).pixelColor(5, 5), QColor(Qt::blue));
    app->setDialogIcon(QIcon(), QIcon());
    QVERIFY(!iconOf(nullptr).isNull());
}

void tst_QmlViews::showAt_data()
{
    QTest::addColumn<QPoint>("asked");
    QTest::addColumn<QPoint>("expected");
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint last = area.bottomRight() - QPoint(119, 59);
    QTest::newRow("inside") << area.topLeft() + QPoint(30, 40) << area.topLeft() + QPoint(30, 40);
    QTest::newRow("over the corner") << area.bottomRight() << last;
    QTest::newRow("on no screen") << QPoint(9000, 300) << QPoint(last.x(), 300);
}

void tst_QmlViews::showAt()
{
    QFETCH(QPoint, asked);
    QFETCH(QPoint, expected);
    const QScopedPointer<WQuickView> view(m_factory->createQmlDialog(box, nullptr, nullptr, true));
    view->showAt(asked);
    QVERIFY(view->isVisible());
    QCOMPARE(view->position(), expected);
}

// --- WPopupQuickView

void tst_QmlViews::popupPlacement_data()
{
    QTest::addColumn<QRect>("target");
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<WPopupQuickView::Alignment>("alignment");
    QTest::addColumn<Qt::ArrowType>("finalArrow");
    QTest::addColumn<bool>("pushed");
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize button(40, 20);
    const auto at = [&](double x, double y) { // as fractions of the screen
        return QRect(QPoint(area.left() + int(x * (area.width() - 40)), area.top() + int(y * (area.height() - 20))),
                     button);
    };
    using P = WPopupQuickView;
    const auto row = [](const char *label, const QRect &target, Qt::ArrowType arrow, P::Alignment alignment,
                        Qt::ArrowType last, bool pushed) {
        QTest::newRow(label) << target << arrow << alignment << last << pushed;
    };
    row("below", at(.5, .5), Qt::UpArrow, P::CenterAlignment, Qt::UpArrow, false);
    row("below, arrow left", at(.5, .5), Qt::UpArrow, P::LeftAlignment, Qt::UpArrow, false);
    row("below, arrow right", at(.5, .5), Qt::UpArrow, P::RightAlignment, Qt::UpArrow, false);
    row("above", at(.5, .5), Qt::DownArrow, P::CenterAlignment, Qt::DownArrow, false);
    row("right of it", at(.5, .5), Qt::LeftArrow, P::CenterAlignment, Qt::LeftArrow, false);
    row("left of it, arrow at the top", at(.5, .5), Qt::RightArrow, P::TopAlignment, Qt::RightArrow, false);
    row("left of it, arrow at the bottom", at(.5, .5), Qt::RightArrow, P::BottomAlignment, Qt::RightArrow, false);
    row("no room below", at(.5, 1), Qt::UpArrow, P::CenterAlignment, Qt::DownArrow, false);
    row("no room above", at(.5, 0), Qt::DownArrow, P::CenterAlignment, Qt::UpArrow, false);
    row("no room on the right", at(1, .5), Qt::LeftArrow, P::CenterAlignment, Qt::RightArrow, false);
    row("no room on the left", at(0, .5), Qt::RightArrow, P::CenterAlignment, Qt::LeftArrow, false);
    row("pushed right", at(0, .5), Qt::UpArrow, P::CenterAlignment, Qt::UpArrow, true);
    row("pushed left", at(1, .5), Qt::DownArrow, P::CenterAlignment, Qt::DownArrow, true);
    row("pushed down", at(.5, 0), Qt::LeftArrow, P::CenterAlignment, Qt::LeftArrow, true);
    row("pushed up", at(.5, 1), Qt::RightArrow, P::CenterAlignment, Qt::RightArrow, true);
    row("flipped and pushed", at(1, 1), Qt::UpArrow, P::CenterAlignment, Qt::DownArrow, true);
    row("flipped and pushed, corner of the left", at(0, 0), Qt::RightArrow, P::CenterAlignment, Qt::LeftArrow, true);
}

void tst_QmlViews::popupPlacement()
{
    QFETCH(QRect, target);
    QFETCH(Qt::ArrowType, arrow);
    QFETCH(WPopupQuickView::Alignment, alignment);
    QFETCH(Qt::ArrowType, finalArrow);
    QFETCH(bool, pushed);
    const int arrowSize = 10, offset = 3;
    const QScopedPointer<WPopupQuickView> popup(m_factory->createQmlPopup(box, nullptr, nullptr, false));
    QSignalSpy flips(popup.data(), &WPopupQuickView::arrowFlipped);
    QSignalSpy pushes(popup.data(), &WPopupQuickView::arrowOrthogonalChanged);
    popup->showFrom(target, arrow, alignment, offset, arrowSize);
    QCOMPARE(flips.count(), arrow == finalArrow ? 0 : 1);
    if (arrow != finalArrow)
        QCOMPARE(flips.at(0).at(0).value<Qt::ArrowType>(), finalArrow);
    QCOMPARE(pushes.count(), pushed ? 1 : 0);

    const QRect place = popup->geometry();
    QVERIFY(popup->screen()->availableGeometry().contains(place));
    // Along the target, the arrow points at its middle.
    const bool along = finalArrow == Qt::UpArrow || finalArrow == Qt::DownArrow;
    const int length = along ? place.width() : place.height();
    const int adjusted = popup->adjustArrowOffset(finalArrow);
    const bool atStart = alignment == WPopupQuickView::LeftAlignment || alignment == WPopupQuickView::TopAlignment;
    const bool atEnd = alignment == WPopupQuickView::RightAlignment || alignment == WPopupQuickView::BottomAlignment;
    const int tip = atStart ? adjusted + arrowSize : atEnd ? length - arrowSize + adjusted : length / 2 + adjusted;
    const QPoint middle = target.bottomRight() - QPoint(target.width() / 2, target.height() / 2);
    QCOMPARE(along ? place.left() + tip : place.top() + tip, along ? middle.x() : middle.y());
    // Across, it touches the target.
    const int gap = finalArrow == Qt::UpArrow ? place.top() - target.bottom()
        : finalArrow == Qt::DownArrow         ? target.top() - place.top() - place.height()
        : finalArrow == Qt::LeftArrow         ? place.left() - target.right()
                                              : target.left() - place.left() - place.width();
    QCOMPARE(gap, 0);

    // Shown again where there is room, it is as it was asked for.
    popup->hide();
    flips.clear();
    popup->showFrom(QRect(popup->screen()->availableGeometry().center(), target.size()), arrow, alignment, offset,
                    arrowSize);
    QCOMPARE(flips.count(), arrow == finalArrow ? 0 : 1);
    QCOMPARE(popup->adjustArrowOffset(arrow), offset);
}

void tst_QmlViews::popupCloses_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<bool>("closes");
    for (const char *what : {"press outside", "press in a widget", "Escape", "focus to the parent", "focus to another",
                             "parent hidden", "parent destroyed"})
        QTest::newRow(what) << QString::fromLatin1(what) << true;
    for (const char *what :
         {"press inside", "press in its own popup", "Escape taken", "focus to its own popup", "nothing"})
        QTest::newRow(what) << QString::fromLatin1(what) << false;
}

void tst_QmlViews::popupCloses()
{
    QFETCH(QString, what);
    QFETCH(bool, closes);
    m_files->write("Taker.qml",
                   "Item { width: 50; height: 50; focus: true; Keys.onEscapePressed: event.accepted = true }");
    QScopedPointer<QWindow> parent(new QWindow);
    QWindow other;
    QWidget widget;
    widget.show();
    other.show();
    QVERIFY(activate(parent.data()));
    const QString source = what == QLatin1String("Escape taken") ? QStringLiteral("Taker.qml") : box;
    const QPointer<WPopupQuickView> popup = m_factory->createQmlPopup(source, parent.data(), nullptr, false);
    QVERIFY(activate(popup));
    const QPointer<WPopupQuickView> inner = m_factory->createQmlPopup(box, popup, nullptr, false);
    if (what == QLatin1String("press outside")) {
        press(&other);
    } else if (what == QLatin1String("press in a widget")) {
        QTest::mouseClick(&widget, Qt::LeftButton);
    } else if (what == QLatin1String("press inside")) {
        press(popup);
    } else if (what == QLatin1String("press in its own popup")) {
        inner->show();
        press(inner);
    } else if (what.startsWith(QLatin1String("Escape"))) {
        QTest::keyPress(popup, Qt::Key_Escape);
        if (closes)
            QCOMPARE(QGuiApplication::focusWindow(), parent.data());
    } else if (what == QLatin1String("focus to the parent")) {
        QVERIFY(activate(parent.data()));
    } else if (what == QLatin1String("focus to another")) {
        QVERIFY(activate(&other));
    } else if (what == QLatin1String("focus to its own popup")) {
        QVERIFY(activate(inner));
    } else if (what == QLatin1String("parent hidden")) {
        parent->hide();
    } else if (what == QLatin1String("parent destroyed")) {
        parent.reset();
    }
    QCoreApplication::processEvents();
    deleteNow();
    QCOMPARE(popup.isNull(), closes);
    delete inner;
    delete popup;
}

void tst_QmlViews::popupFollowsItsParent()
{
    QWindow parent;
    parent.setGeometry(100, 100, 200, 200);
    QVERIFY(activate(&parent));
    QScopedPointer<WPopupQuickView> popup(m_factory->createQmlPopup(box, &parent, nullptr, false));
    popup->showFrom(QRect(300, 300, 40, 20));
    const QPoint before = popup->position();
    parent.setPosition(130, 90);
    QTRY_COMPARE(popup->position(), before + QPoint(30, -10));

    popup.reset(); // or it closes when the next one takes the focus

    // In a window inside of another one it goes along with both.
    QWindow inside(&parent);
    inside.setGeometry(10, 10, 100, 100);
    inside.show();
    const QScopedPointer<WPopupQuickView> nested(m_factory->createQmlPopup(box, &inside, nullptr, false));
    nested->showFrom(QRect(300, 300, 40, 20));
    const QPoint start = nested->position();
    parent.setPosition(140, 110);
    QTRY_COMPARE(nested->position(), start + QPoint(10, 20));
    inside.setPosition(15, 10);
    QTRY_COMPARE(nested->position(), start + QPoint(15, 20));
}

// Moved with its target, which may scroll: the focus stays where it is, and a popup that stays in its place costs
// nothing.
void tst_QmlViews::popupShownAgain()
{
    QWindow parent;
    QVERIFY(activate(&parent));
    const QScopedPointer<WPopupQuickView> popup(m_factory->createQmlPopup(box, &parent, nullptr, false));
    popup->showFrom(QRect(300, 300, 40, 20));
    QTRY_COMPARE(QGuiApplication::focusWindow(), popup.data());
    const QScopedPointer<WPopupQuickView> inner(m_factory->createQmlPopup(box, popup.data(), nullptr, false));
    QVERIFY(activate(inner.data()));
    const QPoint before = popup->position();
    popup->showFrom(QRect(310, 320, 40, 20));
    QCoreApplication::processEvents();
    QCOMPARE(popup->position(), before + QPoint(10, 20));
    QCOMPARE(QGuiApplication::focusWindow(), inner.data());

    EventCounter exposed(popup.data(), QEvent::Expose);
    popup->showFrom(QRect(310, 320, 40, 20));
    QCoreApplication::processEvents();
    QCOMPARE(exposed.count, 0);
    popup->showFrom(QRect(310, 320, 40, 20), Qt::DownArrow);
    QCOMPARE(popup->y(), 320 - 60);
}

void tst_QmlViews::popupWithoutParent()
{
    QWindow outer;
    outer.show();
    auto *embedded = new QWindow(&outer);
    QVERIFY(activate(embedded));
    MessageLog log;
    const QScopedPointer<WPopupQuickView> popup(m_factory->createQmlPopup(box, nullptr, nullptr, false));
    popup->showFrom(QRect(300, 300, 40, 20));
    QCOMPARE(popup->transientParent(), &outer);
    QCOMPARE(log.takeWarnings(), QStringList());

    // What the popup opened itself is not what it belongs to.
    popup->setTransientParent(nullptr);
    const QScopedPointer<WPopupQuickView> inner(m_factory->createQmlPopup(box, popup.data(), nullptr, false));
    QVERIFY(activate(inner.data()));
    popup->showFrom(QRect(320, 300, 40, 20));
    QVERIFY(!popup->transientParent());
}

void tst_QmlViews::endedByItsHandlers()
{
    // Escape gives the focus back to a parent that ends together with its dialog.
    auto *parent = new QWindow;
    parent->show();
    const QPointer<WPopupQuickView> popup = m_factory->createQmlPopup(box, parent, nullptr, false);
    connect(popup, &WQuickView::aboutToClose, this, [parent] { delete parent; });
    QVERIFY(activate(popup));
    QTest::keyPress(popup, Qt::Key_Escape);
    deleteNow();
    QVERIFY(!popup);

    const QPointer<WPopupQuickView> flipped = m_factory->createQmlPopup(box, nullptr, nullptr, false);
    connect(flipped, &WPopupQuickView::arrowFlipped, this, [flipped] { delete flipped; });
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    flipped->showFrom(QRect(area.center().x(), area.bottom() - 20, 40, 20));
    QVERIFY(!flipped);
}

void tst_QmlViews::activationItem()
{
    QPushButton button, other;
    button.setCheckable(true);
    other.setCheckable(true);
    QScopedPointer<WPopupQuickView> popup(m_factory->createQmlPopup(box, nullptr, nullptr, false));
    popup->setupActivationItem(&other, "checked");
    popup->setupActivationItem(&button, "checked");
    QVERIFY(button.isChecked());
    QVERIFY(!other.isChecked());
    MessageLog log;
    popup->setupActivationItem(&other, "noSuchProperty");
    popup->setupActivationItem(nullptr, "checked");
    const QString line = QStringLiteral("W WPopupQuickView::setupActivationItem - unable to set property ");
    QCOMPARE(log.take(),
             QStringList({line + QLatin1String("\"noSuchProperty\""), line + QLatin1String("\"checked\"")}));
    QVERIFY(!other.dynamicPropertyNames().contains("noSuchProperty"));
    popup.reset();
    QVERIFY(!button.isChecked());

    popup.reset(m_factory->createQmlPopup(box, nullptr, nullptr, false));
    {
        QPushButton gone;
        gone.setCheckable(true);
        popup->setupActivationItem(&gone, "checked");
    }
    log.take();
    popup.reset();
    QCOMPARE(log.takeWarnings(), QStringList());
}

// --- widgets

void tst_QmlViews::tabPassesThrough()
{
    m_files->write("Two.qml",
                   "Row { Item { objectName: 'one'; width: 9; height: 9; activeFocusOnTab: true }\n"
                   "Item { objectName: 'two'; width: 9; height: 9; activeFocusOnTab: true } }");
    QWidget window;
    QVBoxLayout layout(&window);
    QPushButton before, after;
    before.setObjectName(QStringLiteral("before"));
    after.setObjectName(QStringLiteral("after"));
    layout.addWidget(&before);
    WQuickWidget *const view = m_factory->createQmlWidget(QStringLiteral("Two.qml"), &window, nullptr);
    layout.addWidget(view);
    layout.addWidget(&after);
    QWidget::setTabOrder(&before, view);
    QWidget::setTabOrder(view, &after);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    before.setFocus();
    const auto round = [&](Qt::Key key) {
        QStringList names;
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(QApplication::focusWidget(), key);
            const QQuickItem *item = view->hasFocus() ? view->quickWindow()->activeFocusItem() : nullptr;
            names << (item ? item->objectName() : QApplication::focusWidget()->objectName());
        }
        return names.join(QLatin1Char(' '));
    };
    QCOMPARE(round(Qt::Key_Tab), QStringLiteral("one two after before"));
    QCOMPARE(round(Qt::Key_Backtab), QStringLiteral("after two one before"));
    m_loader->getQmlEngine()->reload();
    QCOMPARE(round(Qt::Key_Tab), QStringLiteral("one two after before"));
}

void tst_QmlViews::screenReader()
{
    m_files->write("Roles.qml",
                   "Item { width: 100; height: 50; Item { width: 100; height: 50\n"
                   "Item { objectName: 'button'; width: 20; height: 20; activeFocusOnTab: true\n"
                   "Accessible.role: Accessible.Button; Accessible.name: 'Join' } } }");
    const QString source = QStringLiteral("Roles.qml");
    QWidget window;
    window.resize(300, 300);
    WQuickWidget *const plain = m_factory->createQmlWidget(source, &window, nullptr);
    WQuickWidget *const custom = m_factory->createCustomAccessibleQmlWidget(source, &window, nullptr);
    const QScopedPointer<WQuickView> view(m_factory->createQmlDialog(source, nullptr, nullptr, false));
    view->setTitle(QStringLiteral("Title"));
    window.show();
    view->show();

    for (WQuickWidget *widget : {plain, custom}) {
        widget->move(30, 40);
        QAccessibleInterface *const outer = QAccessible::queryAccessibleInterface(widget);
        QCOMPARE(outer->parent()->object(), &window);
        QCOMPARE(outer->childCount(), 1);
        QAccessibleInterface *const content = outer->child(0);
        QCOMPARE(content->role(), QAccessible::Grouping);
        QCOMPARE(content->parent(), outer);
        QCOMPARE(outer->indexOfChild(content), 0);
        QCOMPARE(content->childCount(), 1);
        QAccessibleInterface *const button = content->child(0);
        QCOMPARE(button->role(), QAccessible::Button);
        QCOMPARE(button->text(QAccessible::Name), QStringLiteral("Join"));
        QCOMPARE(button->parent(), content);
        QVERIFY(!button->state().invisible);
        QCOMPARE(content->indexOfChild(button), 0);
        QVERIFY(!content->state().invisible);
        const QPoint corner = widget->mapToGlobal(QPoint());
        QCOMPARE(content->rect(), QRect(corner, widget->size()));
        QCOMPARE(content->window(), window.windowHandle());
        QCOMPARE(content->childAt(corner.x() + 5, corner.y() + 5), button);
        QVERIFY(!content->childAt(corner.x() + 90, corner.y() + 40));
    }
    QApplication::setActiveWindow(&window);
    plain->setFocus();
    plain->rootObject()->findChild<QQuickItem *>(QStringLiteral("button"))->forceActiveFocus();
    QCOMPARE(QAccessible::queryAccessibleInterface(plain)->focusChild()->role(), QAccessible::Button);

    QAccessibleInterface *const interface = QAccessible::queryAccessibleInterface(view.data());
    QCOMPARE(interface->role(), QAccessible::Window);
    view->setAccessibleRole(QAccessible::Dialog);
    QCOMPARE(interface->role(), QAccessible::Dialog);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Title"));
    QCOMPARE(interface->childCount(), 1);
    QCOMPARE(interface->child(0)->parent(), interface);
    QVERIFY(!interface->child(7));

    // An error is said too.
    const QScopedPointer<WQuickView> broken(m_factory->createQmlWindow(QStringLiteral("Bad.qml"), nullptr, nullptr));
    QAccessibleInterface *const error = QAccessible::queryAccessibleInterface(broken.data())->child(0);
    QVERIFY(error);
    QCOMPARE(error->role(), QAccessible::AlertMessage);
    QVERIFY(error->text(QAccessible::Name).contains(QLatin1String("Bad.qml")));
}

void tst_QmlViews::focusAboutToChange()
{
    QWidget window;
    QPushButton button(&window);
    WCustomAccessibleQuickWidget *const view = m_factory->createCustomAccessibleQmlWidget(box, &window, nullptr);
    window.show();
    QApplication::setActiveWindow(&window);
    view->setFocus();
    QSignalSpy leaving(view, &WCustomAccessibleQuickWidget::focusAboutToChange);
    button.setFocus();
    QCOMPARE(leaving.count(), 1);
}

W_TEST_MAIN(tst_QmlViews)

#include "tst_qml_views.moc"
