#include <UiElements/keyboard/EventFilter.h>
#include <UiElements/keyboard/TabOrderUtils.h>

#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStyleHints>

class tst_TabOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void withoutHelpTheFocusIsTrapped();
    void rounds_data();
    void rounds();
    void itemsKeepTheKey_data();
    void itemsKeepTheKey();
    void itemsComeAndGo();
    void replacedContent();
    void comesBackToTheItem();
    void handsOnTheFocus();
    void viewDestroyedOnTheWay();
    void otherFocusBehavior();
    void stopsOfWidgets();
    void nextStopOfOthers();
    void fromInsideAStop();
    void pastAContainer();
    void revealsWhatIsScrolledAway();
    void setsTheOrder();
    void compoundsStayTogether();
    void readingOrder_data();
    void readingOrder();
    void readingOrderKeepsBlocks();
    void refusals();

private:
    QScopedPointer<QWidget> m_window;
};

namespace {

QQuickItem *activeItem(QQuickWidget *view)
{
    QQuickItem *item = view->quickWindow()->activeFocusItem();
    return item == view->quickWindow()->contentItem() ? nullptr : item;
}

/// The name of the item that has the focus, or of the widget.
QString focusName()
{
    QWidget *widget = QApplication::focusWidget();
    if (!widget)
        return QStringLiteral("nothing");
    if (auto *view = qobject_cast<QQuickWidget *>(widget)) {
        if (QQuickItem *item = activeItem(view))
            return item->objectName();
    }
    return widget->objectName();
}

QString names(const QVector<QObject *> &objects)
{
    QStringList names;
    for (const QObject *object : objects)
        names << object->objectName();
    return names.join(QLatin1Char(' '));
}

void setQml(QQuickWidget *view, const QString &source)
{
    delete view->rootObject(); // setContent() leaves it
    auto *component = new QQmlComponent(view->engine(), view);
    component->setData("import QtQuick 2.15\n" + source.toUtf8(), QUrl());
    view->setContent(QUrl(), component, component->create());
    QVERIFY2(view->errors().isEmpty(), qPrintable(component->errorString()));
}

QString itemQml(const QString &name, const QString &more = QString())
{
    return QStringLiteral("Item { objectName: '%1'; activeFocusOnTab: true; width: 9; height: 9; %2 }\n")
        .arg(name, more);
}

/// A window from a line of words: each is a widget, and what stands in parentheses the items of a view that is named
/// "view". A "-" before a word hides it, a "!" disables it.
QWidget *build(const QString &line)
{
    auto *window = new QWidget;
    window->setObjectName(QStringLiteral("window"));
    auto *layout = new QHBoxLayout(window);
    QString qml;
    QString before;
    bool inView = false;
    const auto add = [&](QWidget *widget, QString name) {
        widget->setVisible(!name.startsWith(QLatin1Char('-')) || (name.remove(0, 1), false));
        widget->setEnabled(!name.startsWith(QLatin1Char('!')) || (name.remove(0, 1), false));
        widget->setObjectName(name);
        layout->addWidget(widget);
    };
    const QStringList words = QString(line)
                                  .replace(QLatin1String("("), QLatin1String(" ( "))
                                  .replace(QLatin1String(")"), QLatin1String(" ) "))
                                  .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (QString word : words) {
        if (word == QLatin1String("(")) {
            inView = true;
            qml.clear();
        } else if (word == QLatin1String(")")) {
            auto *view = new QQuickWidget;
            view->setMinimumSize(20, 20);
            setQml(view, QStringLiteral("Item { Row {\n%1 } }").arg(qml));
            TabOrderUtils::letTabThrough(view);
            add(view, before + QStringLiteral("view"));
            before.clear();
            inView = false;
        } else if (inView) {
            const QString more = word.startsWith(QLatin1Char('-')) ? QStringLiteral("visible: false")
                : word.startsWith(QLatin1Char('!'))                ? QStringLiteral("enabled: false")
                                                                   : QString();
            qml += itemQml(word.remove(QLatin1Char('-')).remove(QLatin1Char('!')), more);
        } else if (word == QLatin1String("-") || word == QLatin1String("!")) {
            before = word;
        } else if (word.endsWith(QLatin1String("edit"))) {
            add(new QLineEdit, word);
        } else {
            add(new QPushButton, word);
        }
    }
    return window;
}

QQuickItem *itemOf(QWidget *window, const char *name)
{
    const auto views = window->findChildren<QQuickWidget *>();
    for (QQuickWidget *view : views) {
        if (auto *item = view->rootObject()->findChild<QQuickItem *>(QLatin1String(name)))
            return item;
    }
    return nullptr;
}

void show(QWidget *window)
{
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
}

/// Presses the key until the focus is back where it started, and at most so often. Returns the stops on the way.
QString walk(QWidget *window, Qt::Key key, int most = 12)
{
    const QString start = focusName();
    QStringList names(start);
    do {
        QTest::keyClick(window->windowHandle(), key);
        names << focusName();
    } while (names.constLast() != start && names.size() <= most);
    return names.join(QLatin1Char(' '));
}

QString reversed(const QString &words)
{
    QStringList list = words.split(QLatin1Char(' '));
    std::reverse(list.begin(), list.end());
    return list.join(QLatin1Char(' '));
}

} // namespace

void tst_TabOrder::init()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_TabOrder::cleanup()
{
    m_window.reset();
}

// The fault that letTabThrough() is for. When this fails, Qt has learned it.
void tst_TabOrder::withoutHelpTheFocusIsTrapped()
{
    m_window.reset(build(QStringLiteral("edit check")));
    auto *view = new QQuickWidget;
    view->setObjectName(QStringLiteral("view"));
    setQml(view,
           QStringLiteral("Item { Row { %1 %2 } }").arg(itemQml(QStringLiteral("a")), itemQml(QStringLiteral("b"))));
    m_window->layout()->addWidget(view);
    show(m_window.data());
    view->setFocus();
    QCOMPARE(walk(m_window.data(), Qt::Key_Tab, 5), QStringLiteral("view a b a b a"));
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())), QStringLiteral("edit check a b"));
    setQml(view, QStringLiteral("Item {}"));
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())), QStringLiteral("edit check view"));
    QVERIFY(TabOrderUtils::focusPrevious(m_window.data()));
    QCOMPARE(focusName(), QStringLiteral("check"));
    TabOrderUtils::letTabThrough(view);
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())), QStringLiteral("edit check"));
}

void tst_TabOrder::rounds_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("round");
    const auto row = [](const char *name, const char *line, const char *round) {
        QTest::newRow(name) << QString::fromLatin1(line) << QString::fromLatin1(round);
    };
    row("between", "edit button (item1 item2) check", "edit button item1 item2 check edit");
    row("first", "(a b) edit", "a b edit a");
    row("last", "edit (a b)", "edit a b edit");
    row("only, two items", "(a b)", "a b a");
    row("only, one item", "(a)", "a a");
    row("one item", "edit (a) check", "edit a check edit");
    row("two views", "edit (a b) (c d) check", "edit a b c d check edit");
    row("two views only", "(a b) (c)", "a b c a");
    row("without stops", "edit () check", "edit check edit");
    row("all without stops", "edit () () (-a !b) check () ()", "edit check edit");
    row("hidden and disabled items", "edit (-a b !c d -e) check", "edit b d check edit");
    row("hidden and disabled views", "edit - (a) ! (b) (c) check", "edit c check edit");
    row("hidden and disabled widgets", "edit -x (a) !y check", "edit a check edit");
    row("alone with one without stops", "edit ()", "edit edit");
}

void tst_TabOrder::rounds()
{
    QFETCH(QString, line);
    QFETCH(QString, round);
    m_window.reset(build(line));
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QGuiApplication::setLayoutDirection(direction);
        show(m_window.data());
        QCOMPARE(names(TabOrderUtils::stops(m_window.data())) + QLatin1Char(' ')
                     + round.section(QLatin1Char(' '), 0, 0),
                 round);
        // A repeated call changes nothing.
        const auto views = m_window->findChildren<QQuickWidget *>();
        for (QQuickWidget *view : views) {
            const int children = view->children().size();
            TabOrderUtils::letTabThrough(view);
            QCOMPARE(view->children().size(), children);
        }

        if (QApplication::focusWidget())
            QApplication::focusWidget()->clearFocus();
        QVERIFY(TabOrderUtils::focusNext(m_window.data()));
        QCOMPARE(walk(m_window.data(), Qt::Key_Tab), round);
        QCOMPARE(walk(m_window.data(), Qt::Key_Backtab), reversed(round));

        QStringList moved(focusName());
        for (int i = round.count(QLatin1Char(' ')); i > 0; --i) {
            QVERIFY(TabOrderUtils::focusNext(m_window.data()));
            moved << focusName();
        }
        QCOMPARE(moved.join(QLatin1Char(' ')), round);
        moved = QStringList(focusName());
        for (int i = round.count(QLatin1Char(' ')); i > 0; --i) {
            QVERIFY(TabOrderUtils::focusPrevious(m_window.data()));
            moved << focusName();
        }
        QCOMPARE(moved.join(QLatin1Char(' ')), reversed(round));
    }
}

void tst_TabOrder::itemsKeepTheKey_data()
{
    QTest::addColumn<QString>("qml");
    QTest::addColumn<QString>("forward"); // from "a"
    QTest::addColumn<QString>("backward");
    const auto row = [](const char *name, const char *qml, const char *forward, const char *backward) {
        QTest::newRow(name) << QString::fromLatin1(qml) << QString::fromLatin1(forward)
                            << QString::fromLatin1(backward);
    };
    row("a text with tabs", "TextEdit { objectName: 'a'; activeFocusOnTab: true }", "a a", "a edit a");
    row("a line", "TextInput { objectName: 'a'; activeFocusOnTab: true }", "a check edit a", "a edit check a");
    row("Keys", "Item { objectName: 'a'; activeFocusOnTab: true; Keys.onTabPressed: {} }", "a a", "a edit check a");
    row("Keys that passes",
        "Item { objectName: 'a'; activeFocusOnTab: true; Keys.onTabPressed: event.accepted = false }", "a check edit a",
        "a edit check a");
    row("KeyNavigation against the order",
        "Row { Item { id: b; objectName: 'b'; activeFocusOnTab: true }"
        "Item { objectName: 'a'; activeFocusOnTab: true; KeyNavigation.tab: b } }",
        "a b a", "a b a"); // Qt links the way back, too
    row("nested scopes",
        "FocusScope { FocusScope { activeFocusOnTab: true; Item { objectName: 'a'; focus: true } }"
        "FocusScope { Item { objectName: 'b'; activeFocusOnTab: true } } }",
        "a b check edit a", "a edit check b a");
}

void tst_TabOrder::itemsKeepTheKey()
{
    QFETCH(QString, qml);
    QFETCH(QString, forward);
    QFETCH(QString, backward);
    m_window.reset(build(QStringLiteral("edit () check")));
    auto *view = m_window->findChild<QQuickWidget *>();
    setQml(view, QStringLiteral("Item { %1 }").arg(qml));
    show(m_window.data());
    view->setFocus();
    const auto start = [this] {
        itemOf(m_window.data(), "a")->forceActiveFocus();
    };
    start();
    QCOMPARE(walk(m_window.data(), Qt::Key_Tab), forward);
    view->setFocus();
    start();
    if (forward == QLatin1String("a a")) // no way back by Tab
        backward = backward.left(6);
    QCOMPARE(walk(m_window.data(), Qt::Key_Backtab, 5).left(backward.size()), backward);
}

void tst_TabOrder::itemsComeAndGo()
{
    m_window.reset(build(QStringLiteral("edit (a b c) check")));
    show(m_window.data());
    auto *view = m_window->findChild<QQuickWidget *>();
    view->setFocus(Qt::BacktabFocusReason);
    QCOMPARE(focusName(), QStringLiteral("c"));

    // Tab with other keys is not ours.
    for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier}) {
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab, modifier);
        QCOMPARE(focusName(), QStringLiteral("c"));
    }

    // The last one goes while it has the focus.
    itemOf(m_window.data(), "c")->setVisible(false);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(focusName(), QStringLiteral("c"));
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
    QCOMPARE(focusName(), QStringLiteral("check"));
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Backtab);
    QCOMPARE(focusName(), QStringLiteral("b"));
    itemOf(m_window.data(), "c")->setVisible(true);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
    QCOMPARE(focusName(), QStringLiteral("c"));

    // All of them go, with their parent.
    QQuickItem *row = itemOf(m_window.data(), "c")->parentItem();
    row->setVisible(false);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Backtab);
    QCOMPARE(focusName(), QStringLiteral("edit"));
    row->setVisible(true);
    view->setFocus(Qt::TabFocusReason);
    row->setEnabled(false);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
    QCOMPARE(focusName(), QStringLiteral("check"));
    row->setEnabled(true);
    view->setFocus(Qt::TabFocusReason);
    delete itemOf(m_window.data(), "a");
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Backtab);
    QVERIFY(focusName() == QLatin1String("edit") || focusName() == QLatin1String("c"));
}

void tst_TabOrder::replacedContent()
{
    m_window.reset(build(QStringLiteral("edit (a) check")));
    show(m_window.data());
    auto *view = m_window->findChild<QQuickWidget *>();
    view->setFocus(Qt::TabFocusReason);
    setQml(view, itemQml(QStringLiteral("root"), itemQml(QStringLiteral("b"))));
    const int children = view->quickWindow()->contentItem()->childItems().size();
    m_window->findChild<QLineEdit *>()->setFocus();
    QCOMPARE(walk(m_window.data(), Qt::Key_Tab), QStringLiteral("edit root b check edit"));
    QCOMPARE(walk(m_window.data(), Qt::Key_Backtab), QStringLiteral("edit check b root edit"));
    QCOMPARE(view->quickWindow()->contentItem()->childItems().size(), children);
}

void tst_TabOrder::comesBackToTheItem()
{
    m_window.reset(build(QStringLiteral("edit (a b) check")));
    show(m_window.data());
    auto *view = m_window->findChild<QQuickWidget *>();
    view->setFocus(Qt::BacktabFocusReason);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
    QCOMPARE(focusName(), QStringLiteral("check"));
    QVERIFY(itemOf(m_window.data(), "b")->hasFocus());
    view->setFocus(Qt::OtherFocusReason);
    QCOMPARE(focusName(), QStringLiteral("b"));

    // Without one, Tab starts at the first and Backtab at the last.
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        itemOf(m_window.data(), "a")->setFocus(false);
        itemOf(m_window.data(), "b")->setFocus(false);
        QCOMPARE(walk(m_window.data(), key, 1),
                 key == Qt::Key_Tab ? QStringLiteral("view a") : QStringLiteral("view b"));
    }
}

void tst_TabOrder::handsOnTheFocus()
{
    m_window.reset(build(QStringLiteral("edit (a b) check")));
    show(m_window.data());
    auto *view = m_window->findChild<QQuickWidget *>();
    view->setFocus(Qt::TabFocusReason);
    view->hide();
    QCOMPARE(focusName(), QStringLiteral("check"));
    view->show();
    view->setFocus(Qt::TabFocusReason);
    view->setEnabled(false);
    QCOMPARE(focusName(), QStringLiteral("check"));

    // A window that is closed and opened again is as it was.
    view->setEnabled(true);
    view->setFocus(Qt::BacktabFocusReason);
    m_window->hide();
    QCOMPARE(m_window->focusWidget(), view);
}

void tst_TabOrder::viewDestroyedOnTheWay()
{
    m_window.reset(build(QStringLiteral("edit (a) (b) check")));
    show(m_window.data());
    QPointer<QQuickWidget> first = m_window->findChildren<QQuickWidget *>().at(0);
    QPointer<QQuickWidget> second = m_window->findChildren<QQuickWidget *>().at(1);

    // The one that Tab leaves, and the one that it goes to.
    first->setFocus(Qt::TabFocusReason);
    auto connection = connect(qApp, &QApplication::focusChanged, this, [&](QWidget *old) {
        if (old == first)
            delete first;
    });
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
    disconnect(connection);
    QVERIFY(!first);
    QCOMPARE(focusName(), QStringLiteral("b"));
    QCOMPARE(walk(m_window.data(), Qt::Key_Tab), QStringLiteral("b check edit b"));

    // Qt does not survive when the one that it goes to dies at once.
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Backtab);
    connection = connect(qApp, &QApplication::focusChanged, this, [&](QWidget *, QWidget *now) {
        if (now && now == second)
            second->deleteLater();
    });
    TabOrderUtils::focusNext(m_window.data());
    disconnect(connection);
    QTRY_VERIFY(!second);
    m_window->findChild<QLineEdit *>()->setFocus();
    QCOMPARE(walk(m_window.data(), Qt::Key_Tab), QStringLiteral("edit check edit"));
}

void tst_TabOrder::otherFocusBehavior()
{
    // What some desktops ask for: Tab stops at text only.
    QStyleHints *hints = QGuiApplication::styleHints();
    const Qt::TabFocusBehavior before = hints->tabFocusBehavior();
    hints->setTabFocusBehavior(Qt::TabFocusTextControls);
    m_window.reset(build(QStringLiteral("edit (a b) 2edit check")));
    m_window->findChild<QPushButton *>()->setFocusPolicy(Qt::TabFocus);
    setQml(m_window->findChild<QQuickWidget *>(),
           QStringLiteral("Row { %1 TextInput { objectName: 't'; activeFocusOnTab: true } %2 }")
               .arg(itemQml(QStringLiteral("a")), itemQml(QStringLiteral("b"))));
    show(m_window.data());
    m_window->findChild<QLineEdit *>()->setFocus();
    const QString forward = walk(m_window.data(), Qt::Key_Tab);
    const QString backward = walk(m_window.data(), Qt::Key_Backtab);
    const QString stops = names(TabOrderUtils::stops(m_window.data()));
    hints->setTabFocusBehavior(before);
    QCOMPARE(forward, QStringLiteral("edit t 2edit edit"));
    QCOMPARE(backward, QStringLiteral("edit 2edit t edit"));
    QCOMPARE(stops, QStringLiteral("edit t 2edit"));
}

void tst_TabOrder::stopsOfWidgets()
{
    m_window.reset(new QWidget);
    auto *layout = new QVBoxLayout(m_window.data());
    const auto add = [layout](QWidget *widget, const char *name) {
        widget->setObjectName(QLatin1String(name));
        layout->addWidget(widget);
        return widget;
    };
    auto *hidden = add(new QWidget, "hidden");
    auto *disabledOne = add(new QWidget, "disabled one");
    add(new QLineEdit, "edit");
    add(new QPushButton, "click")->setFocusPolicy(Qt::ClickFocus);
    add(new QPushButton, "none")->setFocusPolicy(Qt::NoFocus);
    add(new QSpinBox, "spin");
    auto *combo = new QComboBox;
    combo->setEditable(true);
    add(combo, "combo");
    hidden->setFocusProxy(combo);
    hidden->hide();
    disabledOne->setFocusProxy(combo);
    disabledOne->setEnabled(false);
    auto *group = new QGroupBox;
    add(group, "group");
    auto *inside = new QVBoxLayout(group);
    for (const char *name : {"radio1", "radio2", "radio3"}) {
        auto *radio = new QRadioButton;
        radio->setObjectName(QLatin1String(name));
        inside->addWidget(radio);
        radio->setChecked(qstrcmp(name, "radio2") == 0);
    }
    auto *disabled = new QGroupBox;
    add(disabled, "disabled")->setEnabled(false);
    auto *unreachable = new QLineEdit(disabled);
    unreachable->setObjectName(QStringLiteral("unreachable"));
    auto *proxied = new QWidget;
    proxied->setFocusPolicy(Qt::StrongFocus);
    auto *target = new QLineEdit(proxied);
    target->setObjectName(QStringLiteral("target"));
    proxied->setFocusProxy(target);
    add(proxied, "proxied");
    show(m_window.data());

    // As Qt walks. It chooses among exclusive buttons when one of them gets the focus.
    m_window->findChild<QRadioButton *>(QStringLiteral("radio2"))->setFocus();
    m_window->findChild<QLineEdit *>(QStringLiteral("edit"))->setFocus();
    const QString round = walk(m_window.data(), Qt::Key_Tab);
    QCOMPARE(round, QStringLiteral("edit spin combo radio2 target edit"));
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())) + QStringLiteral(" edit"), round);
    QVERIFY(TabOrderUtils::focusPrevious(m_window.data()));
    QCOMPARE(focusName(), QStringLiteral("target"));
    QVERIFY(TabOrderUtils::focusPrevious(m_window.data()));
    QCOMPARE(focusName(), QStringLiteral("radio2"));

    m_window->setEnabled(false);
    QVERIFY(TabOrderUtils::stops(m_window.data()).isEmpty());
    QVERIFY(!TabOrderUtils::focusNext(m_window.data()));
}

void tst_TabOrder::nextStopOfOthers()
{
    m_window.reset(build(QStringLiteral("edit -x (a !b c) check")));
    const auto next = [this](const QObject *from) {
        return TabOrderUtils::nextStop(m_window.data(), from, true)->objectName() + QLatin1Char(' ')
            + TabOrderUtils::nextStop(m_window.data(), from, false)->objectName();
    };
    QCOMPARE(next(nullptr), QStringLiteral("edit check"));
    QCOMPARE(next(m_window.data()), QStringLiteral("edit check"));
    QCOMPARE(next(m_window->findChild<QWidget *>(QStringLiteral("x"))), QStringLiteral("a edit"));
    QCOMPARE(next(m_window->findChild<QWidget *>(QStringLiteral("view"))), QStringLiteral("a edit"));
    QCOMPARE(next(itemOf(m_window.data(), "b")), QStringLiteral("c a"));
    QCOMPARE(next(itemOf(m_window.data(), "c")), QStringLiteral("check a"));

    QLineEdit elsewhere; // a focus proxy in another window is no stop of this one
    elsewhere.show();
    m_window->findChild<QWidget *>(QStringLiteral("check"))->setFocusProxy(&elsewhere);
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())), QStringLiteral("edit a c"));
}

void tst_TabOrder::fromInsideAStop()
{
    m_window.reset(build(QStringLiteral("edit () check")));
    auto *view = m_window->findChild<QQuickWidget *>();
    setQml(view,
           QStringLiteral("Item { FocusScope { objectName: 'field'; activeFocusOnTab: true\n"
                          "TextInput { objectName: 'text'; focus: true } } }"));
    show(m_window.data());
    for (const bool forward : {true, false}) {
        view->setFocus(Qt::TabFocusReason);
        QCOMPARE(focusName(), QStringLiteral("text"));
        QVERIFY(forward ? TabOrderUtils::focusNext(m_window.data()) : TabOrderUtils::focusPrevious(m_window.data()));
        QCOMPARE(focusName(), forward ? QStringLiteral("check") : QStringLiteral("edit"));
    }
    // The order does not need the window to be active.
    m_window->hide();
    view->setFocus();
    QVERIFY(TabOrderUtils::focusNext(m_window.data()));
    QCOMPARE(m_window->focusWidget()->objectName(), QStringLiteral("check"));
}

void tst_TabOrder::pastAContainer()
{
    m_window.reset(build(QStringLiteral("edit check (a b)")));
    auto *container = new QGroupBox(m_window.data());
    auto *inner = new QLineEdit(container);
    new QLineEdit(container);
    inner->setObjectName(QStringLiteral("inner"));
    TabOrderUtils::setTabOrder({m_window->findChild<QWidget *>(QStringLiteral("edit")), container, inner,
                                container->findChildren<QLineEdit *>().constLast(),
                                m_window->findChild<QWidget *>(QStringLiteral("check"))});
    show(m_window.data());
    container->findChildren<QLineEdit *>().constLast()->setObjectName(QStringLiteral("other"));
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())), QStringLiteral("edit inner other check a b"));
    inner->setFocus();
    QVERIFY(TabOrderUtils::focusNextPrevChild(container, true));
    QCOMPARE(focusName(), QStringLiteral("check"));
    inner->setFocus();
    QVERIFY(TabOrderUtils::focusNextPrevChild(container, false));
    QCOMPARE(focusName(), QStringLiteral("edit"));
    QVERIFY(TabOrderUtils::focusNextPrevChild(m_window->findChild<QQuickWidget *>(), false));
    QCOMPARE(focusName(), QStringLiteral("check"));
    QVERIFY(!TabOrderUtils::focusNextPrevChild(m_window.data(), true));

    // What is inside a container and listed itself stands where it is listed.
    TabOrderUtils::setTabOrder({inner, m_window->findChild<QWidget *>(QStringLiteral("check")), container});
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())), QStringLiteral("edit inner check other a b"));
}

void tst_TabOrder::revealsWhatIsScrolledAway()
{
    m_window.reset(build(QStringLiteral("(a)")));
    auto *area = new QScrollArea;
    auto *content = new QWidget;
    content->resize(50, 2000);
    auto *far = new QLineEdit(content);
    far->move(0, 1900);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(content);
    m_window->layout()->addWidget(area);
    show(m_window.data());
    QCOMPARE(walk(m_window.data(), Qt::Key_Tab, 1), QStringLiteral("view a"));
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
    QVERIFY(far->hasFocus());
    QVERIFY(!far->visibleRegion().isEmpty());
}

void tst_TabOrder::setsTheOrder()
{
    m_window.reset(build(QStringLiteral("a b c d e")));
    QScopedPointer<QWidget> other(build(QStringLiteral("x")));
    const auto w = [&](const char *name) {
        return m_window->findChild<QWidget *>(QLatin1String(name));
    };
    WarningLog log;
    TabOrderUtils::setTabOrder({w("b"), nullptr, w("e"), w("b"), w("a")});
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())), QStringLiteral("b e a c d"));
    QCOMPARE(log.take(),
             QStringList({QStringLiteral("TabOrderUtils::setTabOrder - A widget is null"),
                          QStringLiteral("TabOrderUtils::setTabOrder - A widget is listed twice")}));
    TabOrderUtils::setTabOrder({w("d"), w("c")}); // the end of the ring stays the end
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())), QStringLiteral("b e a d c"));
    TabOrderUtils::setTabOrder({w("c"), w("b")});
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())), QStringLiteral("c b e a d"));
    QCOMPARE(m_window->focusPolicy(), Qt::NoFocus);
    TabOrderUtils::setTabOrder({w("a"), nullptr, w("b"), other->findChild<QWidget *>(QStringLiteral("x"))});
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())), QStringLiteral("c b e a d"));
    QCOMPARE(log.take(), QStringList(QStringLiteral("TabOrderUtils::setTabOrder - The widgets are not in one window")));
}

void tst_TabOrder::compoundsStayTogether()
{
    m_window.reset(build(QStringLiteral("edit (a b) check")));
    auto *compound = new QWidget;
    auto *inside = new QHBoxLayout(compound);
    for (const char *name : {"c1", "c2", "c3"}) {
        auto *part = new QLineEdit;
        part->setObjectName(QLatin1String(name));
        inside->addWidget(part);
    }
    compound->setFocusPolicy(Qt::StrongFocus);
    compound->setFocusProxy(compound->findChild<QLineEdit *>());
    auto *spin = new QSpinBox;
    spin->setObjectName(QStringLiteral("spin"));
    m_window->layout()->addWidget(compound);
    m_window->layout()->addWidget(spin);
    const auto w = [&](const char *name) {
        return m_window->findChild<QWidget *>(QLatin1String(name));
    };
    TabOrderUtils::setTabOrder({compound, w("check"), spin, w("view"), w("edit")});
    show(m_window.data());
    w("check")->setFocus();
    QCOMPARE(walk(m_window.data(), Qt::Key_Tab), QStringLiteral("check spin a b edit c1 c2 c3 check"));
    QCOMPARE(walk(m_window.data(), Qt::Key_Backtab), QStringLiteral("check c3 c2 c1 edit b a spin check"));
}

void tst_TabOrder::readingOrder_data()
{
    QTest::addColumn<QVector<QRect>>("rects"); // of the widgets a, b, c ...
    QTest::addColumn<QString>("leftToRight");
    QTest::addColumn<QString>("rightToLeft");
    using Rects = QVector<QRect>;
    QTest::newRow("rows") << Rects {{50, 30, 40, 20}, {0, 30, 40, 20}, {50, 0, 40, 20}, {0, 0, 40, 20}} << "d c b a"
                          << "c d a b";
    QTest::newRow("one row, uneven") << Rects {{50, 0, 40, 20}, {0, 9, 40, 20}} << "b a"
                                     << "a b";
    QTest::newRow("overlap of half is two rows") << Rects {{50, 0, 40, 20}, {0, 10, 40, 20}} << "a b"
                                                 << "a b";
    QTest::newRow("half of the lower one counts") << Rects {{0, 0, 40, 100}, {50, 94, 40, 10}} << "a b"
                                                  << "b a";
    QTest::newRow("two rows beside a tall one")
        << Rects {{50, 30, 20, 20}, {80, 30, 20, 20}, {50, 0, 20, 20}, {80, 0, 20, 20}, {0, 0, 40, 60}} << "e c d a b"
        << "d c b a e";
    QTest::newRow("a tall one in the middle")
        << Rects {{50, 0, 40, 60}, {100, 30, 20, 20}, {0, 30, 20, 20}, {100, 0, 20, 20}, {0, 0, 20, 20}} << "e c a d b"
        << "d b a e c";
    QTest::newRow("one above the other in the same place") << Rects {{0, 0, 20, 20}, {0, 0, 20, 20}} << "a b"
                                                           << "a b";
}

void tst_TabOrder::readingOrder()
{
    QFETCH(QVector<QRect>, rects);
    QFETCH(QString, leftToRight);
    QFETCH(QString, rightToLeft);
    m_window.reset(new QWidget);
    auto *before = new QLineEdit(m_window.data());
    auto *container = new QWidget(m_window.data());
    for (int i = 0; i < rects.size(); ++i) {
        auto *button = new QPushButton(container);
        button->setObjectName(QString(QChar('a' + i)));
        button->setGeometry(rects.at(i));
    }
    before->setObjectName(QStringLiteral("before"));
    (new QLineEdit(m_window.data()))->setObjectName(QStringLiteral("after"));
    const QString around = QStringLiteral("before %1 after");
    TabOrderUtils::setReadingOrder(container);
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())), around.arg(leftToRight));
    container->setLayoutDirection(Qt::RightToLeft);
    TabOrderUtils::setReadingOrder(container);
    QCOMPARE(names(TabOrderUtils::stops(m_window.data())), around.arg(rightToLeft));
}

void tst_TabOrder::readingOrderKeepsBlocks()
{
    m_window.reset(new QWidget);
    const auto add = [](QWidget *widget, const char *name, const QRect &rect) {
        widget->setObjectName(QLatin1String(name));
        widget->setGeometry(rect);
        return widget;
    };
    QWidget *window = m_window.data();
    // Two groups side by side, and below them what reaches under both.
    add(new QSpinBox(window), "spin", {0, 120, 90, 20});
    QWidget *right = add(new QGroupBox(window), "right", {100, 0, 90, 100});
    add(new QCheckBox(right), "r2", {5, 60, 80, 20});
    add(new QCheckBox(right), "r1", {5, 20, 80, 20});
    QWidget *left = add(new QGroupBox(window), "left", {0, 0, 90, 100});
    static_cast<QGroupBox *>(left)->setCheckable(true);
    auto *area = new QScrollArea(left);
    add(area, "area", {5, 50, 80, 40});
    QWidget *content = add(new QWidget, "content", {0, 0, 70, 300});
    add(new QCheckBox(content), "l3", {0, 200, 60, 20});
    add(new QCheckBox(content), "l2", {0, 0, 60, 20});
    area->setWidget(content);
    add(new QCheckBox(left), "l1", {5, 20, 80, 20});
    TabOrderUtils::setReadingOrder(window);
    QCOMPARE(names(TabOrderUtils::stops(window)), QStringLiteral("left l1 area l2 l3 r1 r2 spin"));

    window->setObjectName(QStringLiteral("window"));
    window->setFocusPolicy(Qt::StrongFocus);
    window->setLayoutDirection(Qt::RightToLeft);
    TabOrderUtils::setReadingOrder(window);
    QCOMPARE(names(TabOrderUtils::stops(window)), QStringLiteral("window r1 r2 left l1 area l2 l3 spin"));
}

void tst_TabOrder::refusals()
{
    m_window.reset(build(QStringLiteral("edit")));
    QObject stranger;
    WarningLog log;
    TabOrderUtils::setReadingOrder(nullptr);
    QVERIFY(TabOrderUtils::stops(nullptr).isEmpty());
    QVERIFY(!TabOrderUtils::nextStop(nullptr, nullptr, true));
    QVERIFY(!TabOrderUtils::focusNext(nullptr));
    QVERIFY(!TabOrderUtils::focusPrevious(nullptr));
    QVERIFY(!TabOrderUtils::focusNextPrevChild(nullptr, true));
    TabOrderUtils::letTabThrough(nullptr);
    QStringList expected;
    for (const char *name :
         {"setReadingOrder", "stops", "nextStop", "focusNext", "focusPrevious", "focusNextPrevChild", "letTabThrough"})
        expected << QStringLiteral("TabOrderUtils::%1 - The argument must not be null").arg(QLatin1String(name));
    QCOMPARE(log.take(), expected);
    QVERIFY(!TabOrderUtils::nextStop(m_window.data(), &stranger, true));
    QCOMPARE(log.take(), QStringList(QStringLiteral("TabOrderUtils::nextStop - The object is not in the window")));
}

W_TEST_MAIN(tst_TabOrder)
#include "tst_tab_order.moc"
