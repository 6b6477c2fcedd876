#include "support/Accessibility.h"
#include "support/Colors.h"
#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/controls/WEmojiPushButton.h>
#include <UiElements/controls/WPillTabButton.h>
#include <UiElements/controls/WPushButton.h>
#include <UiElements/controls/WSvgPushButton.h>
#include <UiElements/controls/WToggleButton.h>
#include <UiElements/controls/WUnderlineButton.h>
#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/widgets/WFrame.h>

#include <QAccessible>
#include <QLineEdit>
#include <QPainter>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QStyleOptionButton>
#include <QTemporaryDir>
#include <QToolTip>

#include <functional>

using MakeButton = std::function<WPushButton *(QWidget *)>;
using Act = std::function<void(WPushButton *)>;
Q_DECLARE_METATYPE(MakeButton)
Q_DECLARE_METATYPE(Act)

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

// A button in a window that takes keys and the mouse.
struct Stage
{
    explicit Stage(WPushButton *b = new WPushButton(QStringLiteral("Text")))
        : button(b)
    {
        first = new QLineEdit(&window);
        first->setGeometry(0, 100, 100, 30);
        button->setParent(&window);
        button->setGeometry(20, 20, 120, 32);
        window.resize(200, 150);
        window.show();
    }
    bool activate()
    {
        window.activateWindow();
        return QTest::qWaitForWindowActive(&window);
    }
    QWidget window;
    QLineEdit *first;
    QPointer<WPushButton> button;
};

// What reaches the parent was not taken by the button.
class EventLog : public QObject
{
public:
    explicit EventLog(QObject *watched) { watched->installEventFilter(this); }
    int count(QEvent::Type type) const { return m_types.count(type); }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_types << event->type();
        return false;
    }

private:
    QList<QEvent::Type> m_types;
};

// Tells what a button would draw.
class ShownButton : public WPushButton
{
public:
    using WPushButton::WPushButton;
    QStyleOptionButton option() const
    {
        QStyleOptionButton option;
        initStyleOption(&option);
        return option;
    }
    int frames = 0;

protected:
    void paintFocus(QStylePainter *painter, const QStyleOptionButton &option) override
    {
        ++frames;
        WPushButton::paintFocus(painter, option);
    }
};

class FrameRecorder : public QProxyStyle
{
public:
    FrameRecorder()
        : QProxyStyle(QStringLiteral("Fusion"))
    {
    }
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        const bool draws = option->state & State_KeyboardFocusChange; // as Fusion does
        if (element == PE_FrameFocusRect && draws) {
            rects << option->rect;
            color = option->palette.color(QPalette::Highlight);
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    mutable QVector<QRect> rects;
    mutable QColor color;
};

QImage picture(QWidget *widget, double ratio = 1)
{
    QImage image(widget->size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QRect colored(const QImage &image, const QColor &color)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

// Accessibility events of one object.
class Announcements
{
public:
    explicit Announcements(QObject *object)
    {
        current() = this;
        m_object = object;
        m_previous = QAccessible::installUpdateHandler(&Announcements::handle);
    }
    ~Announcements()
    {
        QAccessible::installUpdateHandler(m_previous);
        current() = nullptr;
    }
    Announcements(const Announcements &) = delete;
    Announcements &operator=(const Announcements &) = delete;
    int take(QAccessible::Event type)
    {
        const int count = m_types.count(type);
        m_types.removeAll(type);
        return count;
    }

private:
    static Announcements *&current()
    {
        static Announcements *announcements = nullptr;
        return announcements;
    }
    static void handle(QAccessibleEvent *event)
    {
        if (event->object() == current()->m_object)
            current()->m_types << event->type();
    }
    QObject *m_object;
    QList<QAccessible::Event> m_types;
    QAccessible::UpdateHandler m_previous;
};

template <typename Button>
MakeButton makeOf()
{
    return [](QWidget *parent) {
        return new Button(QStringLiteral("&Text"), parent);
    };
}

QString names(const QMetaObject &meta, bool signalsWanted)
{
    QStringList list;
    if (signalsWanted) {
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal)
                list << QString::fromLatin1(meta.method(i).name());
        }
    } else {
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
            list << QString::fromLatin1(meta.property(i).name());
    }
    return list.join(QLatin1Char(' '));
}

const QColor badge(200, 0, 0);
const QColor red(255, 0, 0);

} // namespace

class tst_Buttons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void contract();
    void longPress_data();
    void longPress();
    void rightClick();
    void keys_data();
    void keys();
    void returnIsReleasedElsewhere();
    void arrowKeys();
    void focusAndHover();
    void toolTipOnKeyboardFocus_data();
    void toolTipOnKeyboardFocus();
    void elision_data();
    void elision();
    void elidedTextAsToolTip();
    void badgeCorner_data();
    void badgeCorner();
    void badgeFollowsTheTheme();
    void badgeCoversNoText_data();
    void badgeCoversNoText();
    void focusFrame_data();
    void focusFrame();
    void translucentBoxIsDrawnOnce();
    void accessible_data();
    void accessible();
    void accessibleNames_data();
    void accessibleNames();
    void changesAreAnnounced();
    void unnamedIconIsReported();
    void destroyedByOwnSignal_data();
    void destroyedByOwnSignal();
    void toggleToolTips();
    void emojiKeys();
    void underlineStates();
    void underlinePlaces_data();
    void underlinePlaces();
    void underlineRoom();
    void underlineFocus();
    void hugeTexts_data();
    void hugeTexts();
    void refusedValues();
};

void tst_Buttons::init()
{
    WColorSets sets = spelledSets({"spare", "qx-underlineButton-text", "qx-underlineButton-background",
                                   "qx-unreadCountCircle-background", "line", "focus", "outline-focus"});
    sets["badge-background"] = plainSet("badge-background", badge);
    sets["badge-background"].setColor(WColorSet::Disabled, Qt::gray);
    sets["red"] = plainSet("red", red);
    sets["half"] = plainSet("half", QColor(0, 0, 255, 128));
    WThemeUtils::setAppWColorSets(sets);
    sets["badge-background"] = plainSet("badge-background", Qt::green);
    WThemeUtils::setAppInvertedWColorSets(sets);
}

void tst_Buttons::contract()
{
    QCOMPARE(names(WPushButton::staticMetaObject, true),
             str("cssChanged themeTypeChanged onFocusIn onFocusOut longPressed mouseEntered mouseExited rightClick"));
    QCOMPARE(names(WPushButton::staticMetaObject, false),
             str("styleSheet themeType elideMode elidePadding elementUniqueId accessibleRole font fontToken fontType "
                 "focusRectColorSet longPressEnabled badgeVisible"));
    QCOMPARE(names(WUnderlineButton::staticMetaObject, false),
             str("borderWidth bottomPadding showUnreadIndicator leftIcon anchorIcon"));
    QVERIFY(WUnderlineButton::staticMetaObject.indexOfMethod("onThemeChanged()")
            >= WUnderlineButton::staticMetaObject.methodOffset());
}

void tst_Buttons::longPress_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("longPresses");
    QTest::addColumn<int>("clicks");
    const QPoint inside(10, 10);
    const auto held = [](WPushButton *b) {
        QSignalSpy spy(b, &WPushButton::longPressed);
        QTest::mousePress(b, Qt::LeftButton, {}, QPoint(10, 10));
        spy.wait(700);
    };
    const auto moved = [](WPushButton *b, const QPoint &to) {
        QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(b, &move);
    };
    const auto released = [inside](WPushButton *b) {
        QTest::mouseRelease(b, Qt::LeftButton, {}, inside);
    };
    QTest::newRow("held") << Act([=](WPushButton *b) {
        held(b);
        QVERIFY(!b->isDown());
        released(b);
    }) << 1 << 0;
    QTest::newRow("held, then moved over the button") << Act([=](WPushButton *b) {
        held(b);
        moved(b, QPoint(12, 10));
        moved(b, QPoint(500, 10));
        moved(b, QPoint(10, 10));
        QVERIFY(!b->isDown());
        released(b);
    }) << 1 << 0;
    QTest::newRow("held, then clicked") << Act([=](WPushButton *b) {
        held(b);
        released(b);
        QTest::mouseClick(b, Qt::LeftButton, {}, inside);
    }) << 1 << 1;
    QTest::newRow("released early") << Act([=](WPushButton *b) {
        QTest::mousePress(b, Qt::LeftButton, {}, inside);
        QTest::qWait(100);
        released(b);
        // The time of the first press ends within the second.
        QTest::qWait(150);
        QTest::mousePress(b, Qt::LeftButton, {}, inside);
        QTest::qWait(300);
        released(b);
        b->setDown(true); // not by the mouse
        QTest::qWait(400);
        b->setDown(false);
    }) << 0 << 2;
    QTest::newRow("not enabled") << Act([=](WPushButton *b) {
        b->setLongPressEnabled(false);
        held(b);
        released(b);
    }) << 0 << 1;
}

void tst_Buttons::longPress()
{
    QFETCH(Act, act);
    Stage stage;
    stage.button->setLongPressEnabled(true);
    QSignalSpy longPressed(stage.button, &WPushButton::longPressed);
    QSignalSpy clicked(stage.button, &QAbstractButton::clicked);
    act(stage.button);
    QTEST(longPressed.count(), "longPresses");
    QTEST(clicked.count(), "clicks");
}

void tst_Buttons::rightClick()
{
    Stage stage;
    QSignalSpy right(stage.button, &WPushButton::rightClick);
    const EventLog parent(&stage.window);
    QTest::mousePress(stage.button, Qt::RightButton);
    QCOMPARE(right.count(), 1);
    QCOMPARE(parent.count(QEvent::MouseButtonPress), 1); // the base class passes it on
    QTest::mouseRelease(stage.button, Qt::RightButton);
    QTest::mouseClick(stage.button, Qt::LeftButton);
    QCOMPARE(right.count(), 1);
}

void tst_Buttons::keys_data()
{
    QTest::addColumn<Act>("prepare");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("autoRepeat");
    QTest::addColumn<QString>("down"); // pressed, clicked
    QTest::addColumn<QString>("up");
    const Act plain([](WPushButton *) {});
    const Act byDefault([](WPushButton *b) { b->setDefault(true); });
    const Act autoDefault([](WPushButton *b) { b->setAutoDefault(true); });
    const Act checkable([](WPushButton *b) { b->setCheckable(true); });
    QTest::newRow("Return") << plain << int(Qt::Key_Return) << false << "1 0"
                            << "1 1";
    QTest::newRow("Enter") << plain << int(Qt::Key_Enter) << false << "1 0"
                           << "1 1";
    QTest::newRow("Return, checkable") << checkable << int(Qt::Key_Return) << false << "1 0"
                                       << "1 1";
    QTest::newRow("Return, repeated") << plain << int(Qt::Key_Return) << true << "0 0"
                                      << "0 0";
    QTest::newRow("Return, default") << byDefault << int(Qt::Key_Return) << false << "1 1"
                                     << "1 1";
    QTest::newRow("Return, auto-default") << autoDefault << int(Qt::Key_Return) << false << "1 1"
                                          << "1 1";
    QTest::newRow("Space") << plain << int(Qt::Key_Space) << false << "1 0"
                           << "1 1";
    QTest::newRow("letter") << plain << int(Qt::Key_A) << false << "0 0"
                            << "0 0";
}

void tst_Buttons::keys()
{
    QFETCH(Act, prepare);
    QFETCH(int, key);
    QFETCH(bool, autoRepeat);
    Stage stage;
    prepare(stage.button);
    QSignalSpy pressed(stage.button, &QAbstractButton::pressed);
    QSignalSpy clicked(stage.button, &QAbstractButton::clicked);
    const auto counts = [&] {
        return QStringLiteral("%1 %2").arg(pressed.count()).arg(clicked.count());
    };
    QKeyEvent down(QEvent::KeyPress, key, {}, QString(), autoRepeat);
    QCoreApplication::sendEvent(stage.button, &down);
    QTEST(counts(), "down");
    QKeyEvent up(QEvent::KeyRelease, key, {}, QString(), autoRepeat);
    QCoreApplication::sendEvent(stage.button, &up);
    QTEST(counts(), "up");
}

void tst_Buttons::returnIsReleasedElsewhere()
{
    Stage stage;
    QSignalSpy clicked(stage.button, &QAbstractButton::clicked);
    // It was pressed in a dialog, which closed at that.
    QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(stage.button, &back);
    QTest::keyRelease(stage.button, Qt::Key_Return);
    QCOMPARE(clicked.count(), 0);
    QCoreApplication::sendEvent(stage.button, &back);
    QTest::keyClick(stage.button, Qt::Key_Return);
    QCOMPARE(clicked.count(), 1);
}

void tst_Buttons::arrowKeys()
{
    Stage stage;
    auto *other = new WPushButton(QStringLiteral("Other"), &stage.window);
    other->setGeometry(20, 60, 120, 32);
    other->show();
    for (auto *button : {stage.button.data(), other}) {
        button->setCheckable(true);
        button->setAutoExclusive(true); // then Qt moves the focus with the arrow keys
    }
    QVERIFY(stage.activate());
    const EventLog parent(&stage.window);
    stage.button->setArrowKeysSuppressed(true);
    stage.button->setFocus();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down})
        QTest::keyClick(stage.button, key);
    QVERIFY(stage.button->hasFocus());
    QCOMPARE(parent.count(QEvent::KeyPress), 0);
    QTest::keyClick(stage.button, Qt::Key_PageUp);
    QCOMPARE(parent.count(QEvent::KeyPress), 1);
    stage.button->setArrowKeysSuppressed(false);
    QTest::keyClick(stage.button, Qt::Key_Down);
    QVERIFY(other->hasFocus());
}

void tst_Buttons::focusAndHover()
{
    Stage stage;
    QVERIFY(stage.activate());
    stage.first->setFocus();
    QStringList log;
    connect(stage.button, &WPushButton::onFocusIn, this, [&] { log << QStringLiteral("in"); });
    connect(stage.button, &WPushButton::onFocusOut, this, [&] { log << QStringLiteral("out"); });
    connect(stage.button, &WPushButton::mouseEntered, this, [&] { log << QStringLiteral("entered"); });
    connect(stage.button, &WPushButton::mouseExited, this, [&] { log << QStringLiteral("exited"); });
    QTest::keyClick(stage.first, Qt::Key_Tab);
    QTest::keyClick(stage.button, Qt::Key_Tab);
    QTest::mouseMove(stage.window.windowHandle(), QPoint(150, 140));
    QTest::mouseMove(stage.window.windowHandle(), stage.button->geometry().center());
    QTest::mouseMove(stage.window.windowHandle(), QPoint(150, 140));
    QTRY_COMPARE(log.join(QLatin1Char(' ')), str("in out entered exited"));
}

void tst_Buttons::toolTipOnKeyboardFocus_data()
{
    QTest::addColumn<bool>("asked");
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::addColumn<int>("toolTips");
    QTest::newRow("Tab") << true << Qt::TabFocusReason << 1;
    QTest::newRow("Backtab") << true << Qt::BacktabFocusReason << 1;
    QTest::newRow("mouse") << true << Qt::MouseFocusReason << 0;
    QTest::newRow("Tab, not asked for") << false << Qt::TabFocusReason << 0;
}

void tst_Buttons::toolTipOnKeyboardFocus()
{
    QFETCH(bool, asked);
    QFETCH(Qt::FocusReason, reason);
    QFETCH(int, toolTips);
    Stage stage;
    stage.button->setToolTipOnKeyboardFocus(asked);
    stage.button->setToolTip(QStringLiteral("tip"));
    QVERIFY(stage.activate());
    stage.first->setFocus();
    const EventLog log(stage.button);
    QToolTip::hideText();
    stage.button->setFocus(reason);
    QCOMPARE(log.count(QEvent::ToolTip), 0); // it is posted
    QCoreApplication::processEvents();
    QCOMPARE(log.count(QEvent::ToolTip), toolTips);
    QCOMPARE(QToolTip::text(), toolTips ? str("tip") : QString());
    QToolTip::hideText();
}

void tst_Buttons::elision_data()
{
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<int>("padding");
    QTest::newRow("none") << Qt::ElideNone << 0;
    QTest::newRow("right") << Qt::ElideRight << 0;
    QTest::newRow("left") << Qt::ElideLeft << 10;
    QTest::newRow("middle") << Qt::ElideMiddle << 20;
    QTest::newRow("no room") << Qt::ElideRight << 500;
}

void tst_Buttons::elision()
{
    QFETCH(Qt::TextElideMode, mode);
    QFETCH(int, padding);
    const QString text = str("The names of all who are in this room");
    ShownButton button(text);
    button.resize(100, 30);
    button.setElideMode(mode);
    button.setElidePadding(padding);
    const auto expected = [&] {
        const int room = qMax(0, button.width() - padding);
        return mode == Qt::ElideNone ? button.text() : button.fontMetrics().elidedText(button.text(), mode, room);
    };
    QCOMPARE(button.option().text, expected());
    // What was measured once must not outlive what it was measured for.
    button.resize(140, 30);
    QCOMPARE(button.option().text, expected());
    QFont larger = button.font();
    larger.setPixelSize(24);
    button.setFont(larger);
    QCOMPARE(button.option().text, expected());
    button.setText(str("Another text that is rather long"));
    QCOMPARE(button.option().text, expected());
    button.resize(1000, 30);
    QCOMPARE(button.option().text, padding == 500 ? expected() : button.text());
}

void tst_Buttons::elidedTextAsToolTip()
{
    ShownButton button(str("Search && &find <b>all</b> messages"));
    button.resize(60, 30);
    button.show();
    const auto shown = [&button] {
        QToolTip::hideText();
        [] {
            QTRY_VERIFY(!QToolTip::isVisible());
        }();
        QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), button.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&button, &event);
        return QToolTip::text();
    };
    QCOMPARE(shown(), QString());
    button.setElideMode(Qt::ElideRight);
    QCOMPARE(shown(), str("<p>Search &amp; find &lt;b&gt;all&lt;/b&gt; messages</p>"));
    button.setText(str("Search && &find all messages"));
    QCOMPARE(shown(), str("<p>Search &amp; find all messages</p>"));
    button.setText(QString(100000, u'x'));
    QVERIFY(shown().size() < 2000);
    button.setText(str("Search"));
    button.setToolTip(str("own"));
    QCOMPARE(shown(), str("own"));
    button.setToolTip(QString());
    button.resize(600, 30);
    QCOMPARE(shown(), QString());
}

void tst_Buttons::badgeCorner_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("ratio");
    QTest::addColumn<QRect>("place");
    QTest::newRow("left to right") << Qt::LeftToRight << true << 1 << QRect(14, 0, 10, 10);
    QTest::newRow("right to left") << Qt::RightToLeft << true << 1 << QRect(0, 0, 10, 10);
    QTest::newRow("disabled") << Qt::LeftToRight << false << 1 << QRect(14, 0, 10, 10);
    QTest::newRow("ratio 2") << Qt::LeftToRight << true << 2 << QRect(28, 0, 20, 20);
}

void tst_Buttons::badgeCorner()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, enabled);
    QFETCH(int, ratio);
    QFETCH(QRect, place);
    WPushButton button;
    button.setCSS(str("QPushButton { border: none; background: white; }"));
    button.setLayoutDirection(direction);
    button.setEnabled(enabled);
    button.resize(24, 24);
    QVERIFY(colored(picture(&button, ratio), badge).isEmpty());
    button.setBadgeVisible(true);
    const QImage image = picture(&button, ratio);
    QCOMPARE(colored(image, Qt::white) | place, image.rect()); // nothing else is drawn
    // Round: all four sides are reached, and the corners are not.
    QVERIFY(place.adjusted(1, 1, -1, -1).intersected(colored(image, badge)) == place.adjusted(1, 1, -1, -1));
    QVERIFY(image.pixelColor(place.left(), place.center().y()) != QColor(Qt::white));
    QVERIFY(image.pixelColor(place.right(), place.center().y()) != QColor(Qt::white));
    QVERIFY(image.pixelColor(place.center().x(), place.bottom()) != QColor(Qt::white));
    QCOMPARE(image.pixelColor(place.bottomLeft()), QColor(Qt::white));
}

void tst_Buttons::badgeFollowsTheTheme()
{
    WFrame window;
    WPushButton button(&window);
    button.resize(24, 24);
    button.setBadgeVisible(true);
    QVERIFY(!colored(picture(&button), badge).isEmpty());
    window.setThemeType(str("inverted"));
    QVERIFY(!colored(picture(&button), Qt::green).isEmpty());
    window.setThemeType(str("global"));
    WColorSets sets = WThemeUtils::getAppWColorSets();
    sets["badge-background"] = plainSet("badge-background", Qt::blue);
    WThemeUtils::setAppWColorSets(sets);
    QVERIFY(!colored(picture(&button), Qt::blue).isEmpty());
}

void tst_Buttons::badgeCoversNoText_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<QSize>("size");
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        for (const auto mode : {Qt::ElideNone, Qt::ElideRight}) {
            for (const auto &size : {QSize(), QSize(60, 16), QSize(90, 20), QSize(90, 40)})
                QTest::addRow("%d %d %dx%d", direction, mode, size.width(), size.height()) << direction << mode << size;
        }
    }
}

void tst_Buttons::badgeCoversNoText()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(Qt::TextElideMode, mode);
    QFETCH(QSize, size);
    WColorSets sets = WThemeUtils::getAppWColorSets();
    sets["badge-background"] = plainSet("badge-background", QColor(0, 0, 0, 0)); // to see what is under it
    WThemeUtils::setAppWColorSets(sets);
    ShownButton button(str("MÄÄÄÄÄÄÄÄM"));
    button.setLayoutDirection(direction);
    button.setElideMode(mode);
    button.setCSS(str("QPushButton { border: none; background: white; color: black; padding: 0; }"));
    button.setBadgeVisible(true);
    button.resize(size.isEmpty() ? button.sizeHint() : size);
    const bool isWhole = size.isEmpty() || size.height() == 40;
    if (mode == Qt::ElideNone)
        QCOMPARE(button.option().text == button.text(), isWhole);
    const QImage image = picture(&button);
    const QRect corner(direction == Qt::LeftToRight ? image.width() - 10 : 0, 0, 10, 10);
    const QImage under = image.copy(corner);
    QCOMPARE(colored(under, Qt::white), under.rect());
    for (int y = 0; y < under.height(); ++y) {
        for (int x = 0; x < under.width(); ++x)
            QCOMPARE(under.pixelColor(x, y), QColor(Qt::white));
    }
    QVERIFY(!colored(image, Qt::black).isEmpty());
}

void tst_Buttons::focusFrame_data()
{
    QTest::addColumn<QString>("css");
    QTest::newRow("plain") << QString();
    QTest::newRow("with a template") << str("border: none; padding: 4px; color: black;");
}

void tst_Buttons::focusFrame()
{
    QFETCH(QString, css);
    FrameRecorder style;
    auto *button = new ShownButton(str("Text"));
    Stage stage(button);
    button->setStyle(&style);
    button->setCSS(css);
    QVERIFY(stage.activate());
    stage.first->setFocus();
    const auto frames = [&] {
        style.rects.clear();
        picture(stage.button);
        return style.rects;
    };
    QCOMPARE(frames(), QVector<QRect>());
    stage.button->setFocus(Qt::MouseFocusReason);
    QCOMPARE(frames(), QVector<QRect>());
    QCOMPARE(button->frames, 0);
    stage.first->setFocus();
    QTest::keyClick(stage.first, Qt::Key_Tab);
    QVERIFY(stage.button->hasFocus());
    QCOMPARE(frames(), QVector<QRect> {stage.button->rect()}); // one, not also that of the style
    QCOMPARE(style.color, QColor(6, WColorSet::Focused, 0));

    stage.button->setFocusRectColorSet(str("focus"));
    stage.button->setProperty("customFocusRect", QRect(3, 4, 50, 20));
    QCOMPARE(stage.button->property("hasCustomRect"), QVariant(true));
    QCOMPARE(frames(), QVector<QRect> {QRect(3, 4, 50, 20)});
    QCOMPARE(style.color, QColor(5, WColorSet::Focused, 0));
    QCOMPARE(colored(picture(stage.button), style.color), QRect(3, 4, 50, 20));
    stage.button->setProperty("customFocusRect", QRect());
    QVERIFY(!stage.button->property("hasCustomRect").toBool());
    QCOMPARE(frames(), QVector<QRect> {stage.button->rect()});
}

void tst_Buttons::translucentBoxIsDrawnOnce()
{
    WFrame window;
    window.setCSS(str("WFrame { background: white; }"));
    WPushButton button(&window);
    button.setCSS(str("$backgroundColors: half; border: none;"));
    button.setGeometry(0, 0, 30, 30);
    window.resize(30, 30);
    const QColor color = picture(&window).pixelColor(15, 15);
    QVERIFY2(qAbs(color.red() - 127) < 3 && color.blue() > 250, qPrintable(color.name()));
}

void tst_Buttons::accessible_data()
{
    QTest::addColumn<MakeButton>("make");
    QTest::addColumn<Act>("prepare");
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("actions");
    const Act plain([](WPushButton *) {});
    const Act checkable([](WPushButton *b) { b->setCheckable(true); });
    const Act exclusive([](WPushButton *b) {
        b->setCheckable(true);
        b->setAutoExclusive(true);
    });
    const Act disabled([](WPushButton *b) { b->setEnabled(false); });
    const QString press = QAccessibleActionInterface::pressAction();
    const QString toggle = QAccessibleActionInterface::toggleAction();
    QTest::newRow("push") << makeOf<WPushButton>() << plain << int(QAccessible::Button) << press;
    QTest::newRow("push, checkable") << makeOf<WPushButton>() << checkable << int(QAccessible::CheckBox)
                                     << press + toggle;
    QTest::newRow("push, exclusive") << makeOf<WPushButton>() << exclusive << int(QAccessible::RadioButton)
                                     << press + toggle;
    QTest::newRow("push, disabled") << makeOf<WPushButton>() << disabled << int(QAccessible::Button) << QString();
    QTest::newRow("toggle") << makeOf<WToggleButton>() << plain << int(QAccessible::Button) << press + toggle;
    QTest::newRow("emoji") << makeOf<WEmojiPushButton>() << plain << int(QAccessible::Button) << press;
    QTest::newRow("underline") << makeOf<WUnderlineButton>() << plain << int(QAccessible::Button) << press;
    QTest::newRow("underline, checkable")
        << makeOf<WUnderlineButton>() << checkable << int(QAccessible::Button) << press + toggle;
}

void tst_Buttons::accessible()
{
    QFETCH(MakeButton, make);
    QFETCH(Act, prepare);
    QWidget window;
    const std::unique_ptr<WPushButton> button(make(&window));
    button->setElementUniqueId(str("id-7"));
    prepare(button.get());
    window.show();
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(button.get());
    QVERIFY(interface);
    QTEST(int(interface->role()), "role");
    QCOMPARE(interface->text(QAccessible::Name), str("Text"));
    QCOMPARE(interface->text(QAccessible::Accelerator), str("Alt+T"));
    QCOMPARE(interface->text(ThemeSupport::ElementUniqueIdText), str("id-7"));
    QCOMPARE(bool(interface->state().disabled), !button->isEnabled());
    QCOMPARE(bool(interface->state().checkable), button->isCheckable());

    QAccessibleActionInterface *actions = interface->actionInterface();
    QVERIFY(actions);
    QStringList names = actions->actionNames();
    names.removeAll(QAccessibleActionInterface::setFocusAction());
    QTEST(names.join(QString()), "actions");
    QSignalSpy clicked(button.get(), &QAbstractButton::clicked);
    actions->doAction(QAccessibleActionInterface::pressAction());
    if (!button->isEnabled()) {
        QTest::qWait(200);
        QCOMPARE(clicked.count(), 0);
        return;
    }
    QTRY_COMPARE(clicked.count(), 1);
    QCOMPARE(bool(interface->state().checked), button->isCheckable());
    if (button->isCheckable() && !button->autoExclusive()) {
        actions->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(!interface->state().checked);
        QCOMPARE(clicked.count(), 2);
    }
}

void tst_Buttons::accessibleNames_data()
{
    QTest::addColumn<Act>("prepare");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    const auto set = [](const char *text, const char *name, const char *tip, bool badgeVisible) {
        return Act([=](WPushButton *b) {
            b->setText(str(text));
            b->setAccessibleName(str(name));
            b->setToolTip(str(tip));
            b->setBadgeVisible(badgeVisible);
        });
    };
    QTest::newRow("text") << set("R&&D &chat", "", "tip", false) << "R&D chat"
                          << "tip";
    QTest::newRow("own name") << set("text", "name", "", false) << "name"
                              << "";
    QTest::newRow("tooltip") << set("", "", "Call", false) << "Call"
                             << "";
    QTest::newRow("rich tooltip") << set("", "", "<b>Call</b> now", false) << "Call now"
                                  << "";
    QTest::newRow("badge") << set("Chats", "", "", true) << "Chats"
                           << "New activity";
    QTest::newRow("badge and tooltip") << set("Chats", "", "All", true) << "Chats"
                                       << "New activity. All";
}

void tst_Buttons::accessibleNames()
{
    QFETCH(Act, prepare);
    WPushButton button;
    prepare(&button);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&button);
    QTEST(interface->text(QAccessible::Name), "name");
    QTEST(interface->text(QAccessible::Description), "description");
}

void tst_Buttons::changesAreAnnounced()
{
    WUnderlineButton button(str("Text"));
    button.setCheckable(true);
    button.show();
    QVERIFY(setAccessibilityActive(true));
    Announcements announcements(&button);
    button.setBadgeVisible(true);
    QCOMPARE(announcements.take(QAccessible::DescriptionChanged), 1);
    button.setBadgeVisible(true);
    QCOMPARE(announcements.take(QAccessible::DescriptionChanged), 0);
    button.setShowUnreadIndicator(true);
    QCOMPARE(announcements.take(QAccessible::DescriptionChanged), 1);
    button.setChecked(true);
    QVERIFY(announcements.take(QAccessible::StateChanged) > 0);
    button.setChecked(true);
    QCOMPARE(announcements.take(QAccessible::StateChanged), 0);
    button.setText(str("Other"));
    QVERIFY(announcements.take(QAccessible::NameChanged) > 0);
    QVERIFY(setAccessibilityActive(false));
}

void tst_Buttons::unnamedIconIsReported()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::black);
    const auto warnings = [&pixmap](const std::function<void(WPushButton *)> &prepare) {
        WPushButton button {QIcon(pixmap), QString()};
        prepare(&button);
        WarningLog log;
        button.show();
        button.hide();
        button.show();
        return log.take().size();
    };
#ifdef QT_NO_DEBUG
    const int once = 0;
#else
    const int once = 1;
#endif
    QCOMPARE(warnings([](WPushButton *) {}), once);
    QCOMPARE(warnings([](WPushButton *b) { b->setAccessibleName(str("Call")); }), 0);
    QCOMPARE(warnings([](WPushButton *b) { b->setToolTip(str("Call")); }), 0);
    QCOMPARE(warnings([](WPushButton *b) { b->setText(str("Call")); }), 0);
    QCOMPARE(warnings([](WPushButton *b) { b->setIcon(QIcon()); }), 0);
}

void tst_Buttons::destroyedByOwnSignal_data()
{
    QTest::addColumn<MakeButton>("make");
    QTest::addColumn<Act>("arm");
    QTest::addColumn<Act>("act");
    const auto on = [](auto signal) {
        return Act([signal](WPushButton *b) { connect(b, signal, qApp, [b] { delete b; }); });
    };
    const auto keyDown = [](Qt::Key key) {
        return Act([key](WPushButton *b) { QTest::keyPress(b, key); });
    };
    const auto push = makeOf<WPushButton>();
    QTest::newRow("rightClick") << push << on(&WPushButton::rightClick)
                                << Act([](WPushButton *b) { QTest::mousePress(b, Qt::RightButton); });
    QTest::newRow("pressed") << push << on(&QAbstractButton::pressed) << keyDown(Qt::Key_Return);
    QTest::newRow("clicked") << push << on(&QAbstractButton::clicked)
                             << Act([](WPushButton *b) { QTest::keyRelease(b, Qt::Key_Return); });
    QTest::newRow("longPressed") << push << on(&WPushButton::longPressed)
                                 << Act([](WPushButton *b) { QTest::mousePress(b, Qt::LeftButton); });
    QTest::newRow("cssChanged") << push << on(&WPushButton::cssChanged)
                                << Act([](WPushButton *b) { b->onThemeChanged(); });
    QTest::newRow("emoji, clicked by a key")
        << makeOf<WEmojiPushButton>() << on(&QAbstractButton::clicked) << keyDown(Qt::Key_Space);
    QTest::newRow("emoji, clicked") << makeOf<WEmojiPushButton>() << on(&QAbstractButton::clicked)
                                    << Act([](WPushButton *b) { QTest::mouseClick(b, Qt::LeftButton); });
}

void tst_Buttons::destroyedByOwnSignal()
{
    QFETCH(MakeButton, make);
    QFETCH(Act, arm);
    QFETCH(Act, act);
    Stage stage(make(nullptr));
    stage.button->setCSS(str("QPushButton { color: red; }"));
    stage.button->setLongPressEnabled(true);
    arm(stage.button);
    act(stage.button);
    QTRY_VERIFY(!stage.button);
    QCoreApplication::processEvents();
}

void tst_Buttons::toggleToolTips()
{
    WToggleButton button;
    QCOMPARE(button.getCSS(), str("QPushButton{ border: none; }"));
    QVERIFY(button.isCheckable() && button.isFlat());
    button.setToolTip(str("plain"));
    button.setChecked(true);
    QCOMPARE(button.toolTip(), str("plain"));
    button.setToolTip(str("Mute"), str("Unmute"));
    QCOMPARE(button.toolTip(), str("Unmute"));
    button.setChecked(false);
    QCOMPARE(button.toolTip(), str("Mute"));
    button.click();
    QCOMPARE(button.toolTip(), str("Unmute"));
    const QSignalBlocker blocked(&button);
    button.setChecked(false);
    QCOMPARE(button.toolTip(), str("Mute"));
}

void tst_Buttons::emojiKeys()
{
    Stage stage(new WEmojiPushButton);
    const EventLog parent(&stage.window);
    QSignalSpy clicked(stage.button, &QAbstractButton::clicked);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape, Qt::Key_Right}) {
        QTest::keyPress(stage.button, Qt::Key(key));
        QKeyEvent repeated(QEvent::KeyPress, key, {}, QString(), true);
        QCoreApplication::sendEvent(stage.button, &repeated);
        QTest::keyRelease(stage.button, Qt::Key(key));
    }
    QCOMPARE(clicked.count(), 3);
    QCOMPARE(parent.count(QEvent::KeyPress), 4); // the picker moves with the other keys
    QTest::mouseClick(stage.button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 4);
}

void tst_Buttons::underlineStates()
{
    WUnderlineButton button;
    button.setUnderlineColorSet(str("line"));
    button.setTextColorSet(str("red"));
    button.resize(100, 36);
    const auto background = [&button] {
        return picture(&button).pixelColor(50, 10);
    };
    const auto underline = [&button] {
        return picture(&button).pixelColor(50, 32);
    };
    QCOMPARE(background(), QColor(Qt::white));
    QCOMPARE(underline(), QColor(Qt::white));
    button.setCheckable(true);
    button.setChecked(true);
    QCOMPARE(background(), QColor(2, WColorSet::Checked, 0));
    QCOMPARE(underline(), QColor(4, WColorSet::Checked, 0));
    QCOMPARE(picture(&button).pixelColor(50, 34), QColor(2, WColorSet::Checked, 0)); // bottomPadding below
    button.setDown(true);
    QCOMPARE(background(), QColor(2, WColorSet::Pressed, 0));
    QCOMPARE(underline(), QColor(4, WColorSet::Checked, 0));
    button.setDown(false);
    button.setEnabled(false);
    QCOMPARE(background(), QColor(2, WColorSet::Disabled, 0));
    QCOMPARE(underline(), QColor(4, WColorSet::Disabled, 0));
    QCOMPARE(picture(&button).pixelColor(0, 0), QColor(Qt::white)); // the corner is rounded
    button.setEnabled(true);
    button.setBorderWidth(0);
    QCOMPARE(underline(), QColor(2, WColorSet::Checked, 0));
}

void tst_Buttons::underlinePlaces_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("ratio");
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        for (int ratio = 1; ratio <= 2; ++ratio)
            QTest::addRow("%s, ratio %d", direction == Qt::LeftToRight ? "ltr" : "rtl", ratio) << direction << ratio;
    }
}

void tst_Buttons::underlinePlaces()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, ratio);
    QTemporaryDir dir;
    QImage left(17, 17, QImage::Format_RGB32);
    left.fill(Qt::blue);
    QVERIFY(left.save(dir.filePath(str("left.png"))));
    QFile anchor(dir.filePath(str("anchor.svg")));
    QVERIFY(anchor.open(QIODevice::WriteOnly));
    anchor.write("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'><rect width='16' height='16'/></svg>");
    anchor.close();

    WUnderlineButton button;
    button.setLayoutDirection(direction);
    button.setTextColorSet(str("red"));
    button.setUnderlineColorSet(str("line"));
    button.setLeftIcon(dir.filePath(str("left.png")));
    button.setAnchorIcon(anchor.fileName());
    button.setShowUnreadIndicator(true);
    button.setCheckable(true);
    button.setChecked(true);
    button.setBorderWidth(3);
    button.setBottomPadding(1);
    button.resize(160, 41);
    const QImage image = picture(&button, ratio);
    const auto inPixels = [&](const QRect &r) {
        const QRect placed = QStyle::visualRect(direction, button.rect(), r);
        return QRect(placed.topLeft() * ratio, placed.size() * ratio);
    };
    QCOMPARE(colored(image, Qt::blue), inPixels(QRect(16, 12, 17, 17)));
    QCOMPARE(colored(image, red), inPixels(QRect(160 - 12 - 16, 12, 16, 16)));
    QCOMPARE(colored(image, QColor(4, WColorSet::Checked, 0)), inPixels(QRect(14, 37, 132, 3)));
    const QRect dot = inPixels(QRect(0, 12, 10, 10));
    const QRect drawn = colored(image, QColor(3, WColorSet::Normal, 0));
    QVERIFY(dot.contains(drawn) && drawn.contains(dot.adjusted(1, 1, -1, -1)));
}

void tst_Buttons::underlineRoom()
{
    WUnderlineButton named(str("Tom && Jerry"));
    named.resize(named.sizeHint());
    QHelpEvent help(QEvent::ToolTip, QPoint(), QPoint());
    QToolTip::hideText();
    QCoreApplication::sendEvent(&named, &help);
    QCOMPARE(QToolTip::text(), QString()); // there is none for a whole text

    WUnderlineButton button(str("Messages"));
    QFont large = button.font();
    large.setPixelSize(30);
    button.setFont(large);
    button.setTextColorSet(str("red"));
    const auto textIn = [&button] {
        return colored(picture(&button), red);
    };
    button.setCheckable(true);
    button.setChecked(true);
    button.setUnderlineColorSet(str("line"));
    button.resize(button.sizeHint());
    const QRect text = textIn();
    const QString messages = button.text();
    button.setText(QString());
    const QRect line = colored(picture(&button), QColor(4, WColorSet::Checked, 0));
    button.setText(messages);
    QVERIFY(!line.isEmpty() && text.bottom() < line.top() - 1);
    QVERIFY(qAbs(text.center().x() - button.rect().center().x()) <= 1);

    const int width = button.sizeHint().width();
    button.setShowUnreadIndicator(true);
    button.setUnreadIndicatorSize(QSize(20, 20));
    QVERIFY(button.sizeHint().width() > width);
    button.setText(str("All the messages of all the rooms"));
    button.setFont(QFont());
    button.resize(100, 40);
    const QRect elided = textIn();
    QVERIFY(elided.left() > 20 && elided.right() < 100 - 11);
    QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), button.mapToGlobal(QPoint(5, 5)));
    button.show();
    QCoreApplication::sendEvent(&button, &event);
    QVERIFY(QToolTip::text().contains(button.text()));
    QToolTip::hideText();
}

void tst_Buttons::underlineFocus()
{
    auto *button = new WUnderlineButton(QString());
    Stage stage(button);
    QVERIFY(stage.activate());
    stage.first->setFocus();
    QTest::keyClick(stage.first, Qt::Key_Tab);
    QVERIFY(button->hasFocus());
    const auto isFramed = [button](const QColor &color) {
        return colored(picture(button), color).contains(button->rect().adjusted(1, 1, -1, -1));
    };
    QVERIFY(isFramed(QColor(6, WColorSet::Focused, 0)));
    button->setFocusRectColorSet(str("focus"));
    QVERIFY(isFramed(QColor(5, WColorSet::Focused, 0)));
    // In a theme without a color for it the focus shows, too.
    button->setFocusRectColorSet(QString());
    WColorSets sets = WThemeUtils::getAppWColorSets();
    sets.erase("outline-focus");
    WThemeUtils::setAppWColorSets(sets);
    QVERIFY(isFramed(button->palette().color(QPalette::Highlight)));
}

void tst_Buttons::hugeTexts_data()
{
    QTest::addColumn<MakeButton>("make");
    QTest::newRow("push") << makeOf<WPushButton>();
    QTest::newRow("underline") << makeOf<WUnderlineButton>();
    QTest::newRow("svg") << makeOf<WSvgPushButton>();
    QTest::newRow("svg, rich") << MakeButton([](QWidget *parent) {
        auto *button = new WSvgPushButton(parent);
        button->setTextFormat(Qt::RichText);
        return button;
    });
    QTest::newRow("pill") << makeOf<WPillTabButton>();
}

void tst_Buttons::hugeTexts()
{
    QFETCH(MakeButton, make);
    const std::unique_ptr<WPushButton> button(make(nullptr));
    const QString text(10000000, u'x');
    QElapsedTimer timer;
    timer.start();
    button->setText(text);
    for (const auto mode : {Qt::ElideRight, Qt::ElideNone}) {
        button->setElideMode(mode);
        button->setBadgeVisible(mode == Qt::ElideNone);
        button->sizeHint();
        button->resize(100, 30);
        picture(button.get());
    }
    QAccessible::queryAccessibleInterface(button.get())->text(QAccessible::Name);
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(button->text() == text);
}

void tst_Buttons::refusedValues()
{
    WUnderlineButton button;
    WarningLog log;
    button.setElideMode(Qt::TextElideMode(9));
    button.setElidePadding(INT_MAX);
    button.setBorderWidth(INT_MAX);
    button.setUnreadIndicatorSize(QSize(5, INT_MAX));
    QCOMPARE(log.take().size(), 4);
    QCOMPARE(button.elideMode(), Qt::ElideRight);
    button.setElidePadding(-1);
    button.setBorderWidth(-1);
    button.setBottomPadding(-2);
    button.setUnreadIndicatorSize(QSize(0, 5));
    button.setLeftIcon(str("/none.png"));
    button.setAnchorIcon(str("/none.svg"));
    QCOMPARE(log.take().size(), 6);
    QCOMPARE(button.elidePadding(), 0);
    QCOMPARE(button.borderWidth(), 2);
    QCOMPARE(button.bottomPadding(), 2);
    QCOMPARE(button.unreadIndicatorSize(), QSize(10, 10));
    QCOMPARE(button.leftIcon() + button.anchorIcon(), QString());
    button.setTextColorSet(str("no-such-set"));
    picture(&button);
    QCOMPARE(log.take().size(), 1);
    picture(&button);
    QCOMPARE(log.take(), QStringList());
}

W_TEST_MAIN(tst_Buttons)
#include "tst_buttons.moc"
