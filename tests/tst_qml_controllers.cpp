#include "support/Colors.h"
#include "support/QmlFiles.h"
#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/app/WFontManager.h>
#include <UiElements/models/EmptyStateBaseListModel.h>
#include <UiElements/models/OverflowListProxyModel.h>
#include <UiElements/qml/DialogContext.h>
#include <UiElements/qml/PopupContext.h>
#include <UiElements/qml/PopupContextTimer.h>
#include <UiElements/qml/WPopupQuickView.h>
#include <UiElements/qml/WQmlControllerHelpers.h>
#include <UiElements/qml/WQmlDialogController.h>
#include <UiElements/qml/WQmlEngine.h>
#include <UiElements/qml/WQmlEngineLoader.h>
#include <UiElements/qml/WQmlPopupController.h>
#include <UiElements/qml/WQmlTypes.h>
#include <UiElements/qml/WQmlViewFactory.h>
#include <UiElements/qml/WQmlWindowContainerController.h>
#include <UiElements/qml/WQuickView.h>
#include <UiElements/qml/WQuickWidget.h>
#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/widgets/WFrame.h>

#include <QAccessible>
#include <QLibraryInfo>
#include <QProcess>
#include <QPushButton>
#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

constexpr int TitleRole = Qt::UserRole + 1;

QVariantMap dialogTexts()
{
    return {{QStringLiteral("title"), QStringLiteral("Leave?")},
            {QStringLiteral("text"), QStringLiteral("The others stay.")},
            {QStringLiteral("acceptText"), QStringLiteral("Leave")},
            {QStringLiteral("rejectText"), QStringLiteral("Stay")}};
}

QVariantMap popupTexts()
{
    return {{QStringLiteral("title"), QStringLiteral("Mentions")},
            {QStringLiteral("text"), QStringLiteral("Whoever writes your name turns up here.")},
            {QStringLiteral("action"), QStringLiteral("Got it")}};
}

BaseListModel::Rows rowsOf(int count)
{
    BaseListModel::Rows rows;
    for (int i = 0; i < count; ++i)
        rows.push_back({std::to_string(i), {{TitleRole, QStringLiteral("Row %1").arg(i)}}});
    return rows;
}

void setUp(EmptyStateBaseListModel *model, int count)
{
    model->setRoleNames({{TitleRole, "title"}});
    model->setEmptyStateHeader(QStringLiteral("Nothing yet"));
    model->setEmptyStateImage(QStringLiteral("qrc:/Resources/chat_24.svg"));
    model->setEmptyStateImageSize({32, 32});
    model->appendRows(rowsOf(count));
}

void loadTheme(const QString &file)
{
    const QString folder = QStringLiteral(UIELEMENTS_CONFIG_DIR);
    const WPalette palette = WThemeUtils::parseWColorsFromJson(folder + QStringLiteral("/colors.json"));
    const WColorSets sets = WThemeUtils::parseWColorSetsFromJson(folder + QStringLiteral("/themes/") + file, palette);
    WApplication::find()->setColorSets(sets);
}

QList<QQuickItem *> itemsBelow(QQuickItem *root)
{
    QList<QQuickItem *> all {root};
    for (int i = 0; i < all.size(); ++i)
        all << all.at(i)->childItems();
    return all;
}

QQuickItem *itemWith(QQuickItem *root, const char *property, const QVariant &value)
{
    const auto items = itemsBelow(root);
    for (QQuickItem *item : items) {
        if (item->metaObject()->indexOfProperty(property) >= 0 && item->property(property) == value)
            return item;
    }
    return nullptr;
}

class AskingController : public WQmlController
{
    Q_OBJECT
    Q_PROPERTY(bool flag MEMBER flag)
    Q_PROPERTY(QString text MEMBER text)
public:
    bool flag = false;
    QString text = QStringLiteral("before");
};

} // namespace

class tst_QmlControllers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();
    void properties_data();
    void properties();
    void modelOwnership_data();
    void modelOwnership();
    void modelThatEnds();
    void popupView();
    void initialProperties_data();
    void initialProperties();
    void windowContainer();
    void typesInQml_data();
    void typesInQml();
    void themeReachesBindings();
    void wrongInput();
    void themeReachesErrors();
    void pages_data();
    void pages();
    void dialogKeys_data();
    void dialogKeys();
    void dialogIsAskedAgain();
    void dialogTitle();
    void openedAgainWhenAccepted_data();
    void openedAgainWhenAccepted();
    void listKeys();
    void listShowsItsEmptyState();
    void countIsTold();
    void pairKeys_data();
    void pairKeys();
    void popupFollowsItsTarget();
    void popupClosesWithItsTarget_data();
    void popupClosesWithItsTarget();
    void popupSides_data();
    void popupSides();
    void popupAgainstAnItem();
    void popupIsToggled();
    void popupTimer();
    void popupClosedWhileOpening();
    void contextsEndAtAnyTime_data();
    void contextsEndAtAnyTime();
    void windowContext();
    void typeInformation();

private:
    WQmlEngineLoader m_loader;
    WQmlViewFactory m_factory {m_loader};
};

void tst_QmlControllers::initTestCase()
{
    loadTheme(QStringLiteral("default.json"));
    WQmlTypes::registerQmlTypes();
    WQmlTypes::registerQmlTypes();
}

void tst_QmlControllers::cleanupTestCase()
{
    delete m_loader.getQmlEngine(); // no event loop ends here
}

void tst_QmlControllers::cleanup()
{
    QApplication::setLayoutDirection(Qt::LeftToRight);
    deleteNow();
    QCOMPARE(QGuiApplication::topLevelWindows().size(), 0);
}

// --- controllers

void tst_QmlControllers::properties_data()
{
    QTest::addColumn<bool>("popup");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QVariant>("other");
    const auto add = [](bool popup, const char *name, const QVariant &first, const QVariant &other) {
        QTest::addRow("%s %s", popup ? "popup" : "dialog", name) << popup << QByteArray(name) << first << other;
    };
    for (const bool popup : {false, true}) {
        add(popup, "takesModelOwnership", false, true);
        add(popup, "model", QVariant(), QStringLiteral("a model"));
    }
    add(true, "arrowOffset", 0, -4);
    add(true, "arrowSize", 0, 12);
    add(true, "arrowAlignment", WQmlBalloon::CenterAlignment, WQmlBalloon::BottomAlignment);
    add(true, "arrowAnchor", WQmlBalloon::Top, WQmlBalloon::Right);
    add(true, "themeType", QStringLiteral("global"), QStringLiteral("dark"));
}

void tst_QmlControllers::properties()
{
    QFETCH(bool, popup);
    QFETCH(QByteArray, name);
    QFETCH(QVariant, first);
    QFETCH(QVariant, other);
    WQmlPopupController popupController;
    WQmlDialogController dialogController;
    QObject &controller = popup ? static_cast<QObject &>(popupController) : dialogController;
    const QMetaObject *meta = controller.metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(name.constData()));
    QCOMPARE(property.read(&controller), first);
    QSignalSpy changed(&controller, property.notifySignal());
    QVERIFY(property.write(&controller, first));
    QCOMPARE(changed.count(), 0);
    QVERIFY(property.write(&controller, other));
    QVERIFY(property.write(&controller, other));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(property.read(&controller), other);
}

void tst_QmlControllers::modelOwnership_data()
{
    QTest::addColumn<bool>("popup");
    QTest::addColumn<bool>("takes");
    for (const bool popup : {false, true}) {
        for (const bool takes : {false, true})
            QTest::addRow("%s %s", popup ? "popup" : "dialog", takes ? "takes" : "leaves") << popup << takes;
    }
}

void tst_QmlControllers::modelOwnership()
{
    QFETCH(bool, popup);
    QFETCH(bool, takes);
    // As a pointer to another class, and as what is no object at all.
    const QPointer<BaseListModel> model(new BaseListModel);
    for (const QVariant &value : {QVariant::fromValue(model.data()), QVariant(popupTexts())}) {
        const std::unique_ptr<QObject> controller(popup ? static_cast<QObject *>(new WQmlPopupController)
                                                        : new WQmlDialogController);
        controller->setProperty("takesModelOwnership", takes);
        QVERIFY(controller->setProperty("model", value));
    }
    QVERIFY(model);
    deleteNow();
    QCOMPARE(model.isNull(), takes);
    delete model;
}

void tst_QmlControllers::modelThatEnds()
{
    WQmlPopupController controller;
    controller.setTakesModelOwnership(true);
    QSignalSpy changed(&controller, &WQmlPopupController::modelChanged);
    auto *first = new QObject;
    QObject second;
    controller.setModel(QVariant::fromValue(first));
    controller.setModel(QVariant::fromValue(&second));
    delete first; // is the model no longer
    QCOMPARE(controller.model().value<QObject *>(), &second);
    auto third = std::make_unique<QObject>();
    controller.setModel(QVariant::fromValue(third.get()));
    changed.clear();
    third.reset();
    QCOMPARE(changed.count(), 1);
    QVERIFY(!controller.model().isValid());
}

void tst_QmlControllers::popupView()
{
    WPopupQuickView first(m_loader.getQmlEngine());
    WPopupQuickView second(m_loader.getQmlEngine());
    WQmlPopupController controller;
    QSignalSpy anchorChanged(&controller, &WQmlPopupController::arrowAnchorChanged);
    controller.setPopupQuickView(&first);
    controller.setPopupQuickView(&first);
    Q_EMIT first.arrowFlipped(Qt::DownArrow);
    QCOMPARE(controller.arrowAnchor(), WQmlBalloon::Bottom);
    QCOMPARE(anchorChanged.count(), 1);

    controller.setPopupQuickView(&second);
    Q_EMIT first.arrowFlipped(Qt::LeftArrow);
    QCOMPARE(controller.arrowAnchor(), WQmlBalloon::Bottom);
    Q_EMIT second.arrowFlipped(Qt::ArrowType(7)); // the last value that the type can hold
    QCOMPARE(controller.arrowAnchor(), WQmlBalloon::None);

    controller.setArrowOffset(77);
    Q_EMIT first.arrowOrthogonalChanged();
    QCOMPARE(controller.arrowOffset(), 77);
    Q_EMIT second.arrowOrthogonalChanged();
    QCOMPARE(controller.arrowOffset(), second.adjustArrowOffset(Qt::NoArrow));
    controller.setPopupQuickView(nullptr);
    controller.setArrowOffset(77);
    controller.adjustArrowOffset();
    QCOMPARE(controller.arrowOffset(), 77);
}

void tst_QmlControllers::initialProperties_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<QString>("text");
    const QString before = QStringLiteral("before");
    QTest::newRow("missing") << QVariant() << false << before;
    QTest::newRow("bool") << QVariant(true) << true << QStringLiteral("true");
    QTest::newRow("number") << QVariant(7) << true << QStringLiteral("7");
    QTest::newRow("text") << QVariant(QStringLiteral("false")) << false << QStringLiteral("false");
    QTest::newRow("neither") << QVariant(QVariantMap()) << false << before;
}

void tst_QmlControllers::initialProperties()
{
    QFETCH(QVariant, value);
    QFETCH(bool, flag);
    QFETCH(QString, text);
    AskingController controller;
    QMap<QString, QVariant> map {{QStringLiteral("other"), 1}};
    const QStringList names {QStringLiteral("flag"), QStringLiteral("text"), QStringLiteral("dynamic")};
    for (const QString &name : names) {
        if (value.isValid())
            map.insert(name, value);
    }
    WQmlControllerHelpers::applyInitialBoolPropertyToController(&controller, map, names.at(0));
    WQmlControllerHelpers::applyInitialStringPropertyToController(&controller, map, names.at(1));
    WQmlControllerHelpers::applyInitialStringPropertyToController(&controller, map, names.at(2));
    QCOMPARE(controller.flag, flag);
    QCOMPARE(controller.text, text);
    QCOMPARE(controller.property("dynamic"), text == QLatin1String("before") ? QVariant() : QVariant(text));
    QVERIFY(!controller.dynamicPropertyNames().contains("other"));
    WarningLog log;
    WQmlControllerHelpers::applyInitialBoolPropertyToController(nullptr, map, names.at(0));
    QCOMPARE(log.take().size(), 1);
}

void tst_QmlControllers::windowContainer()
{
    WQmlWindowContainerController controller;
    QSignalSpy focusIn(&controller, &WQmlWindowContainerController::focusIn);
    QWidget window;
    QWidget before(&window), container(&window), inside(&container), after(&window);
    for (QWidget *widget : {&before, &container, &inside, &after})
        widget->setFocusPolicy(Qt::StrongFocus);
    const auto send = [](QWidget *widget, Qt::FocusReason reason) {
        QFocusEvent event(QEvent::FocusIn, reason);
        QCoreApplication::sendEvent(widget, &event);
    };

    QPointer<WQuickView> view(new WQuickView(m_loader.getQmlEngine()));
    const QColor color = view->color();
    controller.setViewAndContainer(nullptr, view);
    QCOMPARE(view->color(), color);
    const QPointer<WQuickView> dead(new WQuickView(m_loader.getQmlEngine()));
    delete dead;
    controller.setViewAndContainer(&container, dead);
    send(&container, Qt::TabFocusReason);
    QCOMPARE(focusIn.count(), 0);

    controller.setViewAndContainer(&container, view);
    QCOMPARE(view->color(), QColor(Qt::transparent));
    send(&container, Qt::ActiveWindowFocusReason);
    send(&after, Qt::TabFocusReason);
    QCOMPARE(focusIn.count(), 0);
    send(&container, Qt::BacktabFocusReason);
    QCOMPARE(focusIn.count(), 1);
    QCOMPARE(focusIn.at(0).at(0).value<Qt::FocusReason>(), Qt::BacktabFocusReason);

    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    container.setFocus();
    controller.onFocusOut(Qt::TabFocusReason);
    QVERIFY(after.hasFocus()); // past what is inside
    container.setFocus();
    controller.onFocusOut(Qt::BacktabFocusReason);
    QVERIFY(before.hasFocus());

    // Another container takes the place of the first one.
    controller.setViewAndContainer(&after, view);
    focusIn.clear();
    send(&container, Qt::TabFocusReason);
    QCOMPARE(focusIn.count(), 0);
    delete view;
}

// --- types and theme

void tst_QmlControllers::typesInQml_data()
{
    QTest::addColumn<QStringList>("importPaths");
    const QString modules = QStringLiteral(UIELEMENTS_QML_MODULES);
    const QString resources = QStringLiteral("qrc:/qt-project.org/imports");
    const QString qt = QLibraryInfo::location(QLibraryInfo::Qml2ImportsPath);
    QTest::newRow("module not installed") << QStringList {resources, qt};
    // Below Qt's own folder, which comes last.
    QTest::newRow("module installed") << QStringList {resources, modules, qt};
    // By QML2_IMPORT_PATH, which takes the place of all others.
    QTest::newRow("module alone") << QStringList {modules, qt};
}

void tst_QmlControllers::typesInQml()
{
    QFETCH(QStringList, importPaths);
    WarningLog log;
    QQmlEngine engine;
    engine.setImportPathList(importPaths);
    QQmlComponent component(&engine);
    component.setData(R"(
import QtQuick 2.15
import UiElements 1.0
Item {
    property var overflow: OverflowListProxyModel { firstVisibleIndex: 2 }
    property var balloon: WBalloon { arrowAnchor: popup.arrowAnchor; arrowAlignment: WBalloon.RightAlignment }
    property var pill: WHalfPill { edge: WHalfPill.None }
    property var popup: WQmlPopupController { arrowAnchor: WBalloon.Left; themeType: "dark" }
    property var dialog: WQmlDialogController { model: ({ title: "a" }) }
})",
                      QUrl());
    const std::unique_ptr<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    const QStringList unprotected {
        QStringLiteral("Module 'UiElements' does not contain a module identifier directive - "
                       "it cannot be protected from external registrations.")};
    QCOMPARE(log.take(),
             importPaths.size() == 2 && importPaths.first() != QLatin1String("qrc:/qt-project.org/imports")
                 ? unprotected
                 : QStringList());
    auto *balloon = object->property("balloon").value<WQmlBalloon *>();
    QVERIFY(balloon);
    QCOMPARE(balloon->arrowAnchor(), WQmlBalloon::Left); // across two classes of the module
    QCOMPARE(balloon->arrowAlignment(), WQmlBalloon::RightAlignment);
    object->property("popup").value<WQmlPopupController *>()->flipArrow(Qt::RightArrow);
    QCOMPARE(balloon->arrowAnchor(), WQmlBalloon::Right);
}

void tst_QmlControllers::themeReachesBindings()
{
    auto *app = WApplication::find();
    const WColorSets before = app->getColorSets();
    QQmlComponent component(m_loader.getQmlEngine());
    component.setData(R"(
import QtQuick 2.15
import UiElements 1.0
Text {
    property string themeType
    property var wholeSet: Theme.colorSet("b", themeType)
    property color state: wholeSet.hovered
    property bool contrast: Theme.isHighContrast
    property bool mirrored: Theme.isMirrored
    color: Theme.colorSet("b", themeType).normal
    font: Theme.fonts.Title
})",
                      QUrl());
    app->setColorSets(spelledSets({"a", "b"}, 10));
    app->setInvertedColorSets(spelledSets({"a", "b"}, 20));
    std::unique_ptr<QObject> text(component.create());
    QVERIFY2(text, qPrintable(component.errorString()));
    const auto color = [&text](const char *name) {
        return text->property(name).value<QColor>();
    };
    QCOMPARE(color("color"), QColor(1, 0, 10));
    QCOMPARE(color("state"), QColor(1, 1, 10));
    app->setColorSets(spelledSets({"x", "y", "b"}, 30));
    QCOMPARE(color("color"), QColor(2, 0, 30));
    QCOMPARE(color("state"), QColor(2, 1, 30));
    text->setProperty("themeType", QStringLiteral("inverted"));
    QCOMPARE(color("color"), QColor(1, 0, 20));
    app->setIsHighContrastTheme(true); // the application's sets, whatever the type
    QCOMPARE(color("state"), QColor(2, 1, 30));
    QVERIFY(text->property("contrast").toBool());
    app->setIsHighContrastTheme(false);
    text->setProperty("themeType", QStringLiteral("dark"));
    QCOMPARE(color("color"), QColor(1, 0, 20));
    app->setIsDarkTheme(true);
    QCOMPARE(color("color"), QColor(2, 0, 30));
    app->setIsDarkTheme(false);

    const int size = text->property("font").value<QFont>().pixelSize();
    app->setFontScaleFactor(1.5f);
    QCOMPARE(text->property("font").value<QFont>().pixelSize(), size * 3 / 2);
    app->setFontScaleFactor(1);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QVERIFY(text->property("mirrored").toBool());
    text.reset();
    app->setColorSets(before);
    app->setInvertedColorSets({});
}

void tst_QmlControllers::wrongInput()
{
    PopupContext popup(m_factory, QStringLiteral("BalloonPopup.qml"));
    popup.setArrow(WQmlBalloon::Left, WQmlBalloon::TopAlignment, 3);
    WarningLog log;
    popup.setArrow(WQmlBalloon::ArrowAnchor(5));
    popup.setArrow(WQmlBalloon::Top, WQmlBalloon::ArrowAlignment(-1));
    popup.setArrow(WQmlBalloon::Top, WQmlBalloon::LeftAlignment, INT_MIN);
    const QString arrow = QStringLiteral("PopupContext::setArrow - Invalid arrow ");
    QCOMPARE(log.take(),
             QStringList({arrow + QLatin1String("5 1 0"), arrow + QLatin1String("1 -1 0"),
                          arrow + QLatin1String("1 0 -2147483648")}));
    QCOMPARE(popup.arrowAnchor(), WQmlBalloon::Left);
    QCOMPARE(popup.arrowAlignment(), WQmlBalloon::TopAlignment);
    QCOMPARE(popup.arrowOffset(), 3);

    QQmlComponent component(m_loader.getQmlEngine());
    component.setData(R"(
import QtQuick 2.15
import UiElements 1.0
Item {
    property var colors: [Theme.colorSet("text-primary").normal, Theme.colorSet("text-primary", "global").normal,
        Theme.colorSet("text-primary", "pink").normal, Theme.colorSet("text-primary", "pink").normal]
    property var icons: [Theme.icon("chat_24", "red"), Theme.icon("chat_24", Theme.colorSet("none").normal),
        Theme.icon("none_24", "red")]
})",
                      QUrl());
    const std::unique_ptr<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    QCOMPARE(log.take(),
             QStringList({QStringLiteral("Theme.colorSet - Unknown theme type, taken as global: \"pink\""),
                          QStringLiteral("ColorSet name does not exist!  \"none\""),
                          QStringLiteral("Theme.icon - There is no icon \"none_24\"")}));
    const QVariantList colors = object->property("colors").toList();
    QVERIFY(colors.at(0).value<QColor>().isValid());
    QCOMPARE(colors.count(colors.at(0)), 4);
    const QVariantList icons = object->property("icons").toList();
    QCOMPARE(icons.at(0).toUrl(), QUrl(QStringLiteral("image://uielements-icon/chat_24/ffff0000")));
    QVERIFY(icons.at(1).toUrl().isEmpty() && icons.at(2).toUrl().isEmpty());
}

// Of the theme type that the controller or the window around the widget has.
void tst_QmlControllers::themeReachesErrors()
{
    auto *app = WApplication::find();
    const WColorSets before = app->getColorSets();
    const auto sets = [](int blue) {
        return spelledSets({"background-primary", "text-primary"}, blue);
    };
    app->setColorSets(sets(10));
    app->setInvertedColorSets(sets(20));
    const WQmlEngineLoader loader;
    const WQmlViewFactory factory(loader);
    QmlFiles files(loader.getQmlEngine());
    files.write("Bad.qml", "Item { x: }");
    const QString bad = QStringLiteral("Bad.qml");
    MessageLog log; // what is wrong
    WQmlPopupController controller;
    WFrame window;
    QScopedPointer<WQuickView> view(factory.createQmlPopup(bad, nullptr, &controller, false));
    const WQuickWidget *widget = factory.createQmlWidget(bad, &window, nullptr);
    const auto colors = [](const QQuickWindow *shown) {
        const QQuickItem *error = shown->contentItem()->childItems().constFirst();
        return QStringList {error->property("color").value<QColor>().name(),
                            error->property("textColor").value<QColor>().name()};
    };
    const auto named = [](int blue) {
        return QStringList {QColor(0, 0, blue).name(), QColor(1, 0, blue).name()};
    };
    QCOMPARE(colors(view.data()), named(10));
    QCOMPARE(colors(widget->quickWindow()), named(10));
    app->setColorSets(sets(30));
    QCOMPARE(colors(view.data()), named(30));
    QCOMPARE(colors(widget->quickWindow()), named(30));
    controller.setThemeType(QStringLiteral("inverted"));
    window.setThemeType(QStringLiteral("inverted"));
    view->show();
    window.show();
    QCOMPARE(colors(view.data()), named(20));
    QCOMPARE(colors(widget->quickWindow()), named(20));
    app->setInvertedColorSets({}); // somebody has no such theme
    app->setColorSets({});
    QCOMPARE(colors(view.data()).constFirst(), QGuiApplication::palette().color(QPalette::Window).name());
    view.reset();
    delete loader.getQmlEngine();
    app->setColorSets(before);
}

// --- the pages

void tst_QmlControllers::pages_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("popup");
    QTest::addColumn<QVariant>("model");
    QTest::addColumn<QByteArray>("roles");
    static EmptyStateBaseListModel rows;
    if (rows.getCount() == 0)
        setUp(&rows, 5);
    QTest::newRow("balloon") << QStringLiteral("BalloonPopup.qml") << true << QVariant(popupTexts())
                             << QByteArray("Notification(Mentions) Button(Got it)");
    QTest::newRow("balloon, another controller")
        << QStringLiteral("BalloonPopup.qml") << false << QVariant(popupTexts())
        << QByteArray("Notification(Mentions) Button(Got it)");
    QTest::newRow("dialog") << QStringLiteral("MessageDialog.qml") << false << QVariant(dialogTexts())
                            << QByteArray("Dialog(Leave?) Heading(Leave?) StaticText(The others stay.) Button(Stay) "
                                          "Button(Leave)");
    QTest::newRow("list") << QStringLiteral("EmptyStateList.qml") << false << QVariant::fromValue<QObject *>(&rows)
                          << QByteArray("List() ListItem(Row 0) ListItem(Row 1) ListItem(Row 2)");
    QTest::newRow("pair") << QStringLiteral("HalfPillPair.qml") << false
                          << QVariant(QVariantMap {{QStringLiteral("first"), QStringLiteral("All")},
                                                   {QStringLiteral("second"), QStringLiteral("Unread")},
                                                   {QStringLiteral("name"), QStringLiteral("Shown")}})
                          << QByteArray("Grouping(Shown) RadioButton(All) RadioButton(Unread)");
}

namespace {

QByteArray rolesBelow(QQuickItem *root)
{
    QByteArrayList list;
    const QMetaEnum roles = QMetaEnum::fromType<QAccessible::Role>();
    std::function<void(QQuickItem *)> visit = [&](QQuickItem *item) {
        const QObject *attached = nullptr;
        for (const QObject *child : item->children()) {
            if (child->inherits("QQuickAccessibleAttached"))
                attached = child;
        }
        if (attached && item->isVisible() && !attached->property("ignored").toBool()) {
            list << roles.valueToKey(attached->property("role").toInt()) + QByteArray("(")
                    + attached->property("name").toString().toUtf8() + ")";
        }
        const QList<QQuickItem *> children = item->childItems();
        for (QQuickItem *child : children)
            visit(child);
    };
    visit(root);
    return list.join(' ');
}

} // namespace

// Every page, in every theme and direction: nothing is reported, all texts are inside, the roles are told.
void tst_QmlControllers::pages()
{
    QFETCH(QString, source);
    QFETCH(bool, popup);
    QFETCH(QVariant, model);
    QFETCH(QByteArray, roles);
    WarningLog log;
    WQmlPopupController popupController;
    WQmlDialogController dialogController;
    QObject &controller = popup ? static_cast<QObject &>(popupController) : dialogController;
    QWidget window;
    window.setPalette(Qt::magenta);
    const QPointer<WQuickWidget> page = m_factory.createQmlWidget(source, &window, &controller);
    QVERIFY2(page && page->rootObject(), qPrintable(log.take().join(QLatin1Char('\n'))));
    window.show();
    controller.setProperty("model", model);
    QCOMPARE(log.take(), QStringList());
    QQuickItem *root = page->rootObject();
    page->resize(qMax(200, int(root->implicitWidth())), qMax(100, int(root->implicitHeight())));
    QCoreApplication::processEvents();
    const QByteArray told = rolesBelow(root);
    QVERIFY2(told.startsWith(roles), told.constData());

    for (const char *theme : {"default.json", "defaultDark.json", "highContrast.json", "meridia/meridiaDark.json"}) {
        loadTheme(QString::fromLatin1(theme));
        const QImage leftToRight = page->grabFramebuffer();
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        QVERIFY(page->grabFramebuffer() != leftToRight);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QCoreApplication::processEvents();
        QCOMPARE(page->grabFramebuffer(), leftToRight);
        // What is behind a page with round corners is seen there.
        const bool isRound = source != QLatin1String("MessageDialog.qml");
        QCOMPARE(window.grab().toImage().pixelColor(0, 0) == window.palette().color(QPalette::Window), isRound);
    }
    const auto items = itemsBelow(root);
    for (QQuickItem *item : items) {
        if (item->inherits("QQuickText") && item->isVisible())
            QVERIFY(root->boundingRect().contains(item->mapRectToItem(root, item->boundingRect())));
    }
    controller.setProperty("model", QVariant());
    loadTheme(QStringLiteral("default.json"));
    QCOMPARE(log.take(), QStringList());
}

void tst_QmlControllers::dialogKeys_data()
{
    QTest::addColumn<QVector<int>>("keys");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("return") << QVector<int> {Qt::Key_Return} << QStringLiteral("accepted closed");
    QTest::newRow("escape") << QVector<int> {Qt::Key_Escape} << QStringLiteral("rejected closed");
    QTest::newRow("space") << QVector<int> {Qt::Key_Space} << QStringLiteral("accepted closed");
    QTest::newRow("tab, return") << QVector<int> {Qt::Key_Tab, Qt::Key_Return} << QStringLiteral("rejected closed");
    QTest::newRow("tab, tab, return") << QVector<int> {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return}
                                      << QStringLiteral("accepted closed");
    QTest::newRow("backtab, space") << QVector<int> {Qt::Key_Backtab, Qt::Key_Space}
                                    << QStringLiteral("rejected closed");
}

void tst_QmlControllers::dialogKeys()
{
    QFETCH(QVector<int>, keys);
    QFETCH(QString, outcome);
    WQmlDialogController controller;
    controller.setModel(dialogTexts());
    DialogContext dialog(m_factory, QStringLiteral("MessageDialog.qml"));
    dialog.setController(&controller);
    QStringList told;
    connect(&dialog, &DialogContext::accepted, this, [&] { told << QStringLiteral("accepted"); });
    connect(&dialog, &DialogContext::rejected, this, [&] { told << QStringLiteral("rejected"); });
    connect(&dialog, &DialogContext::closed, this, [&] { told << QStringLiteral("closed"); });
    QVERIFY(dialog.open());
    QVERIFY(QTest::qWaitForWindowActive(dialog.view()));
    for (const int key : keys) {
        QTest::keyPress(dialog.view(), Qt::Key(key));
        if (dialog.isOpen())
            QTest::keyRelease(dialog.view(), Qt::Key(key));
    }
    QTRY_COMPARE(told.join(QLatin1Char(' ')), outcome);
    QVERIFY(!dialog.isOpen());
}

void tst_QmlControllers::dialogIsAskedAgain()
{
    DialogContext dialog(m_factory, QStringLiteral("MessageDialog.qml"));
    QSignalSpy accepted(&dialog, &DialogContext::accepted);
    QSignalSpy rejected(&dialog, &DialogContext::rejected);
    dialog.accept(); // nothing was asked
    for (const bool accept : {true, false, true}) {
        QVERIFY(dialog.open());
        const QPointer<WQuickView> view = dialog.view();
        QVERIFY(dialog.open()); // the same one
        QCOMPARE(dialog.view(), view);
        QVERIFY(view->flags() & Qt::Dialog);
        if (accept)
            dialog.accept();
        else
            view->close();
        deleteNow();
        QVERIFY(!view);
    }
    QCOMPARE(accepted.count(), 2);
    QCOMPARE(rejected.count(), 1);
}

// The title follows any kind of model, until the host gives the window its own.
void tst_QmlControllers::dialogTitle()
{
    QWidget main;
    main.show();
    WQmlDialogController controller;
    controller.setModel(dialogTexts());
    DialogContext dialog(m_factory, QStringLiteral("MessageDialog.qml"), &main);
    dialog.setController(&controller);
    QVERIFY(dialog.open());
    QCOMPARE(dialog.view()->transientParent(), main.windowHandle());
    QCOMPARE(dialog.view()->title(), QStringLiteral("Leave?"));
    QWindow model; // an object with a title
    model.setTitle(QStringLiteral("a"));
    controller.setModel(QVariant::fromValue<QObject *>(&model));
    QCOMPARE(dialog.view()->title(), QStringLiteral("a"));
    model.setTitle(QStringLiteral("b"));
    QCOMPARE(dialog.view()->title(), QStringLiteral("b"));
    dialog.view()->setTitle(QStringLiteral("own"));
    model.setTitle(QStringLiteral("c"));
    QCOMPARE(dialog.view()->title(), QStringLiteral("own"));
    dialog.close();

    dialog.setParentWidget(nullptr);
    auto *ending = new WQmlDialogController;
    ending->setModel(QVariant::fromValue<QObject *>(&model));
    dialog.setController(ending);
    QVERIFY(dialog.open());
    QVERIFY(!dialog.view()->transientParent());
    delete ending;
    model.setTitle(QStringLiteral("d"));
    QCOMPARE(dialog.view()->title(), QStringLiteral("c"));
    dialog.close();
}

void tst_QmlControllers::openedAgainWhenAccepted_data()
{
    QTest::addColumn<bool>("popup");
    QTest::newRow("dialog") << false;
    QTest::newRow("popup") << true;
}

void tst_QmlControllers::openedAgainWhenAccepted()
{
    QFETCH(bool, popup);
    QWidget main;
    main.show();
    DialogContext dialog(m_factory, QStringLiteral("MessageDialog.qml"));
    PopupContext balloon(m_factory, QStringLiteral("BalloonPopup.qml"), &main);
    balloon.setTarget(QRect(100, 100, 20, 20));
    WQuickViewContext *const context = popup ? static_cast<WQuickViewContext *>(&balloon) : &dialog;
    const auto told = std::make_shared<QStringList>();
    const auto onAccepted = [told, context] {
        *told << QStringLiteral("accepted");
        *told << (context->open() ? QStringLiteral("open") : QStringLiteral("refused"));
    };
    connect(&dialog, &DialogContext::accepted, this, onAccepted);
    connect(&balloon, &PopupContext::accepted, this, onAccepted);
    connect(context, &WQuickViewContext::opened, this, [told] { *told << QStringLiteral("opened"); });
    connect(context, &WQuickViewContext::closed, this, [told] { *told << QStringLiteral("closed"); });
    QVERIFY(context->open());
    const QPointer<WQuickView> first = context->view();
    QCOMPARE(first->transientParent(), popup ? main.windowHandle() : nullptr);
    if (popup)
        balloon.accept();
    else
        dialog.accept();
    QCOMPARE(told->join(QLatin1Char(' ')), QStringLiteral("opened accepted closed opened open"));
    QVERIFY(context->isOpen() && context->view() != first);
    context->close();
}

void tst_QmlControllers::listKeys()
{
    EmptyStateBaseListModel rows;
    setUp(&rows, 30);
    WQmlDialogController controller;
    controller.setModel(QVariant::fromValue<QObject *>(&rows));
    QWidget window;
    const QPointer<WQuickWidget> list =
        m_factory.createQmlWidget(QStringLiteral("EmptyStateList.qml"), &window, &controller);
    QVERIFY(list);
    list->resize(200, 150);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    list->setFocus(Qt::TabFocusReason);
    QSignalSpy activated(list->rootObject(), SIGNAL(activated(int)));
    const auto press = [&](int key) {
        QTest::keyClick(list.data(), Qt::Key(key));
        return list->rootObject()->property("currentIndex").toInt();
    };
    QTRY_COMPARE(list->rootObject()->property("currentIndex").toInt(), 0);
    QCOMPARE(press(Qt::Key_Down), 1);
    QQuickItem *bar = itemWith(list->rootObject(), "progress", 0.0);
    QVERIFY(bar && bar->isVisible());
    QCOMPARE(bar->position(), QPointF(193, 4));
    QCOMPARE(press(Qt::Key_End), 29);
    QTRY_COMPARE(bar->y() + bar->height(), 146.0);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(bar->x(), 3.0);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(press(Qt::Key_Down), 29);
    QVERIFY(press(Qt::Key_PageUp) < 28);
    QCOMPARE(press(Qt::Key_Home), 0);
    QTRY_COMPARE(bar->y(), 4.0);
    press(Qt::Key_Return);
    QCOMPARE(activated.count(), 1);
    QTest::mouseClick(list.data(), Qt::LeftButton, Qt::NoModifier, {60, 4 + 28 + 14});
    QCOMPARE(activated.count(), 2);
    QCOMPARE(activated.at(1).at(0).toInt(), 1);
    rows.clear();
    rows.appendRows(rowsOf(3));
    QTRY_VERIFY(!bar->isVisible());
}

void tst_QmlControllers::listShowsItsEmptyState()
{
    EmptyStateBaseListModel rows;
    setUp(&rows, 0);
    OverflowListProxyModel overflow(1, nullptr);
    overflow.setSourceModel(&rows);
    WQmlDialogController controller;
    QWidget window;
    const QPointer<WQuickWidget> list =
        m_factory.createQmlWidget(QStringLiteral("EmptyStateList.qml"), &window, &controller);
    QVERIFY(list);
    window.show();
    for (QObject *model : {static_cast<QObject *>(&rows), static_cast<QObject *>(&overflow)}) {
        controller.setModel(QVariant::fromValue(model));
        QQuickItem *header = itemWith(list->rootObject(), "text", QStringLiteral("Nothing yet"));
        QVERIFY(header);
        QTRY_VERIFY(header->isVisible());
        rows.appendRows(rowsOf(3));
        QTRY_VERIFY(!header->isVisible());
        QCOMPARE(list->rootObject()->property("count").toInt(), model == &rows ? 3 : 1);
        rows.clear();
        QTRY_VERIFY(header->isVisible());
    }
    // An icon of the library is shown in the color of the theme.
    QQuickItem *image = itemWith(list->rootObject(), "sourceSize", QSize(32, 32));
    QVERIFY(image);
    const QUrl before = image->property("source").toUrl();
    loadTheme(QStringLiteral("defaultDark.json"));
    QVERIFY(image->property("source").toUrl() != before);
    QTRY_COMPARE(image->property("status").toInt(), 1);
    loadTheme(QStringLiteral("default.json"));
}

void tst_QmlControllers::countIsTold()
{
    EmptyStateBaseListModel rows;
    setUp(&rows, 0);
    WQmlDialogController controller;
    QObject parent;
    QPointer<QObject> counter;
    m_factory.createQmlComponent(QStringLiteral("CountText.qml"), &parent, &controller,
                                 [&counter](QObject *object) { counter = object; });
    QVERIFY(counter);
    controller.setModel(QVariant::fromValue<QObject *>(&rows));
    QCOMPARE(counter->property("text").toString(), QString());
    rows.appendRows(rowsOf(99));
    QCOMPARE(counter->property("text").toString(), QStringLiteral("99"));
    rows.appendRows({{"another", {{TitleRole, QString()}}}});
    QCOMPARE(counter->property("text").toString(), QStringLiteral("99+"));
}

void tst_QmlControllers::pairKeys_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("toSecond");
    QTest::addColumn<int>("toFirst");
    QTest::newRow("left to right") << Qt::LeftToRight << int(Qt::Key_Right) << int(Qt::Key_Left);
    QTest::newRow("right to left") << Qt::RightToLeft << int(Qt::Key_Left) << int(Qt::Key_Right);
}

void tst_QmlControllers::pairKeys()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, toSecond);
    QFETCH(int, toFirst);
    QApplication::setLayoutDirection(direction);
    WQmlDialogController controller;
    controller.setModel(QVariantMap {{QStringLiteral("first"), QStringLiteral("All")},
                                     {QStringLiteral("second"), QStringLiteral("Unread")}});
    QWidget window;
    const QPointer<WQuickWidget> pair =
        m_factory.createQmlWidget(QStringLiteral("HalfPillPair.qml"), &window, &controller);
    QVERIFY(pair && pair->rootObject());
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    pair->setFocus(Qt::TabFocusReason);
    QQuickItem *root = pair->rootObject();
    QSignalSpy activated(root, SIGNAL(activated(int)));
    const auto press = [&](int key) {
        QTest::keyClick(pair.data(), Qt::Key(key));
        return root->property("currentIndex").toInt();
    };
    QQuickItem *first = itemWith(root, "text", QStringLiteral("All"));
    QQuickItem *second = itemWith(root, "text", QStringLiteral("Unread"));
    QVERIFY(first && second);
    QCOMPARE(first->x() < second->x(), direction == Qt::LeftToRight);
    QVERIFY(first->hasActiveFocus());
    QCOMPARE(press(toFirst), 0);
    QCOMPARE(press(toSecond), 1);
    QVERIFY(second->hasActiveFocus());
    QCOMPARE(press(toSecond), 1);
    QCOMPARE(press(toFirst), 0);
    QCOMPARE(activated.count(), 2);
    const QPoint at = second->mapToScene(QPointF(second->width() / 2, second->height() / 2)).toPoint();
    QTest::mouseClick(pair.data(), Qt::LeftButton, Qt::NoModifier, at);
    QCOMPARE(root->property("currentIndex").toInt(), 1);
    QCOMPARE(activated.count(), 3);
}

// --- popups

namespace {

/// A window with a button in a list that scrolls.
struct Target
{
    Target()
    {
        area.setGeometry(100, 100, 300, 200);
        area.setFrameShape(QFrame::NoFrame);
        auto *content = new QWidget;
        content->setFixedSize(280, 1000);
        button = new QPushButton(QStringLiteral("Target"), content);
        button->setGeometry(80, 60, 61, 31);
        button->setCheckable(true);
        area.setWidget(content);
        area.show();
        context.setTarget(button);
        QVERIFY(QTest::qWaitForWindowActive(&area));
    }
    ~Target() { delete loader.getQmlEngine(); } // it does not end with the loader
    QPoint middle() const
    {
        const QRect rect = context.targetRect();
        return {rect.right() - rect.width() / 2, rect.bottom() - rect.height() / 2};
    }
    /// Where the tip of the arrow is on the desktop.
    QPointF tip() const
    {
        QQuickItem *root = context.view()->rootObject();
        const auto *balloon = root->findChild<WQmlBalloon *>();
        const QSizeF size = balloon->size();
        QPointF tip(balloon->getXCenter(size), balloon->getYCenter(size));
        switch (balloon->arrowAnchor()) {
        case WQmlBalloon::Top: tip.setY(0); break;
        case WQmlBalloon::Bottom: tip.setY(size.height()); break;
        case WQmlBalloon::Left: tip.setX(0); break;
        default: tip.setX(size.width()); break;
        }
        return tip + context.view()->position();
    }

    WQmlEngineLoader loader;
    WQmlViewFactory factory {loader};
    QScrollArea area;
    QPushButton *button = nullptr;
    PopupContext context {factory, QStringLiteral("BalloonPopup.qml")};
};

} // namespace

void tst_QmlControllers::popupFollowsItsTarget()
{
    Target target;
    target.context.setActivationProperty("checked");
    QVERIFY(target.context.open());
    target.context.popupController()->setModel(popupTexts());
    QVERIFY(target.button->isChecked());
    QTRY_COMPARE(qRound(target.tip().x()), target.middle().x());
    QCOMPARE(target.tip().y(), double(target.context.targetRect().bottom()));
    QCOMPARE(target.context.view()->transientParent(), target.area.windowHandle());

    const int y = target.context.view()->y();
    target.area.verticalScrollBar()->setValue(20);
    QTRY_COMPARE(target.context.view()->y(), y - 20);
    target.button->move(100, 90);
    QTRY_COMPARE(qRound(target.tip().x()), target.middle().x());
    QCOMPARE(target.tip().y(), double(target.context.targetRect().bottom()));
    target.context.setArrow(WQmlBalloon::Top, WQmlBalloon::CenterAlignment, 30);
    QCOMPARE(target.context.popupController()->arrowOffset(), 30);
    QTRY_COMPARE(qRound(target.tip().x()), target.middle().x());
    target.context.setArrow(WQmlBalloon::Top);
    target.context.setTarget(target.button, QRect(0, 0, 10, 10));
    QCOMPARE(target.context.targetRect().size(), QSize(10, 10));
    QTRY_COMPARE(qRound(target.tip().x()), target.middle().x());

    // At the edges of the screen the arrow stays at the target.
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QPoint &corner : {screen.topLeft(), screen.topRight(), screen.bottomLeft(), screen.bottomRight()}) {
        QRect rect(0, 0, 80, 20);
        rect.moveCenter(
            corner + QPoint(corner.x() > screen.center().x() ? -45 : 45, corner.y() > screen.center().y() ? -12 : 12));
        target.context.setTarget(rect);
        QTRY_VERIFY(screen.contains(target.context.view()->geometry()));
        QTRY_VERIFY(qAbs(target.tip().x() - target.middle().x()) <= 1);
        const bool above = corner.y() > screen.center().y();
        QCOMPARE(target.context.popupController()->arrowAnchor(), above ? WQmlBalloon::Bottom : WQmlBalloon::Top);
        QCOMPARE(target.tip().y(), double(above ? rect.top() : rect.bottom()));
    }

    QSignalSpy accepted(&target.context, &PopupContext::accepted);
    QTest::keyPress(target.context.view(), Qt::Key_Return); // the view is gone when the key is released
    QTRY_COMPARE(accepted.count(), 1);
    deleteNow();
    QVERIFY(!target.button->isChecked());
}

void tst_QmlControllers::popupClosesWithItsTarget_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("hidden") << 0;
    QTest::newRow("deleted") << 1;
    QTest::newRow("window hidden") << 2;
    QTest::newRow("scrolled out of sight") << 3;
    QTest::newRow("target taken away") << 4;
    QTest::newRow("escape") << 5;
}

void tst_QmlControllers::popupClosesWithItsTarget()
{
    QFETCH(int, how);
    Target target;
    QSignalSpy closed(&target.context, &PopupContext::closed);
    QVERIFY(target.context.open());
    const QPointer<WQuickView> view = target.context.view();
    QVERIFY(QTest::qWaitForWindowActive(view));
    switch (how) {
    case 0: target.button->hide(); break;
    case 1: delete target.button; break;
    case 2: target.area.hide(); break;
    case 3: target.area.verticalScrollBar()->setValue(500); break;
    case 4: target.context.setTarget(QRect()); break;
    case 5: QTest::keyPress(view, Qt::Key_Escape); break;
    }
    QTRY_COMPARE(closed.count(), 1);
    QVERIFY(!target.context.isOpen());
    QTRY_VERIFY(!view);
    if (how == 5)
        return;
    WarningLog log;
    QVERIFY(!target.context.open());
    QCOMPARE(log.take(), QStringList(QStringLiteral("PopupContext::open - There is no target that can be seen")));
}

void tst_QmlControllers::popupSides_data()
{
    QTest::addColumn<int>("anchor");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<bool>("mirrored");
    for (const bool mirrored : {false, true}) {
        for (int anchor = 1; anchor <= 4; ++anchor) {
            for (int alignment = 0; alignment <= 4; ++alignment)
                QTest::addRow("%d %d %d", anchor, alignment, mirrored) << anchor << alignment << mirrored;
        }
    }
}

void tst_QmlControllers::popupSides()
{
    QFETCH(int, anchor);
    QFETCH(int, alignment);
    QFETCH(bool, mirrored);
    Target target;
    target.area.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    WQmlPopupController controller;
    controller.setModel(popupTexts());
    controller.setArrowSize(7);
    target.context.setController(&controller);
    // An arrow at the end of its side is kept from the corner; the offset makes room for that.
    const int offset = alignment == 0 || alignment == 3 ? 20 : alignment == 1 ? 5 : -20;
    target.context.setTarget(QRect(350, 300, 61, 41));
    if (mirrored) {
        target.area.move(300, 250);
        target.context.setTarget(target.button);
    }
    target.context.setArrow(WQmlBalloon::ArrowAnchor(anchor), WQmlBalloon::ArrowAlignment(alignment), offset);
    QVERIFY(target.context.open());
    QCOMPARE(controller.arrowSize(), 7);
    const bool beside = anchor >= 3;
    const auto side = WQmlBalloon::ArrowAnchor(anchor);
    QCOMPARE(controller.arrowAnchor(), mirrored && beside ? WQmlBalloon::flipAnchor(side) : side);
    const QPointF distance = target.tip() - target.middle();
    QVERIFY2(qAbs(beside ? distance.y() : distance.x()) <= 1,
             qPrintable(QStringLiteral("%1, %2").arg(distance.x()).arg(distance.y())));
    const bool toTheLeft = target.context.view()->geometry().center().x() < target.middle().x();
    if (beside || alignment == 0 || alignment == 2)
        QCOMPARE(toTheLeft, (beside ? anchor == 4 : alignment == 2) != mirrored);
}

void tst_QmlControllers::popupAgainstAnItem()
{
    QWidget window;
    window.setGeometry(200, 150, 300, 200);
    WQuickWidget widget(m_loader.getQmlEngine(), &window);
    widget.setResizeMode(QQuickWidget::SizeRootObjectToView);
    widget.setGeometry(10, 20, 200, 100);
    QQmlComponent component(m_loader.getQmlEngine());
    component.setData("import QtQuick 2.15\nItem { Item { clip: true; width: 200; height: 100\n"
                      "Item { objectName: 'target'; x: 40; y: 30; width: 21; height: 11; property bool on } } }",
                      QUrl());
    widget.setContent(QUrl(), &component, component.create());
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto *item = widget.rootObject()->findChild<QQuickItem *>(QStringLiteral("target"));
    PopupContext context(m_factory, QStringLiteral("BalloonPopup.qml"));
    context.setTarget(item);
    context.setActivationProperty("on");
    const QPoint origin = widget.mapToGlobal(QPoint());
    QCOMPARE(context.targetRect(), QRect(origin + QPoint(40, 30), QSize(21, 11)));
    QVERIFY(context.open());
    QVERIFY(item->property("on").toBool());
    QCOMPARE(context.view()->transientParent(), window.windowHandle());
    const int x = context.view()->x();
    item->setX(60);
    QTRY_COMPARE(context.view()->x(), x + 20);
    widget.move(30, 20);
    QTRY_COMPARE(context.view()->x(), x + 40);
    item->setX(500); // out of what can be seen of it
    QTRY_VERIFY(!context.isOpen());
    item->setX(60);
    QVERIFY(context.open());
    widget.hide();
    QTRY_VERIFY(!context.isOpen());
    deleteNow();
    QVERIFY(!item->property("on").toBool());
}

// A press outside closes a popup, so it is closed when the click on its button arrives.
void tst_QmlControllers::popupIsToggled()
{
    Target target;
    connect(target.button, &QPushButton::clicked, &target.context, &PopupContext::toggle);
    QCursor::setPos(target.context.targetRect().center());
    const QPoint at = target.button->mapTo(&target.area, target.button->rect().center());
    const auto click = [&] {
        QTest::mouseClick(target.area.windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
    };
    target.context.setActivationProperty("checked"); // which a click changes by itself
    for (const bool open : {true, false, true, false, true}) {
        click();
        QCOMPARE(target.context.isOpen(), open);
        QCOMPARE(target.button->isChecked(), open);
        QCoreApplication::processEvents();
        deleteNow();
        QCOMPARE(target.context.isOpen(), open);
        QCOMPARE(target.button->isChecked(), open);
    }
    // A press that becomes no click is not held against the next one.
    QTest::mousePress(target.area.windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
    QVERIFY(!target.context.isOpen());
    QTest::mouseRelease(target.area.windowHandle(), Qt::LeftButton, Qt::NoModifier, {1, 1});
    QCoreApplication::processEvents();
    click();
    QVERIFY(target.context.isOpen());

    // A popup that is closed lives on for a while, but holds on to nothing.
    target.context.close();
    QVERIFY(!target.button->isChecked());
    QVERIFY(target.context.open());
    deleteNow();
    QVERIFY(target.button->isChecked());
    target.area.hide(); // nothing to open against
    QCoreApplication::processEvents();
    target.button->setChecked(true);
    const MessageLog log;
    target.context.toggle();
    QVERIFY(!target.context.isOpen() && !target.button->isChecked());
}

void tst_QmlControllers::popupTimer()
{
    Target target;
    auto *timer = new PopupContextTimer(&target.context, 60000);
    QVERIFY(!timer->isRunning());
    QVERIFY(target.context.open());
    QVERIFY(timer->isRunning());
    WQuickView *const view = target.context.view();
    const auto send = [view](QEvent::Type type) {
        QEvent event(type);
        QCoreApplication::sendEvent(view, &event);
    };
    send(QEvent::Enter);
    QVERIFY(!timer->isRunning());
    QTest::keyClick(view, Qt::Key_A);
    QVERIFY(!timer->isRunning());
    send(QEvent::Leave);
    QVERIFY(timer->isRunning());
    target.context.close();
    QVERIFY(!timer->isRunning());

    WarningLog log;
    timer->setTimeout(0);
    QCOMPARE(log.take(), QStringList(QStringLiteral("PopupContextTimer::setTimeout - Invalid time 0")));
    QCOMPARE(timer->timeout(), 60000);
    timer->setTimeout(1);
    QVERIFY(target.context.open());
    QTRY_VERIFY(!target.context.isOpen());
    QVERIFY(!timer->isRunning());
}

void tst_QmlControllers::popupClosedWhileOpening()
{
    Target target;
    target.context.setActivationProperty("checked");
    const auto atChecked = connect(target.button, &QPushButton::toggled, &target.context, &PopupContext::close);
    QVERIFY(!target.context.open());
    QVERIFY(!target.context.isOpen());
    deleteNow();
    disconnect(atChecked);
    QVERIFY(!target.button->isChecked());

    connect(&target.context, &PopupContext::opened, &target.context, &PopupContext::close);
    const PopupContextTimer timer(&target.context);
    QVERIFY(target.context.open());
    QVERIFY(!target.context.isOpen());
    QVERIFY(!timer.isRunning());
}

void tst_QmlControllers::contextsEndAtAnyTime_data()
{
    QTest::addColumn<QString>("when");
    for (const char *when : {"shown", "opened", "closed", "accepted", "view first"})
        QTest::newRow(when) << QString::fromLatin1(when);
}

void tst_QmlControllers::contextsEndAtAnyTime()
{
    QFETCH(QString, when);
    WarningLog log;
    auto *dialog = new DialogContext(m_factory, QStringLiteral("MessageDialog.qml"));
    const QPointer<DialogContext> guard(dialog);
    auto *own = new WQmlDialogController(dialog);
    own->setModel(dialogTexts());
    const QPointer<QObject> controller(own);
    dialog->setController(own);
    const auto end = [&dialog] {
        delete dialog;
    };
    if (when == QLatin1String("opened"))
        connect(dialog, &DialogContext::opened, this, end);
    else if (when == QLatin1String("closed"))
        connect(dialog, &DialogContext::closed, this, end);
    else if (when == QLatin1String("accepted"))
        connect(dialog, &DialogContext::accepted, this, end);
    dialog->open();
    if (guard) {
        const QPointer<WQuickView> view = guard->view();
        QVERIFY(view);
        if (when == QLatin1String("view first")) {
            delete view;
            QVERIFY(!guard->isOpen());
            delete dialog;
        } else if (when == QLatin1String("shown")) {
            delete dialog;
            QVERIFY(controller); // as long as the view may ask it
        } else {
            QVERIFY(QTest::qWaitForWindowActive(view));
            QTest::keyClick(view, Qt::Key_Return); // from the QML of the dialog itself
        }
    }
    QVERIFY(!guard);
    deleteNow();
    QVERIFY(!controller);
    QCOMPARE(log.take(), QStringList());
}

void tst_QmlControllers::windowContext()
{
    QWidget main;
    main.setGeometry(200, 100, 500, 400);
    main.show();
    WQuickViewContext window(m_factory, QStringLiteral("EmptyStateList.qml"));
    window.setParentWidget(&main);
    QVERIFY(window.open());
    QPointer<WQuickView> view = window.view();
    QCOMPARE(view->transientParent(), main.windowHandle());
    QVERIFY((view->geometry().center() - main.geometry().center()).manhattanLength() <= 2);
    view->setPosition(40, 50);
    window.close();
    QTRY_VERIFY(!view);
    QVERIFY(window.open());
    view = window.view();
    QCOMPARE(view->position(), QPoint(40, 50));
    window.close();
    WarningLog log;
    WQuickViewContext nothing(m_factory, QString());
    QVERIFY(!nothing.open());
    QCOMPARE(log.take().size(), 1);
}

// What tools read about the types is what there is; and the plug-in loads where nobody has registered them. With
// UIELEMENTS_WRITE_QMLTYPES in the environment the file is written anew.
void tst_QmlControllers::typeInformation()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("A program without the address sanitizer cannot load a plug-in that has it.");
#endif
    const QString tools = QLibraryInfo::location(QLibraryInfo::BinariesPath);
    const QString program = QStandardPaths::findExecutable(QStringLiteral("qmlplugindump"), {tools});
    QVERIFY2(!program.isEmpty(), "qmlplugindump is not there");
    QProcess dump;
    dump.start(program,
               {QStringLiteral("-nonrelocatable"), QStringLiteral("UiElements"), QStringLiteral("1.0"),
                QStringLiteral(UIELEMENTS_QML_MODULES)});
    QVERIFY(dump.waitForFinished());
    QCOMPARE(dump.exitCode(), 0);
    QString told = QString::fromUtf8(dump.readAllStandardOutput());
    told = told.mid(told.indexOf(QLatin1String("Module {"))); // before it are the paths of this machine
    // QtQuick tells about it, too.
    const int item = told.indexOf(QLatin1String("    Component {\n        name: \"QQuickItem\"\n"));
    if (item >= 0)
        told.remove(item, told.indexOf(QLatin1String("\n    }\n"), item) + 7 - item);
    told.prepend(QLatin1String("import QtQuick.tooling 1.2\n\n"));

    QFile file(QStringLiteral(UIELEMENTS_SOURCE_DIR "/UiElements/qml/module/plugins.qmltypes"));
    if (qEnvironmentVariableIsSet("UIELEMENTS_WRITE_QMLTYPES")) {
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(told.toUtf8());
        return;
    }
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()).split(QLatin1Char('\n')), told.split(QLatin1Char('\n')));
}

W_TEST_MAIN(tst_QmlControllers)
#include "tst_qml_controllers.moc"
