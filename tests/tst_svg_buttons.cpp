#include "support/Colors.h"
#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/controls/WPillTabButton.h>
#include <UiElements/controls/WSvgAnchorButton.h>
#include <UiElements/icons/WSvgIcon.h>
#include <UiElements/widgets/WFrame.h>

#include <QHBoxLayout>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QToolTip>

#include <cmath>
#include <functional>
#include <vector>

using Change = std::function<void(WSvgAnchorButton *)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(const QMetaObject *)

class tst_SvgButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void contract_data();
    void contract();
    void hints_data();
    void hints();
    void places_data();
    void places();
    void lineOfText_data();
    void lineOfText();
    void linesOfText();
    void elidedText_data();
    void elidedText();
    void badgeDoesNotCoverText();
    void colorsOfStates_data();
    void colorsOfStates();
    void colorsFollow();
    void whichIcon();
    void innerIcon();
    void styleDrawsQIcon();
    void richText();
    void richTextReadsNoFiles();
    void badInput_data();
    void badInput();
    void anchorPlaces_data();
    void anchorPlaces();
    void anchorAtText();
    void anchorStates();
    void pillRadius_data();
    void pillRadius();
    void pillShape_data();
    void pillShape();
    void pillGroups();
    void pillWidth();
    void pillTemplate();
    void keptPictures();
    void deletedByItsSlots();
    void accessible();

private:
    QString file(const char *name) const { return m_dir.filePath(QString::fromLatin1(name)); }
    QTemporaryDir m_dir;
};

namespace {

const QColor Background(250, 250, 250);
const QString Look = QStringLiteral("$backgroundColors: background; $textColors: text; $borders: none;");

WColorSet states(const char *name, int number)
{
    WColorSet set(QString::fromLatin1(name));
    for (int state = 0; state < WColorSet::StateCount; ++state)
        set.setColor(WColorSet::State(state), QColor(number, 40 * state, 0));
    return set;
}

WColorSets sets(int blue = 0)
{
    WColorSets all;
    const auto add = [&all](const WColorSet &set) {
        all.emplace(set.text().toStdString(), set);
    };
    add(plainSet("background", Background));
    add(plainSet("text", QColor(0, 0, blue)));
    add(plainSet("icon", QColor(255, 0, blue)));
    add(plainSet("anchor", QColor(0, 255, blue)));
    add(states("states", 100));
    add(states("other", 200));
    add(plainSet("badge-background", QColor(255, 255, 0)));
    add(plainSet("qx-contentTabViewButton-background", QColor(1, 1, 200)));
    add(plainSet("qx-contentTabViewButton-text", QColor(255, 255, 255)));
    add(plainSet("qx-contentTabViewButtonChecked-background", QColor(1, 200, 1)));
    add(plainSet("qx-contentTabViewButtonChecked-text", QColor(255, 255, 200)));
    WColorSet border = plainSet("qx-defaultBorderForButton", Qt::transparent);
    border.setColor(WColorSet::Focused, QColor(200, 0, 0));
    add(border);
    return all;
}

QImage shot(QWidget *widget, int ratio = 1)
{
    QImage image(widget->size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Background);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/// The pixels for which the function says so, in device pixels.
template <typename Function>
QRect extent(const QImage &image, Function wanted)
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (wanted(image.pixelColor(x, y)))
                rect |= QRect(x, y, 1, 1);
        }
    }
    return rect;
}

QRect ofColor(const QImage &image, const QColor &color)
{
    return extent(image, [&](const QColor &c) { return c == color; });
}

/// What is drawn in some gray: text in black on the white background.
QRect textOf(const QImage &image)
{
    return extent(image, [](const QColor &c) {
        return c != Background && std::abs(c.red() - c.green()) < 60 && std::abs(c.green() - c.blue()) < 60;
    });
}

QRect times(const QRect &rect, int ratio)
{
    return QRect(rect.topLeft() * ratio, rect.size() * ratio);
}

QRect mirrored(const QRect &rect, int width)
{
    return QRect(width - rect.right() - 1, rect.top(), rect.width(), rect.height());
}

template <typename Button>
void setLook(Button *button, const QSize &size)
{
    button->setCSS(Look);
    button->setSvgIconColorSet(QStringLiteral("icon"));
    button->resize(size);
}

QString toolTipOf(QWidget *widget)
{
    QToolTip::hideText();
    const QPoint at = widget->rect().center();
    QHelpEvent event(QEvent::ToolTip, at, widget->mapToGlobal(at));
    QCoreApplication::sendEvent(widget, &event);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

} // namespace

void tst_SvgButtons::initTestCase()
{
    const auto write = [this](const char *name, const QByteArray &body) {
        QFile f(file(name));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'>" + body + "</svg>");
    };
    write("full.svg", "<path d='M0 0h16v16H0z'/>");
    write("other.svg", "<path d='M0 0h16v16H0z'/>");
    write("half.svg", "<path d='M0 0h16v8H0z'/>");
    write("broken.svg", "<path");
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(QColor(0, 0, 255));
    QVERIFY(image.save(file("blue.png")));
}

void tst_SvgButtons::init()
{
    auto *app = WApplication::find();
    app->setInvertedColorSets(sets(9));
    app->setColorSets(sets());
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_SvgButtons::contract_data()
{
    QTest::addColumn<const QMetaObject *>("meta");
    QTest::addColumn<QString>("properties");
    QTest::addColumn<QString>("methods");
    QTest::newRow("svg") << &WSvgPushButton::staticMetaObject
                         << "icon iconSize svgIcon svgIconChecked textFormat svgIconColorSet svgIconSize "
                            "svgIconAlignment textHorAlign textLeftPadding textRightPadding svgIconTopLeftPadding "
                            "svgIconBottomRightPadding innerSvgIcon innerSvgIconColorSet innerSvgIconSize"
                         << "svgIconChanged(QString) svgIconCheckedChanged(QString) svgIconColorSetChanged(WColorSet) "
                            "svgIconSizeChanged(QSize) onSvgIconColorSetChanged() onSvgIconSizeChanged() "
                            "onCSSChanged() onThemeChanged()";
    QTest::newRow("anchor") << &WSvgAnchorButton::staticMetaObject
                            << "anchorSvgOn anchorSvgOff anchorIconSize anchorSvgColorSet anchorPadding "
                               "anchorSvgOffset isLeftAnchor alignAnchorIconToText"
                            << "anchorSvgOnChanged(QString) anchorSvgOffChanged(QString) onThemeChanged()";
    QTest::newRow("pill") << &WPillTabButton::staticMetaObject
                          << "backgroundColorSet textColorSet iconColorSet backgroundColorSetChecked "
                             "textColorSetChecked iconColorSetChecked"
                          << "onApplyCSS(bool) onSvgIconChanged(QString)";
}

void tst_SvgButtons::contract()
{
    QFETCH(const QMetaObject *, meta);
    QStringList properties, methods;
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        properties << QString::fromLatin1(meta->property(i).name());
        QVERIFY(meta->property(i).isWritable());
    }
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
        methods << QString::fromLatin1(meta->method(i).methodSignature());
    QTEST(properties.join(QLatin1Char(' ')), "properties");
    QTEST(methods.join(QLatin1Char(' ')), "methods");
}

void tst_SvgButtons::hints_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QSize>("added"); // to that of a button with the same text
    const auto row = [](const char *name, const QSize &added, const Change &change) {
        QTest::newRow(name) << change << added;
    };
    row("text", {8, 0}, [](auto *) {});
    row("paddings of the text", {30, 0}, [](auto *b) {
        b->setTextLeftPadding(10);
        b->setTextRightPadding(20);
    });
    row("paddings without a text", {0, 0}, [](auto *b) { b->setText(QString()); });
    row("icon", {24, 16}, [this](auto *b) { b->setSvgIcon(file("full.svg")); });
    row("icon and its paddings", {8 + 20 + 1 + 3, 10 + 2 + 4}, [this](auto *b) {
        b->setSvgIconSize(QSize(20, 10));
        b->setSvgIcon(file("full.svg"));
        b->setSvgIconTopLeftPadding(QPoint(1, 2));
        b->setSvgIconBottomRightPadding(QPoint(3, 4));
    });
    row("hidden icon", {8, 0}, [this](auto *b) {
        b->setSvgIconVisible(false);
        b->setSvgIcon(file("full.svg"));
        b->setSvgIconTopLeftPadding(QPoint(1, 2));
    });
    row("only a checked icon", {8, 0}, [this](auto *b) { b->setSvgIconChecked(file("full.svg")); });
    row("icon taken away", {8, 0}, [this](auto *b) {
        b->setSvgIcon(file("full.svg"));
        b->sizeHint();
        b->setSvgIcon(QString());
    });
    row("anchor", {8 + 20 + 5, 12 + 3}, [this](auto *b) {
        b->setAnchorIconSize(QSize(20, 12));
        b->setAnchorPadding(5);
        b->setAnchorSvgOffset(3);
        b->setAnchorSvgOn(file("full.svg"));
        b->setAnchorSvgOff(file("half.svg"));
    });
    row("as large as it goes", {2 * QWIDGETSIZE_MAX, 0}, [](auto *b) {
        b->setTextLeftPadding(QWIDGETSIZE_MAX);
        b->setTextRightPadding(QWIDGETSIZE_MAX);
    });
    row("hidden anchor", {8, 0}, [this](auto *b) {
        b->setAnchorSvgOn(file("full.svg"));
        b->setAnchorSvgVisible(false);
    });
}

void tst_SvgButtons::hints()
{
    QFETCH(Change, change);
    WPushButton plain(QStringLiteral("Some text"));
    WSvgAnchorButton button(QStringLiteral("Some text"));
    button.sizeHint();
    change(&button);
    plain.setText(button.text());
    QTEST(button.sizeHint() - plain.sizeHint(), "added");
    QCOMPARE(button.minimumSizeHint(), button.sizeHint());
}

void tst_SvgButtons::places_data()
{
    QTest::addColumn<WEnum::Alignment>("alignment");
    QTest::addColumn<WEnum::HorAlign>("align");
    QTest::addColumn<QRect>("icon"); // null where it depends on the font
    using A = WEnum::Alignment;
    using H = WEnum::HorAlign;
    // In a button of 200 x 61 whose sheet leaves 10 on the left, 20 on the right, 4 above and 6 below.
    QTest::newRow("left left") << A::Left << H::Left << QRect(10 + 3, 21, 16, 16);
    QTest::newRow("left center") << A::Left << H::Center << QRect();
    QTest::newRow("left right") << A::Left << H::Right << QRect();
    QTest::newRow("right left") << A::Right << H::Left << QRect();
    QTest::newRow("right right") << A::Right << H::Right << QRect(180 - 16 - 5, 21, 16, 16);
    QTest::newRow("top center") << A::Top << H::Center << QRect();
    QTest::newRow("bottom center") << A::Bottom << H::Center << QRect();
}

void tst_SvgButtons::places()
{
    QFETCH(WEnum::Alignment, alignment);
    QFETCH(WEnum::HorAlign, align);
    QFETCH(QRect, icon);
    WSvgPushButton button(QStringLiteral("HHHH")); // the same from both sides
    setLook(&button, QSize(200, 61));
    button.setCSS(Look + QStringLiteral("padding: 4px 20px 6px 10px;"));
    button.setSvgIcon(file("full.svg"));
    button.setSvgIconAlignment(alignment);
    button.setTextHorAlign(align);
    button.setSvgIconTopLeftPadding(QPoint(3, 0));
    button.setSvgIconBottomRightPadding(QPoint(5, 0));

    for (const int ratio : {1, 2}) {
        button.setLayoutDirection(Qt::LeftToRight);
        const QImage image = shot(&button, ratio);
        const QRect iconAt = ofColor(image, QColor(255, 0, 0)), textAt = textOf(image);
        QCOMPARE(iconAt.size(), QSize(16, 16) * ratio); // whole pixels
        if (!icon.isNull())
            QCOMPARE(iconAt, times(icon, ratio));
        const int gap = 4 * ratio - 1; // a letter may begin a little earlier
        QVERIFY(!textAt.isEmpty());
        switch (alignment) {
        case WEnum::Alignment::Left: QVERIFY(textAt.left() - iconAt.right() > 5 * ratio + gap); break;
        case WEnum::Alignment::Right: QVERIFY(iconAt.left() - textAt.right() > 3 * ratio + gap); break;
        case WEnum::Alignment::Top: QVERIFY(textAt.top() > iconAt.bottom() + 1); break;
        case WEnum::Alignment::Bottom: QVERIFY(iconAt.top() > textAt.bottom() + 1); break;
        }
        const QRect room = times(QRect(10, 4, 170, 51), ratio);
        QVERIFY(room.contains(iconAt) && room.contains(textAt));
        const QRect both = (iconAt | textAt).adjusted(-3 * ratio, 0, 0, 0);
        if (align == WEnum::HorAlign::Left)
            QVERIFY(both.left() - room.left() <= gap + 4);
        else if (align == WEnum::HorAlign::Right)
            QVERIFY(room.right() - both.right() <= 5 * ratio + gap + 4);
        else
            QVERIFY(std::abs(both.center().x() - room.center().x()) <= 6 * ratio);

        button.setLayoutDirection(Qt::RightToLeft);
        const QImage other = shot(&button, ratio);
        QCOMPARE(ofColor(other, QColor(255, 0, 0)), mirrored(iconAt, image.width()));
        const QRect otherText = mirrored(textOf(other), image.width());
        QVERIFY(std::abs(otherText.left() - textAt.left()) <= 1);
        QCOMPARE(otherText.top(), textAt.top());
    }
}

void tst_SvgButtons::lineOfText_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("icon");
    for (const int height : {30, 31, 40}) {
        for (const int icon : {0, 8, 13, 20, 27})
            QTest::addRow("height %d icon %d", height, icon) << height << icon;
    }
}

void tst_SvgButtons::lineOfText()
{
    QFETCH(int, height);
    QFETCH(int, icon);
    for (const int ratio : {1, 2}) {
        WPushButton plain(QStringLiteral("Hxg"));
        plain.setCSS(Look);
        plain.resize(120, height);
        WSvgPushButton button(QStringLiteral("Hxg"));
        setLook(&button, plain.size());
        if (icon > 0)
            button.setSvgIcon(file("full.svg"));
        button.setSvgIconSize(QSize(icon, icon));
        button.setSvgIconTopLeftPadding(QPoint(0, 2));
        const QRect expected = textOf(shot(&plain, ratio)), found = textOf(shot(&button, ratio));
        QCOMPARE(found.top(), expected.top());
        QCOMPARE(found.bottom(), expected.bottom());
    }
}

void tst_SvgButtons::linesOfText()
{
    const auto inked = [](const char *text) {
        WSvgPushButton button(QString::fromLatin1(text));
        setLook(&button, QSize(120, 60));
        return textOf(shot(&button));
    };
    const QRect first = inked("first"), both = inked("first\nsecond");
    QVERIFY(both.height() > first.height() + 8);
    QVERIFY(both.width() < first.width() + inked("second").width());
}

void tst_SvgButtons::elidedText_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<bool>("whole");
    QTest::newRow("room for all") << 0 << Qt::ElideRight << true;
    QTest::newRow("room for all, cut otherwise") << 0 << Qt::ElideNone << true;
    QTest::newRow("one pixel too little") << -1 << Qt::ElideRight << false;
    QTest::newRow("elided") << -60 << Qt::ElideRight << false;
    QTest::newRow("elided on the left") << -60 << Qt::ElideLeft << false;
    QTest::newRow("cut") << -60 << Qt::ElideNone << false;
    QTest::newRow("no room at all") << -400 << Qt::ElideRight << false;
}

void tst_SvgButtons::elidedText()
{
    QFETCH(int, width);
    QFETCH(Qt::TextElideMode, mode);
    QFETCH(bool, whole);
    const QString full = QStringLiteral("A text <b>of</b> some && more words");
    WSvgPushButton button(full);
    setLook(&button, QSize());
    button.setSvgIcon(file("full.svg"));
    button.setElideMode(mode);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        button.setLayoutDirection(direction);
        button.resize(std::max(24, button.sizeHint().width() + width), 40);
        button.show();
        QString tip = toolTipOf(&button);
        QTextDocument document;
        document.setHtml(tip); // a text that looks like markup is shown as it is
        tip = document.toPlainText();
        QCOMPARE(tip, whole ? QString() : QStringLiteral("A text <b>of</b> some & more words"));
        const QImage image = shot(&button);
        const QRect text = textOf(image), icon = ofColor(image, QColor(255, 0, 0));
        QVERIFY(!text.adjusted(-2, 0, 2, 0).intersects(icon));
        QVERIFY(button.rect().adjusted(2, 0, -2, 0).contains(text) || text.isEmpty());
    }
    button.setToolTip(QStringLiteral("own"));
    QCOMPARE(toolTipOf(&button), QStringLiteral("own"));
}

void tst_SvgButtons::badgeDoesNotCoverText()
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        WSvgPushButton button(QStringLiteral("HHHHHHHHHHHHHHHH"));
        setLook(&button, QSize(90, 20));
        button.setTextHorAlign(WEnum::HorAlign::Right);
        button.setLayoutDirection(direction);
        shot(&button);
        button.setBadgeVisible(true);
        const QImage image = shot(&button);
        const QRect badge = direction == Qt::LeftToRight ? QRect(80, 0, 10, 10) : QRect(0, 0, 10, 10);
        const QRect yellow = extent(image, [](const QColor &c) { return c.blue() < 100 && c.red() > 200; });
        QVERIFY(badge.contains(yellow) && yellow.width() >= 8);
        QVERIFY(!textOf(image).adjusted(-1, 0, 1, 0).intersects(badge.adjusted(1, 0, -1, 0)));
    }
}

void tst_SvgButtons::colorsOfStates_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("expected");
    const char *names[] = {"normal", "hovered", "pressed", "disabled", "focused", "checked"};
    for (int state = 0; state < WColorSet::StateCount; ++state)
        QTest::newRow(names[state]) << QString::fromLatin1(names[state]) << state;
    QTest::newRow("checked hovered") << "checked hovered" << int(WColorSet::Hovered);
    QTest::newRow("checked disabled") << "checked disabled" << int(WColorSet::Disabled);
    QTest::newRow("checked focused") << "checked focused" << int(WColorSet::Focused);
}

void tst_SvgButtons::colorsOfStates()
{
    QFETCH(QString, state);
    QFETCH(int, expected);
    WFrame window;
    auto *layout = new QHBoxLayout(&window);
    // The text is a line, so that its color is seen somewhere.
    auto *button = new WSvgAnchorButton(QStringLiteral("____"));
    layout->addWidget(button);
    button->setCSS(QStringLiteral("$backgroundColors: background; $textColors: states; font-size: 40px;"));
    button->setSvgIcon(file("full.svg"));
    button->setAnchorSvgOn(file("full.svg"));
    button->setAnchorSvgColorSet(QStringLiteral("other"));
    button->setCheckable(true);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    button->clearFocus();

    button->setChecked(state.contains(QLatin1String("checked")));
    button->setDown(state.contains(QLatin1String("pressed")));
    button->setEnabled(!state.contains(QLatin1String("disabled")));
    if (state.contains(QLatin1String("hovered"))) {
        button->setAttribute(Qt::WA_UnderMouse);
        QMouseEvent move(QEvent::MouseMove, button->rect().center(), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(button, &move);
    }
    if (state.contains(QLatin1String("focused")))
        button->setFocus();
    const QImage image = shot(button);
    for (int each = 0; each < WColorSet::StateCount; ++each) {
        const QRect ofText = ofColor(image, QColor(100, 40 * each, 0)),
                    other = ofColor(image, QColor(200, 40 * each, 0));
        QCOMPARE(!ofText.isEmpty(), each == expected);
        QVERIFY(each != expected || ofText.width() > 40); // icon and text, not one of them
        QCOMPARE(!other.isEmpty(), each == expected);
    }
}

void tst_SvgButtons::colorsFollow()
{
    WFrame window;
    auto *button = new WSvgAnchorButton(QStringLiteral("____"), &window);
    setLook(button, QSize(200, 40));
    button->setSvgIcon(file("full.svg"));
    button->setAnchorSvgOff(file("full.svg"));
    button->setAnchorSvgColorSet(QStringLiteral("anchor"));
    const auto shows = [&](const QColor &icon, const QColor &anchor) {
        const QImage image = shot(button);
        return ofColor(image, icon).size() == QSize(16, 16) && ofColor(image, anchor).size() == QSize(16, 16);
    };
    QVERIFY(shows(QColor(255, 0, 0), QColor(0, 255, 0)));
    WApplication::find()->setColorSets(sets(3));
    QVERIFY(shows(QColor(255, 0, 3), QColor(0, 255, 3)));
    window.setThemeType(QStringLiteral("inverted"));
    QVERIFY(shows(QColor(255, 0, 9), QColor(0, 255, 9)));

    QSignalSpy changed(button, &WSvgPushButton::svgIconColorSetChanged);
    button->setSvgIconColorSet(QStringLiteral("anchor"));
    button->setSvgIconColorSet(QStringLiteral("anchor"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<WColorSet>().normal(), QColor(0, 255, 9));
    button->setAnchorSvgColorSet(QStringLiteral("icon"));
    QVERIFY(shows(QColor(0, 255, 9), QColor(255, 0, 9)));

    // A set that is not there is reported once; the colors of the text stand in.
    WarningLog log;
    button->setAnchorSvgColorSet(QStringLiteral("nowhere"));
    shot(button);
    window.setThemeType(QStringLiteral("light"));
    const QImage image = shot(button);
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(image.pixelColor(200 - 8 - 12, 20), QColor(0, 0, 3));

    // Without a set for the text it is what the sheet says.
    button->setCSS(QStringLiteral("color: #102030;"));
    button->setAnchorSvgColorSet(QString());
    QVERIFY(ofColor(shot(button), QColor(0x10, 0x20, 0x30)).height() >= 16);
}

void tst_SvgButtons::whichIcon()
{
    WSvgPushButton button;
    setLook(&button, QSize(60, 40));
    QSignalSpy changed(&button, &WSvgPushButton::svgIconChanged),
        checkedChanged(&button, &WSvgPushButton::svgIconCheckedChanged),
        sized(&button, &WSvgPushButton::svgIconSizeChanged);
    const auto drawn = [&] {
        return ofColor(shot(&button), QColor(255, 0, 0)).height();
    };
    QCOMPARE(drawn(), 0);
    button.setSvgIcon(QString());
    button.setSvgIcon(file("full.svg"));
    button.setSvgIcon(file("full.svg"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toString(), file("full.svg"));
    QCOMPARE(drawn(), 16);
    button.setCheckable(true);
    button.setChecked(true);
    QCOMPARE(drawn(), 16); // the same without one for it
    button.setSvgIconChecked(file("half.svg"));
    QCOMPARE(checkedChanged.count(), 1);
    QCOMPARE(drawn(), 8);
    button.setSvgIconSize(QSize(20, 20));
    QCOMPARE(sized.count(), 1);
    QCOMPARE(drawn(), 10);
    button.setChecked(false);
    QCOMPARE(drawn(), 20);
    button.setSvgIconVisible(false);
    QCOMPARE(drawn(), 0);
    button.setChecked(true);
    QCOMPARE(drawn(), 0);
    button.setSvgIconVisible(true);
    QCOMPARE(drawn(), 10);

    WarningLog log;
    button.setSvgIconChecked(file("broken.svg"));
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(drawn(), 20);
    button.setSvgIcon(QString());
    QCOMPARE(drawn(), 0);
}

void tst_SvgButtons::innerIcon()
{
    for (const int ratio : {1, 2}) {
        WSvgPushButton button;
        setLook(&button, QSize(60, 40));
        button.setInnerSvgIcon(file("full.svg"));
        button.setInnerSvgIconColorSet(QStringLiteral("anchor"));
        button.setInnerSvgIconSize(QSize(8, 8));
        QVERIFY(ofColor(shot(&button, ratio), QColor(0, 255, 0)).isEmpty()); // nothing that it could be in
        button.setSvgIcon(file("full.svg"));
        const QPoint at = ofColor(shot(&button, ratio), QColor(255, 0, 0)).topLeft();
        QCOMPARE(ofColor(shot(&button, ratio), QColor(0, 255, 0)),
                 QRect(at + QPoint(4, 4) * ratio, QSize(8, 8) * ratio));
        button.setInnerSvgIconSize(QSize(7, 7)); // at 4.5: its edges are whole pixels only where there are two of them
        QCOMPARE(ofColor(shot(&button, ratio), QColor(0, 255, 0)).size(), ratio == 1 ? QSize(6, 6) : QSize(14, 14));
        button.setSvgIconVisible(false);
        QVERIFY(ofColor(shot(&button, ratio), QColor(0, 255, 0)).isEmpty());
    }
}

void tst_SvgButtons::styleDrawsQIcon()
{
    WPushButton plain(QIcon(file("blue.png")), QStringLiteral("Hxg"));
    plain.setCSS(Look);
    plain.resize(100, 40);
    WSvgPushButton button(QStringLiteral("Hxg"));
    setLook(&button, plain.size());
    button.setIcon(QIcon(file("blue.png")));
    QCOMPARE(shot(&button), shot(&plain));
    button.setSvgIcon(file("full.svg"));
    const QImage image = shot(&button);
    QVERIFY(ofColor(image, QColor(0, 0, 255)).isEmpty());
    QVERIFY(!ofColor(image, QColor(255, 0, 0)).isEmpty());
}

void tst_SvgButtons::richText()
{
    const QString html = QStringLiteral("<b>HH</b><br>gg");
    WSvgPushButton button(html);
    setLook(&button, QSize(160, 60));
    QCOMPARE(button.textFormat(), Qt::PlainText);
    const QImage asPlain = shot(&button);
    const int plainWidth = button.sizeHint().width();
    button.setTextFormat(Qt::RichText);
    const QImage rich = shot(&button);
    QVERIFY(textOf(rich).width() < textOf(asPlain).width() / 2);
    QVERIFY(textOf(rich).height() > textOf(asPlain).height());
    QVERIFY(button.sizeHint().width() < plainWidth); // of what is seen
    QCOMPARE(button.plainText(), QStringLiteral("HH\ngg"));

    // Also one that is set past this class, and another font.
    QVERIFY(button.setProperty("text", QStringLiteral("<i>H</i>")));
    QVERIFY(textOf(shot(&button)).width() < textOf(rich).width());
    const int height = textOf(shot(&button)).height();
    button.setFontToken(WFont::Display);
    QVERIFY(textOf(shot(&button)).height() > height);

    button.setTextFormat(Qt::AutoText);
    const QImage again = shot(&button);
    button.setTextFormat(Qt::RichText);
    QCOMPARE(shot(&button), again);
    button.setTextFormat(Qt::AutoText);
    button.setText(QStringLiteral("1 < 2 > 0"));
    const QImage looksPlain = shot(&button);
    button.setTextFormat(Qt::PlainText);
    QCOMPARE(shot(&button), looksPlain);

    // The state's color, and the full text of what is cut.
    button.setCSS(QStringLiteral("$backgroundColors: background; $textColors: states; font-size: 30px;"));
    button.setTextFormat(Qt::RichText);
    button.setText(QStringLiteral("<b>____</b>"));
    button.setDown(true);
    QVERIFY(!ofColor(shot(&button), QColor(100, 80, 0)).isEmpty());
    QCOMPARE(toolTipOf(&button), QString());
    button.resize(40, 40);
    QVERIFY(toolTipOf(&button).contains(QStringLiteral("____")));
}

void tst_SvgButtons::richTextReadsNoFiles()
{
    WSvgPushButton button;
    setLook(&button, QSize(100, 60));
    button.setTextFormat(Qt::RichText);
    // Also a file whose path is read like that of a resource.
    const QString folder = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_dir.path()) && QDir().mkdir(QStringLiteral("qrc:")));
    QVERIFY(QFile::copy(QStringLiteral("blue.png"), QStringLiteral("qrc:/blue.png")));
    const QStringList texts {QStringLiteral("<img src='%1' width='20' height='20' alt='words'>"),
                             QStringLiteral("<p style=\"background-image: url('%1')\">words</p>"),
                             QStringLiteral("<table background='%1'><tr><td>words</td></tr></table>"),
                             QStringLiteral("<body background='%1'>words</body>")};
    for (const QString &source : {file("blue.png"), QUrl::fromLocalFile(file("blue.png")).toString(),
                                  QStringLiteral("blue.png"), QStringLiteral("qrc:/blue.png")}) {
        for (const QString &text : texts) {
            button.setText(text.arg(source));
            QVERIFY2(ofColor(shot(&button), QColor(0, 0, 255)).isEmpty(), qPrintable(button.text()));
            QCOMPARE(button.plainText().trimmed(), QStringLiteral("words"));
        }
    }
    QVERIFY(QDir::setCurrent(folder));
    // Nor a style sheet.
    QFile sheet(file("blue.css"));
    QVERIFY(sheet.open(QIODevice::WriteOnly) && sheet.write("p { color: #0000ff; }") > 0);
    sheet.close();
    button.setText(QStringLiteral("<html><head><style>@import url('%1');</style></head><body><p>____</p></body></html>")
                       .arg(sheet.fileName()));
    QVERIFY(ofColor(shot(&button), QColor(0, 0, 255)).isEmpty());
    button.setText(QStringLiteral("<img src=\":/Resources/mic-filled_16.svg\" width=\"20\" height=\"20\">"));
    const QRect drawn = extent(shot(&button), [](const QColor &c) { return c != Background; });
    QVERIFY(!drawn.isEmpty());
}

void tst_SvgButtons::badInput_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("icon size") << QByteArray("svgIconSize") << QVariant(QSize(-1, 4));
    QTest::newRow("inner size") << QByteArray("innerSvgIconSize") << QVariant(QSize());
    QTest::newRow("anchor size") << QByteArray("anchorIconSize") << QVariant(QSize(4, -1));
    QTest::newRow("huge size") << QByteArray("svgIconSize") << QVariant(QSize(3, INT_MAX));
    QTest::newRow("left padding") << QByteArray("textLeftPadding") << QVariant(-1);
    QTest::newRow("huge left padding") << QByteArray("textLeftPadding") << QVariant(INT_MAX);
    QTest::newRow("huge icon padding") << QByteArray("svgIconTopLeftPadding") << QVariant(QPoint(0, INT_MAX));
    QTest::newRow("huge offset") << QByteArray("anchorSvgOffset") << QVariant(INT_MIN);
    QTest::newRow("right padding") << QByteArray("textRightPadding") << QVariant(-1);
    QTest::newRow("anchor padding") << QByteArray("anchorPadding") << QVariant(-1);
    QTest::newRow("icon padding") << QByteArray("svgIconTopLeftPadding") << QVariant(QPoint(2, -1));
    QTest::newRow("other icon padding") << QByteArray("svgIconBottomRightPadding") << QVariant(QPoint(-1, 2));
    QTest::newRow("alignment") << QByteArray("svgIconAlignment") << QVariant(9);
    QTest::newRow("text alignment") << QByteArray("textHorAlign") << QVariant(-1);
}

void tst_SvgButtons::badInput()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    WSvgAnchorButton button(QStringLiteral("text"));
    setLook(&button, QSize(100, 30));
    const QVariant before = button.property(property.constData());
    const QImage look = shot(&button);
    WarningLog log;
    button.setProperty(property.constData(), value);
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(button.property(property.constData()), before);
    QCOMPARE(shot(&button), look);
}

void tst_SvgButtons::anchorPlaces_data()
{
    QTest::addColumn<bool>("isLeft");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QPoint>("at");
    // Within 150 pixels, of which the sheet takes 10 on the left and 20 on the right: the last one is 129.
    QTest::newRow("trailing") << false << 40 << 0 << QPoint(129 - 12 - 6, 19 - 6);
    QTest::newRow("trailing, odd height") << false << 41 << 0 << QPoint(129 - 12 - 6, 20 - 6);
    QTest::newRow("trailing, lower") << false << 40 << 5 << QPoint(129 - 12 - 6, 24 - 6);
    QTest::newRow("leading") << true << 40 << 0 << QPoint(10 + 6, 19 - 6);
    QTest::newRow("leading, higher") << true << 40 << -5 << QPoint(10 + 6, 14 - 6);
}

void tst_SvgButtons::anchorPlaces()
{
    QFETCH(bool, isLeft);
    QFETCH(int, height);
    QFETCH(int, offset);
    QFETCH(QPoint, at);
    WSvgAnchorButton button(QStringLiteral("HHHHHHHHHHHHHHHHHHHHHHHHHHHH"));
    setLook(&button, QSize(150, height));
    button.setCSS(Look + QStringLiteral("padding: 0px 20px 0px 10px;"));
    button.setAnchorSvgColorSet(QStringLiteral("anchor"));
    button.setAnchorSvgOn(file("full.svg"));
    button.setAnchorSvgOff(file("full.svg"));
    button.setElideMode(Qt::ElideRight);
    shot(&button);
    button.setAnchorIconSize(QSize(12, 12));
    button.setAnchorPadding(6);
    button.setAnchorSvgOffset(offset);
    button.setIsLeftAnchor(isLeft);
    for (const int ratio : {1, 2}) {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            button.setLayoutDirection(direction);
            const QImage image = shot(&button, ratio);
            QRect expected(at, QSize(12, 12));
            if (direction == Qt::RightToLeft)
                expected = mirrored(expected, 150);
            expected = times(expected, ratio);
            QCOMPARE(ofColor(image, QColor(0, 255, 0)), expected);
            const QRect text = textOf(image);
            QVERIFY(!text.adjusted(-2 * ratio, 0, 2 * ratio, 0)
                         .intersects(QRect(expected.left(), 0, expected.width(), image.height())));
            QVERIFY(text.width() > 70 * ratio);
        }
    }
    button.setAnchorSvgVisible(false);
    const QImage without = shot(&button);
    QVERIFY(ofColor(without, QColor(0, 255, 0)).isEmpty());
    QVERIFY(textOf(without).width() > 90); // the room is the text's
}

void tst_SvgButtons::anchorAtText()
{
    WSvgAnchorButton button(QStringLiteral("HHHH"));
    setLook(&button, QSize(300, 40));
    button.setAnchorSvgColorSet(QStringLiteral("anchor"));
    button.setAnchorSvgOff(file("full.svg"));
    button.setAnchorPadding(10);
    button.setAlignAnchorIconToText(true);
    for (const bool isLeft : {false, true}) {
        button.setIsLeftAnchor(isLeft);
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            button.setLayoutDirection(direction);
            const QImage image = shot(&button);
            const QRect text = textOf(image), anchor = ofColor(image, QColor(0, 255, 0));
            const bool isOnTheLeft = isLeft == (direction == Qt::LeftToRight);
            const int gap = isOnTheLeft ? text.left() - anchor.right() - 1 : anchor.left() - text.right() - 1;
            QVERIFY2(gap >= 9 && gap <= 13, qPrintable(QString::number(gap)));
            QVERIFY(std::abs((text | anchor).center().x() - 150) <= 3);
        }
    }
    button.setText(QString());
    QCOMPARE(ofColor(shot(&button), QColor(0, 255, 0)).right(), 300 - 1 - 10); // mirrored, at the leading edge
}

void tst_SvgButtons::anchorStates()
{
    WSvgAnchorButton button;
    setLook(&button, QSize(100, 40));
    button.setAnchorSvgColorSet(QStringLiteral("anchor"));
    button.setCheckable(true);
    QSignalSpy on(&button, &WSvgAnchorButton::anchorSvgOnChanged), off(&button, &WSvgAnchorButton::anchorSvgOffChanged);
    const auto drawn = [&] {
        return ofColor(shot(&button), QColor(0, 255, 0)).height();
    };
    QCOMPARE(drawn(), 0);
    button.setAnchorSvgOff(file("half.svg"));
    button.setAnchorSvgOff(file("half.svg"));
    QCOMPARE(off.count(), 1);
    QCOMPARE(drawn(), 8);
    button.setChecked(true);
    QCOMPARE(drawn(), 8); // the only one there is
    button.setAnchorSvgOn(file("full.svg"));
    QCOMPARE(on.count(), 1);
    QCOMPARE(drawn(), 16);
    button.setChecked(false);
    QCOMPARE(drawn(), 8);

    QMenu menu;
    menu.addAction(QStringLiteral("entry"));
    const QImage before = shot(&button);
    button.setMenu(&menu);
    QCOMPARE(shot(&button), before); // no second arrow
    menu.popup(QPoint());
    QCOMPARE(drawn(), 16);
    menu.close();
    QCOMPARE(drawn(), 8);
}

void tst_SvgButtons::pillRadius_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("radius");
    QTest::newRow("31") << 31 << 15;
    QTest::newRow("32") << 32 << 16;
    QTest::newRow("1") << 1 << 0;
}

void tst_SvgButtons::pillRadius()
{
    QFETCH(int, height);
    QFETCH(int, radius);
    WPillTabButton pill(QStringLiteral("Files"));
    pill.resize(90, 24);
    pill.show();
    pill.resize(90, height);
    QVERIFY2(pill.styleSheet().contains(QStringLiteral("border-radius:%1px").arg(radius)),
             qPrintable(pill.styleSheet()));
    QCOMPARE(pill.property("focusBorderRadius").toInt(), radius);
    pill.setChecked(true);
    QCOMPARE(pill.property("focusBorderRadius").toInt(), radius);
}

void tst_SvgButtons::pillShape_data()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<int>("height");
    for (const int ratio : {1, 2}) {
        for (const int height : {24, 31, 32})
            QTest::addRow("%dx, %d high", ratio, height) << ratio << height;
    }
}

void tst_SvgButtons::pillShape()
{
    QFETCH(int, ratio);
    QFETCH(int, height);
    WPillTabButton pill;
    pill.setAccessibleName(QStringLiteral("pill"));
    pill.resize(90, height);
    const QImage image = shot(&pill, ratio);
    const QColor fill(1, 1, 200);
    const auto isFilled = [&](int x, int y) {
        return image.pixelColor(x, y) == fill;
    };
    const int right = image.width() - 1, bottom = image.height() - 1, middle = image.width() / 2;
    // The styles leave half of the border free, which shows only with the focus: one whole pixel.
    for (const int y : {ratio, bottom - ratio})
        QVERIFY(isFilled(middle, y));
    for (const int y : {0, ratio - 1, bottom - ratio + 1, bottom})
        QCOMPARE(image.pixelColor(middle, y), Background);
    QVERIFY(isFilled(2 * ratio, bottom / 2) && !isFilled(ratio - 1, bottom / 2));
    for (const int x : {ratio, right - ratio}) { // round ends
        for (const int y : {ratio, bottom - ratio, bottom / 6})
            QCOMPARE(image.pixelColor(x, y), Background);
    }
    for (int y = 0; y <= bottom; ++y) {
        for (int x = 0; x < middle; ++x) {
            QVERIFY2(isFilled(x, y) == isFilled(right - x, y), "left and right differ");
            QVERIFY2(isFilled(x, y) == isFilled(x, bottom - y), "top and bottom differ");
        }
    }
}

void tst_SvgButtons::pillGroups()
{
    WPillTabButton pill(QStringLiteral("____"));
    QVERIFY(pill.isCheckable());
    QCOMPARE(pill.textColorSet(), QStringLiteral("qx-contentTabViewButton-text"));
    QCOMPARE(pill.textColorSetChecked(), QStringLiteral("qx-contentTabViewButtonChecked-text"));
    QCOMPARE(pill.svgIconSize(), QSize(12, 12));
    QCOMPARE(pill.svgIconTopLeftPadding().x(), 12);
    QCOMPARE(pill.textLeftPadding() + pill.textRightPadding(), 24);
    QCOMPARE(pill.fontToken(), WFont::BodySecondary);
    pill.setSvgIcon(file("full.svg"));
    pill.resize(120, 30);
    const auto colors = [&](const QColor &fill, const QColor &icon) {
        const QImage image = shot(&pill);
        return image.pixelColor(60, 1) == fill && ofColor(image, icon).height() >= 12;
    };
    const QColor blue(1, 1, 200), green(1, 200, 1);
    QVERIFY(colors(blue, QColor(255, 255, 255)));
    pill.show();
    QTest::mouseClick(&pill, Qt::LeftButton);
    pill.setAttribute(Qt::WA_UnderMouse, false);
    QVERIFY(pill.isChecked());
    QVERIFY(colors(green, QColor(255, 255, 200)));
    pill.setIconColorSetChecked(QStringLiteral("icon"));
    QVERIFY(colors(green, QColor(255, 0, 0)));
    pill.setBackgroundColorSet(QStringLiteral("anchor")); // of the other group
    QVERIFY(colors(green, QColor(255, 0, 0)));
    pill.setBackgroundColorSetChecked(QStringLiteral("background"));
    QVERIFY(colors(Background, QColor(255, 0, 0)));
    QTest::keyClick(&pill, Qt::Key_Space);
    QVERIFY(!pill.isChecked());
    pill.clearFocus();
    QVERIFY(colors(QColor(0, 255, 0), QColor(255, 255, 255)));
    pill.setIconColorSet(QStringLiteral("icon"));
    pill.setTextColorSet(QStringLiteral("text"));
    QVERIFY(colors(QColor(0, 255, 0), QColor(255, 0, 0)));
    const QRect dark = extent(shot(&pill), [](const QColor &c) { return c.red() < 50 && c.green() < 150; });
    QVERIFY(dark.width() > 10);
}

void tst_SvgButtons::pillWidth()
{
    WPillTabButton pill(QStringLiteral("Files"));
    pill.resize(300, 30);
    QCOMPARE(pill.maximumWidth(), QWIDGETSIZE_MAX);
    const auto expected = [&](int icon) {
        return icon + pill.fontMetrics().horizontalAdvance(pill.text()) + 12 + 12 + 12 + 7 + 2 * 15;
    };
    pill.setSvgIconBottomRightPadding(QPoint(7, 0));
    pill.setSvgIcon(file("full.svg"));
    QCOMPARE(pill.maximumWidth(), QWIDGETSIZE_MAX); // later
    QTRY_COMPARE(pill.maximumWidth(), expected(12));
    QVERIFY(pill.maximumWidth() >= pill.sizeHint().width());
    pill.setText(QStringLiteral("Files and folders"));
    QCOMPARE(pill.maximumWidth(), expected(12));
    pill.setSvgIcon(QString());
    QTRY_COMPARE(pill.maximumWidth(), expected(-1));
}

void tst_SvgButtons::pillTemplate()
{
    // Before there is a theme it asks for nothing, and follows when there is one.
    WApplication::find()->setColorSets({});
    WarningLog log;
    WPillTabButton pill(QStringLiteral("Files"));
    pill.resize(90, 30);
    pill.setChecked(true);
    shot(&pill);
    QCOMPARE(log.take(), QStringList());
    WApplication::find()->setColorSets(sets());
    QCOMPARE(shot(&pill).pixelColor(45, 1), QColor(1, 200, 1));

    // What else a template says stays.
    pill.setCSS(QStringLiteral("$backgroundColors: icon; padding: 3px;"));
    pill.setChecked(false);
    pill.setChecked(true);
    QCOMPARE(pill.getCSS().count(QStringLiteral("padding: 3px;")), 1);
    QCOMPARE(shot(&pill).pixelColor(45, 1), QColor(1, 200, 1));
    QCOMPARE(log.take(), QStringList());
}

void tst_SvgButtons::keptPictures()
{
    WSvgAnchorButton button(QStringLiteral("Some text"));
    setLook(&button, QSize(150, 40));
    button.setSvgIcon(file("full.svg"));
    button.setInnerSvgIcon(file("half.svg"));
    button.setAnchorSvgOff(file("full.svg"));
    const QImage first = shot(&button);
    const int pictures = WSvgIcon::renderedPictures();
    for (int time = 0; time < 3; ++time)
        QCOMPARE(shot(&button), first);
    QCOMPARE(WSvgIcon::renderedPictures(), pictures);
}

void tst_SvgButtons::deletedByItsSlots()
{
    const std::vector<std::function<void(WPillTabButton *)>> calls {
        [](WPillTabButton *b) { b->onApplyCSS(true); },
        [](WPillTabButton *b) { b->setBackgroundColorSet(QStringLiteral("icon")); },
        [](WPillTabButton *b) { b->onThemeChanged(); },
        [this](WPillTabButton *b) { b->setSvgIcon(file("full.svg")); },
        [](WPillTabButton *b) { b->setSvgIconColorSet(QStringLiteral("icon")); },
        [](WPillTabButton *b) { b->setIconColorSet(QStringLiteral("icon")); },
        [](WPillTabButton *b) { b->setSvgIconSize(QSize(20, 20)); },
    };
    for (const auto &call : calls) {
        auto *pill = new WPillTabButton(QStringLiteral("Files"));
        pill->show();
        const QPointer<QObject> alive(pill);
        const auto end = [pill] {
            delete pill;
        };
        connect(pill, &WPillTabButton::cssChanged, this, end);
        connect(pill, &WPillTabButton::svgIconChanged, this, end);
        connect(pill, &WPillTabButton::svgIconColorSetChanged, this, end);
        connect(pill, &WPillTabButton::svgIconSizeChanged, this, end);
        call(pill);
        QVERIFY(!alive);
    }
}

void tst_SvgButtons::accessible()
{
    WSvgPushButton button;
    button.setTextFormat(Qt::RichText);
    button.setText(QStringLiteral("<b>Send</b> it"));
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&button);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Button);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Send it"));
    button.setText(QStringLiteral("<img src=':/Resources/mic-filled_16.svg' alt='Microphone'> on"));
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Microphone on"));
    QSignalSpy clicked(&button, &WSvgPushButton::clicked);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(clicked.count(), 1);

    WPillTabButton pill(QStringLiteral("&Files"));
    interface = QAccessible::queryAccessibleInterface(&pill);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Files"));
    QVERIFY(interface->state().checkable && !interface->state().checked);
    interface->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QTRY_VERIFY(pill.isChecked());
    QVERIFY(interface->state().checked);

    // A name is asked for where there is only an icon.
    WarningLog log;
    WSvgPushButton bare, named;
    for (WSvgPushButton *each : {&bare, &named})
        each->setSvgIcon(file("full.svg"));
    named.setAccessibleName(QStringLiteral("Send"));
    bare.show();
    named.show();
#ifndef QT_NO_DEBUG
    QCOMPARE(log.take().size(), 1);
#endif
}

W_TEST_MAIN(tst_SvgButtons)
#include "tst_svg_buttons.moc"
