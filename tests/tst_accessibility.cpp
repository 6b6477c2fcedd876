#include <UiElements/controls/WLabel.h>
#include <UiElements/controls/WPushButton.h>

#include "GalleryThemes.h"
#include "GalleryWindow.h"
#include "support/Accessibility.h"
#include "support/WApplicationMain.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <memory>

using Press = std::function<void(QWidget *)>;
Q_DECLARE_METATYPE(Press)

/// The pages of the gallery as people without a mouse or without eyes meet them.
class tst_Accessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void tabReachesAll_data();
    void tabReachesAll();
    void allAnswer_data();
    void allAnswer();
    void tree_data();
    void tree();
    void checksAreAnnounced_data();
    void checksAreAnnounced();
    void newsAreAnnounced_data();
    void newsAreAnnounced();
    void textsAreAnnounced();

private:
    void open(const QString &page);

    GalleryThemes m_themes;
    std::unique_ptr<GalleryWindow> m_window;
};

namespace {

using Widgets = QVector<QWidget *>;

constexpr auto Pages = {"buttons", "labels", "movies", "client"};

// A picture of a state, which neither mouse nor keyboard can change.
bool isPicture(const QWidget *widget)
{
    return widget->property("specimenState").toInt() > 0;
}

bool isElement(const QWidget *widget)
{
    const auto *label = qobject_cast<const WLabel *>(widget);
    return label ? label->isClickable() : qobject_cast<const WPushButton *>(widget) != nullptr;
}

Widgets operableOn(const QWidget *window)
{
    Widgets found;
    const auto all = window->findChildren<QWidget *>();
    std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                 [](QWidget *w) { return isElement(w) && w->isVisible() && w->isEnabled() && !isPicture(w); });
    return found;
}

QByteArray describe(const QWidget *widget)
{
    if (!widget)
        return "nothing";
    const QString text =
        widget->accessibleName().isEmpty() ? widget->property("text").toString() : widget->accessibleName();
    return QByteArray(widget->metaObject()->className()) + " \"" + text.toUtf8() + '"';
}

QByteArray describe(const Widgets &widgets)
{
    QByteArray text;
    for (const QWidget *widget : widgets)
        text += describe(widget) + ' ';
    return text;
}

Widgets without(const Widgets &all, const Widgets &some)
{
    Widgets rest;
    std::copy_if(all.begin(), all.end(), std::back_inserter(rest), [&some](QWidget *w) { return !some.contains(w); });
    return rest;
}

Widgets groupOf(QWidget *widget)
{
    const auto *button = qobject_cast<QAbstractButton *>(widget);
    Widgets members;
    if (button && button->group() && button->group()->exclusive()) {
        const auto buttons = button->group()->buttons();
        for (QAbstractButton *member : buttons)
            members << member;
    }
    return members;
}

/// What is announced while it lives, of states only the check, with what a screen reader is told that asks at once.
class Announcements
{
public:
    struct One
    {
        QAccessible::Event type;
        QObject *object;
        bool isChecked;
        QString name;
        QString description;
    };

    Announcements()
    {
        current() = this;
        m_areOn = setAccessibilityActive(true);
        m_previous = QAccessible::installUpdateHandler(&Announcements::handle);
    }
    ~Announcements()
    {
        QAccessible::installUpdateHandler(m_previous);
        setAccessibilityActive(false);
        current() = nullptr;
    }
    Announcements(const Announcements &) = delete;
    Announcements &operator=(const Announcements &) = delete;

    bool areOn() const { return m_areOn; }
    void clear() { m_all.clear(); }
    QVector<One> of(const QObject *object, QAccessible::Event type) const
    {
        QVector<One> found;
        std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(found),
                     [object, type](const One &one) { return one.object == object && one.type == type; });
        return found;
    }

private:
    static Announcements *&current()
    {
        static Announcements *announcements = nullptr;
        return announcements;
    }

    static void handle(QAccessibleEvent *event)
    {
        QAccessibleInterface *node = event->accessibleInterface();
        if (!node || !event->object())
            return;
        if (event->type() == QAccessible::StateChanged
            && !static_cast<QAccessibleStateChangeEvent *>(event)->changedStates().checked)
            return;
        current()->m_all << One {event->type(), event->object(), bool(node->state().checked),
                                 node->text(QAccessible::Name), node->text(QAccessible::Description)};
    }

    QVector<One> m_all;
    QAccessible::UpdateHandler m_previous = nullptr;
    bool m_areOn = false;
};

/// Closes the popups that open while it lives, also those that wait for it.
class Popups
{
public:
    Popups()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { closeAll(); });
        m_timer.start(1);
    }
    ~Popups() { closeAll(); }
    Popups(const Popups &) = delete;
    Popups &operator=(const Popups &) = delete;

    int count() const { return m_count; }

private:
    void closeAll()
    {
        while (QWidget *popup = QApplication::activePopupWidget()) {
            ++m_count;
            popup->close();
        }
    }

    QTimer m_timer;
    int m_count = 0;
};

/// All nodes for widgets below one, and where parent and child do not know each other.
void collect(QAccessibleInterface *parent, QHash<QObject *, QAccessibleInterface *> *nodes, QByteArray *faults)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        QAccessibleInterface *child = parent->child(i);
        auto *widget = child ? qobject_cast<QWidget *>(child->object()) : nullptr;
        if (!widget)
            continue; // a row of a list, say
        const auto expect = [widget, faults](bool holds, const char *what) {
            if (!holds)
                *faults += describe(widget) + ": " + what + '\n';
        };
        expect(!nodes->contains(widget), "once");
        expect(child->parent() == parent, "parent");
        expect(parent->indexOfChild(child) == i, "index");
        nodes->insert(widget, child);
        collect(child, nodes, faults);
    }
}

void addPages(std::initializer_list<const char *> pages)
{
    QTest::addColumn<QString>("page");
    for (const char *page : pages)
        QTest::newRow(page) << QString::fromLatin1(page);
}

/// Presses the key again and again until the focus is where it began, or it is stuck, or goes round elsewhere.
struct Walk
{
    Walk(QWidget *window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *now = QApplication::focusWidget();
        do {
            stops << now;
            if (!now || now->visibleRegion().isEmpty())
                unseen << now;
            // From link to link within a text, too.
            for (int i = 0; i < 5 && QApplication::focusWidget() == now; ++i)
                QTest::keyClick(window->windowHandle(), Qt::Key(key), modifiers);
            QCoreApplication::processEvents();
            now = QApplication::focusWidget();
        } while (!stops.contains(now));
        end = now;
    }

    Widgets stops;
    Widgets unseen;
    QWidget *end; // the first stop, unless it is caught
};

} // namespace

void tst_Accessibility::initTestCase()
{
    QVERIFY(m_themes.load(QStringLiteral(UIELEMENTS_CONFIG_DIR)));
    m_themes.apply(m_themes.allThemes().first());
}

void tst_Accessibility::cleanup()
{
    m_window.reset();
    WApplication::find()->setAnimationsDisabled(false);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_Accessibility::open(const QString &page)
{
    m_window = std::make_unique<GalleryWindow>(&m_themes);
    m_window->setTimesShown(false); // nothing happens by itself
    QVERIFY(m_window->showPage(page));
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_VERIFY(QApplication::focusWidget());
}

void tst_Accessibility::tabReachesAll_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const char *page : Pages) {
        QTest::addRow("%s", page) << QString::fromLatin1(page) << Qt::LeftToRight;
        QTest::addRow("%s, right to left", page) << QString::fromLatin1(page) << Qt::RightToLeft;
    }
}

void tst_Accessibility::tabReachesAll()
{
    QFETCH(QString, page);
    QFETCH(Qt::LayoutDirection, direction);
    QApplication::setLayoutDirection(direction);
    open(page);
    const Widgets operable = operableOn(m_window.get());
    QVERIFY(operable.size() > 3);

    const Walk forwards(m_window.get(), Qt::Key_Tab);
    QCOMPARE(describe(forwards.end), describe(forwards.stops.first()));
    QCOMPARE(describe(forwards.unseen), QByteArray());
    const Walk backwards(m_window.get(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(describe(backwards.end), describe(backwards.stops.first()));
    QCOMPARE(describe(backwards.unseen), QByteArray());
    Widgets reversed = backwards.stops.mid(1);
    std::reverse(reversed.begin(), reversed.end());
    QCOMPARE(describe(reversed), describe(forwards.stops.mid(1)));

    // In a group of which one is checked, Tab stops once, and the arrow keys lead to the others.
    Widgets reached = forwards.stops;
    for (QWidget *stop : forwards.stops) {
        const Widgets group = groupOf(stop);
        QVERIFY2(without(group, without(group, forwards.stops)).size() <= 1, describe(group).constData());
        for (const int key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) {
            if (group.isEmpty())
                break;
            stop->setFocus(Qt::TabFocusReason);
            reached << Walk(m_window.get(), key).stops;
        }
    }
    QCOMPARE(describe(without(operable, reached)), QByteArray());
}

void tst_Accessibility::allAnswer_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<Press>("press");
    const auto by = [](Qt::Key key) {
        return Press([key](QWidget *widget) { QTest::keyClick(widget->window()->windowHandle(), key); });
    };
    const Press action([](QWidget *widget) {
        QAccessibleActionInterface *actions = QAccessible::queryAccessibleInterface(widget)->actionInterface();
        actions->doAction(actions->actionNames().value(0));
    });
    for (const char *page : Pages) {
        const QString name = QString::fromLatin1(page);
        QTest::addRow("%s, Space", page) << name << by(Qt::Key_Space);
        QTest::addRow("%s, Return", page) << name << by(Qt::Key_Return);
        QTest::addRow("%s, Enter", page) << name << by(Qt::Key_Enter);
        QTest::addRow("%s, action", page) << name << action;
    }
}

void tst_Accessibility::allAnswer()
{
    QFETCH(QString, page);
    QFETCH(Press, press);
    open(page);
    Widgets operable = operableOn(m_window.get());
    for (int i = 0; i < operable.size(); ++i) {
        // What was pressed before may have taken this one away.
        if (!operableOn(m_window.get()).contains(operable.at(i))) {
            open(page);
            operable = operableOn(m_window.get());
        }
        QWidget *const widget = operable.at(i);
        m_window->activateWindow(); // the popup of the last one was
        widget->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY2(widget->hasFocus(), describe(widget).constData());
        const auto *button = qobject_cast<QPushButton *>(widget);
        Popups popups;
        QSignalSpy clicked(widget, button ? SIGNAL(clicked(bool)) : SIGNAL(clicked()));
        press(widget);
        const bool hasMenu = button && button->menu();
        QTRY_VERIFY2(hasMenu ? popups.count() == 1 : clicked.count() == 1, describe(widget).constData());
    }
}

void tst_Accessibility::tree_data()
{
    addPages(Pages);
}

void tst_Accessibility::tree()
{
    QFETCH(QString, page);
    open(page);
    QByteArray faults;
    QHash<QObject *, QAccessibleInterface *> nodes;
    collect(QAccessible::queryAccessibleInterface(m_window.get()), &nodes, &faults);
    QCOMPARE(faults, QByteArray());

    operableOn(m_window.get()).constFirst()->setFocus(Qt::TabFocusReason);
    int count = 0;
    const auto all = m_window->findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (!isElement(widget) || !widget->isVisible())
            continue;
        const auto *button = qobject_cast<QPushButton *>(widget);
        ++count;
        const auto expect = [&faults, widget](bool holds, const char *what) {
            if (!holds)
                faults += describe(widget) + ": " + what + '\n';
        };
        QAccessibleInterface *node = nodes.value(widget);
        expect(node, "in the tree");
        if (!node)
            continue;
        const bool isCheckable = button && button->isCheckable();
        const bool hasMenu = button && button->menu();
        const QAccessible::Role role = node->role();
        expect(role == (hasMenu ? QAccessible::ButtonMenu : QAccessible::Button)
                   || (isCheckable && (role == QAccessible::CheckBox || role == QAccessible::RadioButton)),
               "role");
        const QString name = node->text(QAccessible::Name);
        expect(!name.isEmpty() && !name.contains(QLatin1Char('<')), "name");
        expect(node->rect() == QRect(widget->mapToGlobal(QPoint()), widget->size()), "place");

        const QAccessible::State state = node->state();
        expect(state.disabled == !widget->isEnabled(), "disabled");
        expect(state.focusable == !isPicture(widget), "focusable");
        expect(state.focused == widget->hasFocus(), "focused");
        expect(state.checkable == isCheckable, "checkable");
        expect(state.checked == (isCheckable && button->isChecked()), "checked");
        expect(state.hasPopup == hasMenu, "menu");
        expect(!state.invisible, "visible");
        expect(!state.readOnly, "read only");

        QAccessibleActionInterface *actions = node->actionInterface();
        const QStringList names = actions ? actions->actionNames() : QStringList();
        const QString press =
            hasMenu ? QAccessibleActionInterface::showMenuAction() : QAccessibleActionInterface::pressAction();
        expect(names.contains(press) == widget->isEnabled(), "press action");
        expect(names.contains(QAccessibleActionInterface::toggleAction()) == (isCheckable && widget->isEnabled()),
               "toggle action");
    }
    QVERIFY(count > 3);
    QCOMPARE(faults, QByteArray());
}

void tst_Accessibility::checksAreAnnounced_data()
{
    addPages({"buttons", "movies", "client"});
}

void tst_Accessibility::checksAreAnnounced()
{
    QFETCH(QString, page);
    open(page);
    Announcements announcements;
    QVERIFY(announcements.areOn());
    int count = 0;
    const auto buttons = m_window->findChildren<WPushButton *>();
    for (WPushButton *button : buttons) {
        if (!button->isCheckable() || !button->isVisible() || !button->isEnabled())
            continue;
        QHash<const QObject *, bool> before;
        for (const WPushButton *one : buttons)
            before.insert(one, one->isChecked());
        QAccessible::queryAccessibleInterface(button)->actionInterface()->doAction(
            QAccessibleActionInterface::toggleAction());
        for (const WPushButton *one : buttons) {
            const bool hasChanged = before.value(one) != one->isChecked();
            count += hasChanged;
            const QVector<Announcements::One> told = announcements.of(one, QAccessible::StateChanged);
            QVERIFY2(told.isEmpty() != hasChanged, describe(one).constData());
            if (hasChanged)
                QCOMPARE(told.last().isChecked, one->isChecked());
        }
        announcements.clear();
    }
    QVERIFY(count > 0);
}

void tst_Accessibility::newsAreAnnounced_data()
{
    addPages({"buttons", "movies", "client"});
}

void tst_Accessibility::newsAreAnnounced()
{
    QFETCH(QString, page);
    open(page);
    Announcements announcements;
    QVERIFY(announcements.areOn());
    const Widgets operable = operableOn(m_window.get());
    for (QWidget *widget : operable) {
        auto *button = qobject_cast<WPushButton *>(widget);
        QVERIFY(button);
        for (int i = 0; i < 2; ++i) {
            button->setBadgeVisible(!button->badgeVisible());
            const QVector<Announcements::One> told = announcements.of(button, QAccessible::DescriptionChanged);
            QVERIFY2(told.size() == 1, describe(button).constData());
            QCOMPARE(told.first().description.contains(QStringLiteral("New activity")), button->showsNews());
            announcements.clear();
        }
    }
}

void tst_Accessibility::textsAreAnnounced()
{
    open(QStringLiteral("labels"));
    Announcements announcements;
    QVERIFY(announcements.areOn());
    const Widgets operable = operableOn(m_window.get());
    for (QWidget *widget : operable) {
        auto *label = qobject_cast<WLabel *>(widget);
        QVERIFY(label);
        label->setAccessibleName(QString());
        announcements.clear();
        label->setText(QStringLiteral("Other"));
        const QVector<Announcements::One> told = announcements.of(label, QAccessible::NameChanged);
        QVERIFY2(!told.isEmpty(), describe(label).constData());
        QCOMPARE(told.last().name, QStringLiteral("Other"));
    }
}

W_TEST_MAIN(tst_Accessibility)
#include "tst_accessibility.moc"
