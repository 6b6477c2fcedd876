#include "support/Colors.h"
#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/controls/WEmojiLabel.h>
#include <UiElements/controls/WPushButton.h>
#include <UiElements/controls/WSvgLabel.h>
#include <UiElements/emoji/EmojiParser.h>
#include <UiElements/emoji/EmojiResources.h>

#include <QClipboard>
#include <QDesktopServices>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QToolTip>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>

using Flags = Qt::TextInteractionFlags;
Q_DECLARE_METATYPE(Flags)
using Act = std::function<void(QWidget *)>;
using LabelAct = std::function<void(WEmojiLabel *, WSvgLabel *)>;
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(LabelAct)

namespace {

const QString Grin = QStringLiteral("\U0001F600");
const QColor Background(250, 250, 250);

/// What is drawn of a label on a plain background: the box around all pixels that are not background.
QRect inkOf(const QImage &image)
{
    QRegion ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != Background)
                ink += QRect(x, y, 1, 1);
        }
    }
    return ink.boundingRect();
}

QImage pictureOf(QWidget *widget)
{
    QPalette colors;
    colors.setColor(QPalette::Window, Background);
    widget->setPalette(colors);
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

bool has(const QImage &image, const QColor &wanted)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == wanted)
                return true;
        }
    }
    return false;
}

void setSets(const QColor &link)
{
    WColorSets sets = spelledSets({"unused", "unused2", "my-text"});
    sets["button-hyperlink-text"] = plainSet("button-hyperlink-text", link);
    WColorSet icon(QStringLiteral("icon"));
    icon.fill(Qt::red);
    icon.setColor(WColorSet::Disabled, Qt::blue);
    sets["icon"] = icon;
    qobject_cast<IWApplication *>(qApp)->setColorSets(sets);
}

} // namespace

class tst_Labels : public QObject
{
    Q_OBJECT

public Q_SLOTS: // not a test: QtTest calls private slots only
    void onUrlOpened(const QUrl &) { ++m_opened; }

private Q_SLOTS:
    void init();
    void clicks_data();
    void clicks();
    void keysOfAClickableLabelStayInIt();
    void selection();
    void reachedByTab();
    void toldToScreenReaders();
    void mayDieInItsSignals();
    void visibility();
    void linkColors();
    void linksOpenNothing();
    void filesAreNotRead_data();
    void filesAreNotRead();
    void elision_data();
    void elision();
    void tooltipOfAnElidedText();
    void alignmentFollowsTheLayout_data();
    void alignmentFollowsTheLayout();
    void wrapModes();
    void pixmapColor();
    void emojiAreImages_data();
    void emojiAreImages();
    void emojiTextIsNoMarkup();
    void emojiLineIsAsHighAsText();
    void emojiElision_data();
    void emojiElision();
    void emojiCopy();
    void emojiPaddings_data();
    void emojiPaddings();
    void emojiMirrorsFocus();
    void colorsOfStates();
    void hugeTexts();
    void iconHint();
    void iconPlaces_data();
    void iconPlaces();
    void iconColors();
    void badInput_data();
    void badInput();

private:
    int m_opened = 0;
};

void tst_Labels::init()
{
    setSets(QColor(1, 2, 3));
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_Labels::clicks_data()
{
    QTest::addColumn<Flags>("flags");
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("count");

    const auto key = [](Qt::Key k, Qt::KeyboardModifiers m = Qt::NoModifier) {
        return Act([k, m](QWidget *w) { QTest::keyClick(w, k, m); });
    };
    const auto mouse = [](Qt::MouseButton b) {
        return Act([b](QWidget *w) { QTest::mouseClick(w, b); });
    };
    const Flags standard = Qt::LinksAccessibleByMouse;
    QTest::newRow("left button") << standard << mouse(Qt::LeftButton) << 1;
    QTest::newRow("right button") << standard << mouse(Qt::RightButton) << 0;
    QTest::newRow("released outside") << standard << Act([](QWidget *w) {
        QTest::mousePress(w, Qt::LeftButton);
        QTest::mouseRelease(w, Qt::LeftButton, {}, QPoint(-5, -5));
    }) << 0;
    QTest::newRow("Return") << standard << key(Qt::Key_Return) << 1;
    QTest::newRow("Enter") << standard << key(Qt::Key_Enter, Qt::KeypadModifier) << 1;
    QTest::newRow("Space") << Flags(Qt::TextSelectableByKeyboard) << key(Qt::Key_Space) << 1;
    QTest::newRow("Ctrl+Return") << standard << key(Qt::Key_Return, Qt::ControlModifier) << 0;
    QTest::newRow("a letter") << standard << key(Qt::Key_A) << 0;
    QTest::newRow("held key") << standard << Act([](QWidget *w) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(w, &event);
    }) << 0;
    QTest::newRow("no flags, mouse") << Flags() << mouse(Qt::LeftButton) << 0;
    QTest::newRow("no flags, key") << Flags() << key(Qt::Key_Return) << 0;
    QTest::newRow("text selected") << Flags(Qt::TextSelectableByMouse) << Act([](QWidget *w) {
        static_cast<QLabel *>(w)->setSelection(0, 1);
        QMouseEvent event(QEvent::MouseButtonRelease, QPointF(2, 2), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(w, &event);
    }) << 0;
}

void tst_Labels::clicks()
{
    QFETCH(Flags, flags);
    QFETCH(Act, act);
    QFETCH(int, count);
    WLabel label(QStringLiteral("text"));
    label.setTextInteractionFlags(flags);
    QSignalSpy spy(&label, &WLabel::clicked);
    act(&label);
    QCOMPARE(spy.count(), count);

    // The signal of the emoji label's own name, and the one below it.
    WEmojiLabel emoji(QStringLiteral("text"));
    emoji.setTextInteractionFlags(flags);
    QSignalSpy own(&emoji, &WEmojiLabel::clicked), inherited(&emoji, &WLabel::clicked);
    act(&emoji);
    QCOMPARE(own.count(), count);
    QCOMPARE(inherited.count(), count);
}

void tst_Labels::keysOfAClickableLabelStayInIt()
{
    struct Dialog : QWidget
    {
        void keyPressEvent(QKeyEvent *) override { ++keys; }
        int keys = 0;
    } dialog;
    WLabel label(QStringLiteral("text"), &dialog);
    QTest::keyClick(&label, Qt::Key_Return);
    QCOMPARE(dialog.keys, 1); // nobody listens: it is a text, and the dialog's default button gets the key
    QSignalSpy spy(&label, &WLabel::clicked);
    QTest::keyClick(&label, Qt::Key_Return);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(dialog.keys, 1);
}

void tst_Labels::selection()
{
    WLabel label(QStringLiteral("some text"));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QTest::mouseClick(&label, Qt::RightButton);
    QCOMPARE(label.selectedText(), QStringLiteral("some text"));
    QTest::keyClick(&label, Qt::Key_Escape);
    QVERIFY(!label.hasSelectedText());

    QGuiApplication::clipboard()->clear();
    QTest::keySequence(&label, QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("some text"));
    QVERIFY(label.hasSelectedText());

    label.setTextFormat(Qt::RichText);
    label.setText(QStringLiteral("a <b>bold</b> <a href='x'>word</a>"));
    QTest::keySequence(&label, QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("a bold word"));
    QCOMPARE(label.selectedText(), QStringLiteral("a bold word"));
}

void tst_Labels::reachedByTab()
{
    WLabel label(QStringLiteral("text"));
    QCOMPARE(label.focusPolicy(), Qt::NoFocus);
    const auto connection = connect(&label, &WLabel::clicked, this, [] {});
    QVERIFY(label.focusPolicy() & Qt::TabFocus);
    label.setTextInteractionFlags(Qt::TextSelectableByMouse); // Qt sets a policy of its own here
    QVERIFY(label.focusPolicy() & Qt::TabFocus);
    QVERIFY(label.focusPolicy() & Qt::ClickFocus);
    disconnect(connection);
    QTRY_COMPARE(label.focusPolicy(), Qt::ClickFocus);

    WEmojiLabel emoji(QStringLiteral("text"));
    connect(&emoji, &WEmojiLabel::clicked, this, [] {});
    QVERIFY(emoji.focusPolicy() & Qt::TabFocus);
    emoji.setTextInteractionFlags(Qt::NoTextInteraction);
    QVERIFY(!(emoji.focusPolicy() & Qt::TabFocus));
    emoji.setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    QVERIFY(emoji.focusPolicy() & Qt::TabFocus);

    // The focus shows.
    QWidget window;
    QVBoxLayout layout(&window);
    WEmojiLabel focused(QStringLiteral("text"));
    layout.addWidget(&focused);
    connect(&focused, &WEmojiLabel::clicked, this, [] {});
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    focused.clearFocus();
    QTRY_VERIFY(!focused.hasFocus());
    const QImage before = pictureOf(&focused);
    focused.setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(focused.hasFocus());
    QVERIFY(pictureOf(&focused) != before);
}

void tst_Labels::toldToScreenReaders()
{
    WEmojiLabel label(QStringLiteral("Done %1!").arg(Grin));
    label.setElementUniqueId(QStringLiteral("status"));
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&label);
    QCOMPARE(interface->role(), QAccessible::StaticText);
    QVERIFY(!interface->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));

    QSignalSpy spy(&label, &WEmojiLabel::clicked);
    QCOMPARE(interface->role(), QAccessible::Button);
    QVERIFY(interface->state().focusable);
    QCOMPARE(interface->actionInterface()->actionNames().value(0), QAccessibleActionInterface::pressAction());
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(spy.count(), 1);
    label.setEnabled(false);
    QVERIFY(interface->state().disabled);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(spy.count(), 1);

    QCOMPARE(interface->text(QAccessible::Name), label.text());
    const QByteArray catalogue = R"({"emojis": {"grin": {"b": "1F600", "a": "grinning face", "k": [0, 0]}},
                                     "categories": [{"id": "a", "name": "A", "emojis": ["grin"]}]})";
    WLabel::setEmojiCatalogue(EmojiPicker::EmojiParser().parseObject(QJsonDocument::fromJson(catalogue).object()));
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Done grinning face!"));
    WPushButton button(Grin);
    QCOMPARE(QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Name), QStringLiteral("grinning face"));
    WLabel::setEmojiCatalogue(nullptr);
    label.setAccessibleName(QStringLiteral("given"));
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("given"));
    QCOMPARE(interface->text(ThemeSupport::ElementUniqueIdText), QStringLiteral("status"));

    WLabel rich(nullptr, QAccessible::Heading);
    rich.setTextFormat(Qt::RichText);
    rich.setText(QStringLiteral("<b>Bold</b> &amp; <a href='x'>link</a>"));
    interface = QAccessible::queryAccessibleInterface(&rich);
    QCOMPARE(interface->role(), QAccessible::Heading);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Bold & link"));
    rich.setText(QStringLiteral("<img src=':/Resources/mic-filled_16.svg' alt='Microphone'> <i>on</i>"));
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Microphone on"));
}

void tst_Labels::mayDieInItsSignals()
{
    auto *label = new WEmojiLabel(QStringLiteral("text"));
    connect(label, &WLabel::clicked, label, [label] { delete label; });
    QSignalSpy spy(label, &WEmojiLabel::clicked);
    QPointer<WEmojiLabel> alive(label);
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(2, 2), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(label, &release);
    QVERIFY(!alive);
    QCOMPARE(spy.count(), 0);

    label = new WEmojiLabel(QStringLiteral("text"));
    connect(label, &WEmojiLabel::clicked, label, [label] { delete label; });
    alive = label;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(label, &press);
    QVERIFY(!alive);
}

void tst_Labels::visibility()
{
    QWidget window;
    WLabel label(QStringLiteral("text"), &window);
    QSignalSpy spy(&label, &WLabel::onVisibilityChanged);
    window.show();
    label.hide();
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QCOMPARE(spy.at(1).at(0).toBool(), false);
}

void tst_Labels::linkColors()
{
    const QString link = QStringLiteral("see <a href='x'>this</a>");
    WColorSets sets;
    WColorSet set(QStringLiteral("button-hyperlink-text"));
    set.setColor(WColorSet::Normal, QColor(1, 0, 0));
    set.setColor(WColorSet::Focused, QColor(2, 0, 0));
    set.setColor(WColorSet::Hovered, QColor(3, 0, 0));
    sets["button-hyperlink-text"] = set;
    qobject_cast<IWApplication *>(qApp)->setColorSets(sets);

    WLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(link);
    QCOMPARE(label.QLabel::text(),
             QStringLiteral("<style type = \"text/css\">a:link{text-decoration: underline; color:#010000;} "
                            "a:visited{color:#020000;} a:hover{color:#030000;}</style>")
                 + link);
    QCOMPARE(label.text(), link);

    setSets(QColor(0, 0, 9));
    QVERIFY(label.QLabel::text().contains(QStringLiteral("a:link{text-decoration: underline; color:#000009;}")));
    QCOMPARE(label.text(), link);

    label.setText(QStringLiteral("<b>no link</b> <A href='x'>"));
    QCOMPARE(label.QLabel::text(), label.text());

    // Plain text is not wrapped, and is as soon as it becomes rich.
    WLabel plain(link);
    QCOMPARE(plain.QLabel::text(), link);
    plain.setTextFormat(Qt::RichText);
    QVERIFY(plain.QLabel::text().startsWith(QStringLiteral("<style")));
    plain.setTextFormat(Qt::PlainText);
    QCOMPARE(plain.QLabel::text(), link);

    // The underlines; where the text goes to Qt as it is, too.
    for (const Qt::TextFormat format : {Qt::RichText, Qt::AutoText}) {
        WLabel painted;
        painted.setCSS(QStringLiteral("color: #123456;"));
        painted.setTextFormat(format);
        painted.setText(QStringLiteral("<a href='x'>mmmmm</a>"));
        painted.show();
        QVERIFY(has(pictureOf(&painted), QColor(0, 0, 9)));
        setSets(QColor(0, 9, 9));
        QVERIFY(has(pictureOf(&painted), QColor(0, 9, 9)));
        setSets(QColor(0, 0, 9));
    }
}

void tst_Labels::linksOpenNothing()
{
    m_opened = 0;
    QDesktopServices::setUrlHandler(QStringLiteral("test"), this, "onUrlOpened");
    WLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(QStringLiteral("<a href='test:x'>mmmmmmmmmmmmm</a>"));
    label.resize(label.sizeHint());
    label.show();
    QSignalSpy activated(&label, &QLabel::linkActivated);
    QTest::mouseMove(&label, QPoint(20, label.height() / 2));
    QTest::mouseClick(&label, Qt::LeftButton, {}, QPoint(20, label.height() / 2));
    QCOMPARE(activated.count(), 1);
    QCOMPARE(m_opened, 0);
    label.setOpenExternalLinks(true);
    QTest::mouseClick(&label, Qt::LeftButton, {}, QPoint(20, label.height() / 2));
    QCOMPARE(m_opened, 1);
    QDesktopServices::unsetUrlHandler(QStringLiteral("test"));
}

void tst_Labels::filesAreNotRead_data()
{
    QTest::addColumn<Qt::TextFormat>("format");
    QTest::addColumn<QString>("text"); // %1 is the file
    QTest::addColumn<bool>("isReadWhenAllowed");
    const auto row = [](const char *name, const char *text, Qt::TextFormat format = Qt::RichText, bool isRead = true) {
        QTest::newRow(name) << format << QString::fromLatin1(text) << isRead;
    };
    row("path", "<img src='%1' alt='words'>");
    row("address", "x <IMG alt='words' src=\"file://%1\">");
    row("entity", "<img src='&#47;%1' alt='words'>", Qt::RichText, false);
    row("within a table", "<table><tr><td><img src='%1'></td></tr></table>");
    row("taken for rich text", "<p><img src='%1'></p>", Qt::AutoText);
    row("background", "<table width='50' height='50' style='background-image: url(%1)'><tr><td>x</td></tr></table>");
    row("from the folder", "<img src='../../../../../../../..%1'>");
    row("Markdown", "![words](%1)", Qt::MarkdownText);
    row("no resource", "<img src=':/../../../..%1'>", Qt::RichText, false);
}

void tst_Labels::filesAreNotRead()
{
    QFETCH(Qt::TextFormat, format);
    QFETCH(QString, text);
    QFETCH(bool, isReadWhenAllowed);
    const QColor red(255, 0, 0);
    QTemporaryDir folder;
    QImage image(60, 60, QImage::Format_RGB32);
    image.fill(red);
    const QString file = folder.filePath(QStringLiteral("red.png"));
    QVERIFY(image.save(file));

    WLabel label;
    label.setTextFormat(format);
    label.setText(text.arg(file));
    label.resize(100, 100);
    QVERIFY(!has(pictureOf(&label), red));
    QCOMPARE(label.QLabel::text().contains(QStringLiteral("words")), text.contains(QStringLiteral("words")));
    QVERIFY(!label.QLabel::text().contains(file));
    QCOMPARE(label.text(), text.arg(file));
    WSvgLabel withIcon;
    withIcon.setTextFormat(format);
    withIcon.setText(text.arg(file));
    withIcon.resize(100, 100);
    QVERIFY(!has(pictureOf(&withIcon), red));

    // What is left follows the font.
    const int before = label.sizeHint().height();
    QFont larger = label.font();
    larger.setPixelSize(60);
    label.setFont(larger);
    if (format != Qt::MarkdownText && !text.contains(QStringLiteral("table")) && text.contains(QStringLiteral("words")))
        QVERIFY(label.sizeHint().height() > before + 20);

    label.setOutsideImagesAllowed(true);
    QCOMPARE(has(pictureOf(&label), red), isReadWhenAllowed);
    label.setOutsideImagesAllowed(false);
    QVERIFY(!has(pictureOf(&label), red));

    label.setTextFormat(Qt::RichText);
    label.setText(QStringLiteral("<img src=':/Resources/info_16.svg'>"));
    QCOMPARE(label.QLabel::text(), label.text());
}

void tst_Labels::elision_data()
{
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<QString>("pattern");
    QTest::newRow("right") << Qt::ElideRight << QStringLiteral("^First.*\u2026$");
    QTest::newRow("left") << Qt::ElideLeft << QStringLiteral("^\u2026.*last$");
    QTest::newRow("middle") << Qt::ElideMiddle << QStringLiteral("^Fir.*\u2026.*st$");
    QTest::newRow("none") << Qt::ElideNone << QStringLiteral("^First .* last$");
}

void tst_Labels::elision()
{
    QFETCH(Qt::TextElideMode, mode);
    QFETCH(QString, pattern);
    const QString text = QStringLiteral("First words of a line that is much too long, and the last");
    WEmojiLabel label(text); // tells what it shows
    label.setElideMode(mode);
    label.resize(120, 30);
    const QRegularExpression expected(pattern);
    const bool fits = expected.match(label.getElidedText()).hasMatch(); // clazy:exclude=use-static-qregularexpression
    QVERIFY2(fits, qPrintable(label.getElidedText()));
    if (mode == Qt::ElideNone) {
        QVERIFY(label.minimumSizeHint().width() > 120);
        return;
    }
    QVERIFY(label.minimumSizeHint().width() < 60);
    const QRect ink = inkOf(pictureOf(&label));
    QVERIFY2(ink.right() < 120 && ink.width() > 60, qPrintable(QString::number(ink.width())));

    label.setElidePadding(40);
    QVERIFY(inkOf(pictureOf(&label)).right() < 80);
    label.resize(label.sizeHint());
    QCOMPARE(label.getElidedText(), text);
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.resize(120, 30);
    label.setSelection(0, 5);
    QCOMPARE(label.getElidedText(), text); // what is selected stands where Qt puts it
}

void tst_Labels::tooltipOfAnElidedText()
{
    WLabel label(QStringLiteral("<b>not bold</b> and longer than the label"));
    label.setTextFormat(Qt::PlainText);
    label.setElideMode(Qt::ElideRight);
    label.resize(60, 30);
    label.show();
    const auto ask = [](QWidget *widget) {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), widget->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(widget, &event);
        QTextDocument shown;
        shown.setHtml(QToolTip::text());
        return QToolTip::isVisible() ? shown.toPlainText() : QString();
    };
    QCOMPARE(ask(&label), label.text());
    QVERIFY(Qt::mightBeRichText(QToolTip::text())); // and so it is broken into lines
    label.setToolTip(QStringLiteral("own"));
    QCOMPARE(ask(&label), QStringLiteral("own"));
    label.setToolTip(QString());
    QToolTip::hideText();
    label.resize(label.sizeHint());
    QTRY_VERIFY(!QToolTip::isVisible());
    QCOMPARE(ask(&label), QString());

    WEmojiLabel emoji(QStringLiteral("%1 smiles, and much longer").arg(Grin));
    emoji.setElideMode(Qt::ElideRight);
    emoji.resize(60, 30);
    emoji.show();
    QCOMPARE(ask(&emoji), emoji.text());
    QToolTip::hideText();
}

void tst_Labels::alignmentFollowsTheLayout_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isAtLeft");
    const QString english = QStringLiteral("Hello"), hebrew = QStringLiteral("\u05e9\u05dc\u05d5\u05dd");
    QTest::newRow("left-to-right in its own") << english << Qt::LeftToRight << true;
    QTest::newRow("left-to-right in the other") << english << Qt::RightToLeft << false;
    QTest::newRow("right-to-left in its own") << hebrew << Qt::RightToLeft << false;
    QTest::newRow("right-to-left in the other") << hebrew << Qt::LeftToRight << true;
}

void tst_Labels::alignmentFollowsTheLayout()
{
    QFETCH(QString, text);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, isAtLeft);
    WLabel plain(text);
    WEmojiLabel withImage(text + Grin);
    WLabel selectable(text);
    selectable.setTextInteractionFlags(Qt::TextSelectableByMouse);
    WLabel rich(text + QStringLiteral("<b>!</b>"));
    for (WLabel *label : {&plain, static_cast<WLabel *>(&withImage), &selectable, &rich}) {
        label->setLayoutDirection(direction);
        label->resize(200, 30);
        const QRect ink = inkOf(pictureOf(label));
        QVERIFY(!ink.isEmpty());
        QCOMPARE(ink.center().x() < 100, isAtLeft);
        QVERIFY(isAtLeft ? ink.left() < 10 : ink.right() > 190);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QCOMPARE(inkOf(pictureOf(label)).center().x() < 100, !isAtLeft);
        QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    }
}

void tst_Labels::wrapModes()
{
    WLabel label(QStringLiteral("Wordwithoutanyblankswhichistoolong"));
    label.setWordWrap(true);
    label.resize(60, 200);
    const int oneLine = label.heightForWidth(60);
    label.updateWrapMode(QTextOption::WrapAnywhere);
    const int lines = label.heightForWidth(60);
    QVERIFY(lines >= 3 * oneLine);
    const QRect ink = inkOf(pictureOf(&label));
    QVERIFY(ink.height() > 2 * oneLine && ink.right() < 60);
    // A wrapped text that is too high is elided in its last line.
    label.setElideMode(Qt::ElideRight);
    label.resize(60, oneLine * 2);
    QVERIFY(inkOf(pictureOf(&label)).height() <= 2 * oneLine);
}

void tst_Labels::pixmapColor()
{
    QPixmap picture(10, 10);
    picture.fill(Qt::transparent);
    QPainter(&picture).fillRect(0, 0, 5, 10, Qt::green);
    WLabel label;
    label.setPixmapColor(Qt::red);
    label.setPixmap(picture);
    const auto shown = [&label] {
        return label.pixmap(Qt::ReturnByValue).toImage();
    };
    QCOMPARE(shown().pixelColor(2, 5), QColor(Qt::red));
    QCOMPARE(shown().pixelColor(8, 5).alpha(), 0);
    label.setPixmapColor(Qt::blue);
    QCOMPARE(shown().pixelColor(2, 5), QColor(Qt::blue));
    label.setPixmapColor(QColor());
    QCOMPARE(shown().pixelColor(2, 5), QColor(Qt::green));
    label.setText(QStringLiteral("text"));
    label.setPixmapColor(Qt::red);
    QCOMPARE(label.text(), QStringLiteral("text"));
    label.setPixmap(picture);
    label.setText(QString());
    QVERIFY(shown().isNull());
}

void tst_Labels::emojiAreImages_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<Flags>("flags");
    QTest::addColumn<bool>("mirrors");
    QTest::addColumn<bool>("areImages");
    const QString line = QStringLiteral("Hi ") + Grin, lines = line + QStringLiteral("\nthere");
    const Flags no = Qt::NoTextInteraction;
    const Qt::Alignment top = Qt::AlignLeft | Qt::AlignTop, middle = Qt::AlignLeft | Qt::AlignVCenter,
                        centred = Qt::AlignHCenter | Qt::AlignTop;
    QTest::newRow("a line") << line << middle << no << false << true;
    QTest::newRow("links by mouse") << line << middle << Flags(Qt::LinksAccessibleByMouse) << false << true;
    QTest::newRow("selectable by mouse") << line << middle << Flags(Qt::TextSelectableByMouse) << false << false;
    QTest::newRow("selectable by key") << line << middle << Flags(Qt::TextSelectableByKeyboard) << false << false;
    QTest::newRow("lines") << lines << top << no << false << true;
    QTest::newRow("lines, other newline") << QString(lines).replace(u'\n', QChar(0x2028)) << top << no << false << true;
    QTest::newRow("lines, middle") << lines << middle << no << false << false;
    QTest::newRow("lines, centred") << lines << centred << no << false << false;
    QTest::newRow("mirrors") << line << middle << no << true << true;
    QTest::newRow("mirrors, centred") << line << centred << no << true << false;
    QTest::newRow("centred") << line << centred << no << false << true;
}

void tst_Labels::emojiAreImages()
{
    QFETCH(QString, text);
    QFETCH(Qt::Alignment, alignment);
    QFETCH(Flags, flags);
    QFETCH(bool, mirrors);
    QFETCH(bool, areImages);
    QWidget parent;
    WEmojiLabel label(text, &parent);
    label.setAlignment(alignment);
    label.setTextInteractionFlags(flags);
    label.setMirrorParentFocus(mirrors);
    label.resize(label.sizeHint());
    const QImage picture = pictureOf(&label);
    // The font's emoji may be in color, too: the image is exactly as high as a line, and is told by its own picture.
    const QImage emoji = EmojiPicker::EmojiResources::image(Grin, qRound(QFontMetricsF(label.font()).height()), 1);
    const QColor middle = emoji.pixelColor(emoji.width() / 2, 3);
    QVERIFY(!inkOf(picture).isEmpty());
    QCOMPARE(has(picture, middle), areImages);
    QCOMPARE(label.text(), text);
}

void tst_Labels::emojiTextIsNoMarkup()
{
    const QString text = QStringLiteral("%1 <b>a</b> &amp; <img src=':/emojis/1f600.svg'> <a href='x'>b</a>").arg(Grin);
    WEmojiLabel label(text);
    QCOMPARE(label.getElidedText(), text);
    // As wide as its letters: no tag has gone.
    QString letters = text;
    letters.remove(Grin);
    QVERIFY(label.sizeHint().width() > label.fontMetrics().horizontalAdvance(letters));

    WarningLog log;
    label.setTextFormat(Qt::RichText);
    QCOMPARE(log.take(), QStringList(QStringLiteral("WEmojiLabel::setTextFormat - The text is always plain")));
    label.setText(QStringLiteral("<b>plain</b>"));
    const int width = label.sizeHint().width();
    WLabel plain;
    plain.setTextFormat(Qt::PlainText);
    plain.setText(label.text());
    QCOMPARE(width, plain.sizeHint().width());
    // The property does not know better.
    label.setProperty("textFormat", int(Qt::RichText));
    QCOMPARE(label.sizeHint().width(), width);
    QCOMPARE(log.take(), QStringList());
}

void tst_Labels::emojiLineIsAsHighAsText()
{
    WEmojiLabel with(QStringLiteral("Hxg") + Grin), without(QStringLiteral("Hxg"));
    QCOMPARE(with.sizeHint().height(), without.sizeHint().height());
    QVERIFY(with.sizeHint().width() > without.sizeHint().width() + with.fontMetrics().height() - 3);
    // And the letters stand where they stand without.
    with.resize(with.sizeHint());
    without.resize(with.size());
    const QRect letters(0, 0, without.fontMetrics().horizontalAdvance(QStringLiteral("Hxg")) - 1, with.height());
    QCOMPARE(inkOf(pictureOf(&with).copy(letters)), inkOf(pictureOf(&without).copy(letters)));

    // Without any letter it is whole, too.
    WEmojiLabel alone(Grin);
    alone.resize(alone.sizeHint());
    QCOMPARE(alone.height(), without.height());
    const QRect emoji(letters.right() + 2, 0, with.width() - letters.right() - 2, with.height());
    QCOMPARE(inkOf(pictureOf(&alone)).height(), inkOf(pictureOf(&with).copy(emoji)).height());
}

void tst_Labels::emojiElision_data()
{
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("pattern");
    const QString row = Grin.repeated(20);
    const QString words = QStringLiteral("First %1 words of a line that is too long %1 and last").arg(Grin);
    QTest::newRow("right") << Qt::ElideRight << words << QStringLiteral("^First %1 .*\u2026$").arg(Grin);
    QTest::newRow("left") << Qt::ElideLeft << words << QStringLiteral("^\u2026.*%1 and last$").arg(Grin);
    QTest::newRow("middle") << Qt::ElideMiddle << words << QStringLiteral("^First.*\u2026.*last$");
    QTest::newRow("emoji, right") << Qt::ElideRight << row << QStringLiteral("^(%1)+\u2026$").arg(Grin);
    QTest::newRow("emoji, left") << Qt::ElideLeft << row << QStringLiteral("^\u2026(%1)+$").arg(Grin);
    QTest::newRow("emoji, middle") << Qt::ElideMiddle << row << QStringLiteral("^(%1)+\u2026(%1)+$").arg(Grin);
    QTest::newRow("lines") << Qt::ElideRight << QStringLiteral("%1 short\n").arg(Grin) + words
                           << QStringLiteral("^%1 short\nFirst %1.*\u2026$").arg(Grin);
}

void tst_Labels::emojiElision()
{
    QFETCH(Qt::TextElideMode, mode);
    QFETCH(QString, text);
    QFETCH(QString, pattern);
    WEmojiLabel label(text);
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label.setElideMode(mode);
    label.resize(150, 60);
    const QString shown = label.getElidedText();
    const QRegularExpression expected(pattern);
    const bool fits = expected.match(shown).hasMatch(); // clazy:exclude=use-static-qregularexpression
    QVERIFY2(fits, qPrintable(shown));
    const QRect ink = inkOf(pictureOf(&label));
    QVERIFY2(ink.right() < 149 && ink.right() > 100, qPrintable(QString::number(ink.right())));
    label.resize(label.sizeHint());
    QCOMPARE(label.getElidedText(), text);
    label.resize(3, 20);
    QCOMPARE(label.getElidedText().remove(u'\n'), QString());
}

void tst_Labels::emojiCopy()
{
    WEmojiLabel label(QStringLiteral("a < b %1").arg(Grin));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QTest::keySequence(&label, QKeySequence::Copy);
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(data->text(), label.text());
    QVERIFY(data->html().contains(QStringLiteral("a &lt; b <img")));
}

void tst_Labels::emojiPaddings_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("letters") << QStringLiteral("Hello");
    QTest::newRow("image") << QStringLiteral("Hello ") + Grin;
    QTest::newRow("right-to-left letters") << QStringLiteral("\u05e9\u05dc\u05d5\u05dd");
}

void tst_Labels::emojiPaddings()
{
    QFETCH(QString, text);
    WEmojiLabel label(text);
    const int bare = label.sizeHint().width();
    label.setTextLeftPadding(30);
    label.setTextRightPadding(10);
    QCOMPARE(label.sizeHint().width(), bare + 40);
    label.resize(label.sizeHint());
    const QRect ink = inkOf(pictureOf(&label));
    QVERIFY2(ink.left() >= 29 && ink.left() < 34, qPrintable(QString::number(ink.left())));
    QVERIFY(ink.right() < label.width() - 8);
    label.setLayoutDirection(Qt::RightToLeft);
    const QRect mirrored = inkOf(pictureOf(&label));
    QVERIFY2(mirrored.left() >= 9 && mirrored.left() < 14, qPrintable(QString::number(mirrored.left())));

    label.setElideMode(Qt::ElideRight);
    label.resize(bare + 20, 30);
    QVERIFY(label.getElidedText().endsWith(QChar(0x2026)));
    label.setLayoutDirection(Qt::LeftToRight);
    QVERIFY(inkOf(pictureOf(&label)).left() >= 29);
    QVERIFY(inkOf(pictureOf(&label)).right() < label.width() - 8);
}

void tst_Labels::emojiMirrorsFocus()
{
    QWidget window;
    QVBoxLayout layout(&window);
    QWidget row, other;
    layout.addWidget(&row);
    layout.addWidget(&other);
    row.setFocusPolicy(Qt::StrongFocus);
    other.setFocusPolicy(Qt::StrongFocus);
    WEmojiLabel label(QStringLiteral("mmm %1").arg(Grin), &row);
    label.setCSS(QStringLiteral("$textColors: my-text;"));
    label.resize(100, 30);
    window.show();
    window.activateWindow();
    other.setFocus();
    QTRY_VERIFY(other.hasFocus());
    const QColor normal(2, WColorSet::Normal, 0), focused(2, WColorSet::Focused, 0);
    QVERIFY(has(label.grab().toImage(), normal));
    label.setMirrorParentFocus(true);
    row.setFocus();
    QTRY_VERIFY(row.hasFocus());
    QVERIFY(has(label.grab().toImage(), focused));
    label.setMirrorParentFocus(false);
    QVERIFY(has(label.grab().toImage(), normal));
    label.setEnabled(false);
    QVERIFY(has(label.grab().toImage(), QColor(2, WColorSet::Disabled, 0)));
}

void tst_Labels::colorsOfStates()
{
    // What Qt draws, what is elided, what has images: all in the color of the state.
    WLabel plain(QStringLiteral("mmmm"));
    WLabel elided(QStringLiteral("mmmm mmmm mmmm mmmm mmmm mmmm"));
    elided.setElideMode(Qt::ElideRight);
    WEmojiLabel emoji(QStringLiteral("mmmm") + Grin);
    for (WLabel *label : {&plain, &elided, static_cast<WLabel *>(&emoji)}) {
        label->setCSS(QStringLiteral("$textColors: my-text;"));
        label->resize(100, 30);
        QVERIFY(has(label->grab().toImage(), QColor(2, WColorSet::Normal, 0)));
        label->setEnabled(false);
        QVERIFY(has(label->grab().toImage(), QColor(2, WColorSet::Disabled, 0)));
        label->setEnabled(true);
        qobject_cast<IWApplication *>(qApp)->setColorSets(spelledSets({"my-text"}, 77));
        QVERIFY(has(label->grab().toImage(), QColor(0, WColorSet::Normal, 77)));
        setSets(Qt::red);
    }
}

void tst_Labels::hugeTexts()
{
    const QString words = QStringLiteral("some words %1 ").arg(Grin).repeated(700000);
    const QString lines = QString(words).replace(u' ', u'\n');
    QVERIFY(words.size() > 9000000);
    for (const QString &text : {words, lines, QString(10000000, u'x')}) {
        QElapsedTimer timer;
        timer.start();
        WEmojiLabel emoji;
        WLabel plain;
        WLabel rich;
        rich.setTextFormat(Qt::RichText);
        for (WLabel *label : {static_cast<WLabel *>(&emoji), &plain, &rich}) {
            label->setAlignment(Qt::AlignTop);
            label->setText(text);
            label->setElideMode(Qt::ElideRight);
            label->resize(300, 100);
            label->sizeHint();
            pictureOf(label);
            label->setWordWrap(true);
            label->heightForWidth(300);
            pictureOf(label);
            QVERIFY(label->text() == text);
        }
        QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
        emoji.setTextInteractionFlags(Qt::TextSelectableByKeyboard);
        plain.setTextInteractionFlags(Qt::TextSelectableByKeyboard);
        QTest::keySequence(&plain, QKeySequence::Copy);
        QVERIFY(QGuiApplication::clipboard()->text() == text);
    }
}

void tst_Labels::iconHint()
{
    WSvgLabel label;
    label.setSvgIcon(QStringLiteral(":/Resources/info-filled_16.svg"));
    QSignalSpy size(&label, &WSvgLabel::svgIconSizeChanged);
    label.setSvgIconSize(QSize(20, 20));
    label.setSvgIconSize(QSize(20, 20));
    QCOMPARE(size.count(), 1);
    label.setSvgIconTopLeftPadding(QPoint(1, 2));
    label.setSvgIconBottomRightPadding(QPoint(3, 4));
    label.setTextLeftPadding(5);
    label.setTextRightPadding(6);
    const QLabel empty, text(QStringLiteral("text"));
    QCOMPARE(label.sizeHint(), empty.sizeHint() + QSize(24, 26));
    label.setText(QStringLiteral("text"));
    WLabel plain(QStringLiteral("text"));
    QCOMPARE(label.sizeHint(), plain.sizeHint() + QSize(24 + 11, 26));
    label.setSvgIconVisible(false);
    QCOMPARE(label.sizeHint(), plain.sizeHint() + QSize(11, 0));

    // An elided text keeps off the icon and the edge.
    label.setSvgIconVisible(true);
    label.setElideMode(Qt::ElideRight);
    label.setText(QStringLiteral("much too long for so little room"));
    label.resize(120, 30);
    QVERIFY(label.minimumSizeHint().width() < 120);
    const QImage elided = pictureOf(&label);
    label.setText(label.fontMetrics().elidedText(label.text(), Qt::ElideRight, 120 - 24 - 11));
    label.setElideMode(Qt::ElideNone);
    QVERIFY(pictureOf(&label) == elided);
}

void tst_Labels::iconPlaces_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<WEnum::Alignment>("icon");
    QTest::addColumn<bool>("isSelectable");
    QTest::addColumn<bool>("isIconAtLeft");
    using A = WEnum::Alignment;
    for (const bool isSelectable : {false, true}) {
        const char *suffix = isSelectable ? "selectable" : "plain";
        QTest::addRow("left, %s", suffix) << Qt::LeftToRight << A::Left << isSelectable << true;
        QTest::addRow("right, %s", suffix) << Qt::LeftToRight << A::Right << isSelectable << false;
        QTest::addRow("left, mirrored, %s", suffix) << Qt::RightToLeft << A::Left << isSelectable << false;
        QTest::addRow("right, mirrored, %s", suffix) << Qt::RightToLeft << A::Right << isSelectable << true;
    }
}

void tst_Labels::iconPlaces()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(WEnum::Alignment, icon);
    QFETCH(bool, isSelectable);
    QFETCH(bool, isIconAtLeft);
    WSvgLabel label(direction == Qt::LeftToRight ? QStringLiteral("words")
                                                 : QStringLiteral("\u05e9\u05dc\u05d5\u05dd"));
    label.setSvgIcon(QStringLiteral(":/Resources/info-filled_16.svg"));
    label.setSvgIconColorSet(QStringLiteral("icon"));
    label.setLayoutDirection(direction);
    label.setSvgIconAlignment(icon);
    if (isSelectable)
        label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.resize(label.sizeHint());
    const QImage picture = pictureOf(&label);
    QRegion reds, others;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            if (color == QColor(Qt::red))
                reds += QRect(x, y, 1, 1);
            else if (color.value() < 120)
                others += QRect(x, y, 1, 1);
        }
    }
    QVERIFY(!reds.isEmpty() && !others.isEmpty());
    if (isIconAtLeft)
        QVERIFY(reds.boundingRect().right() + 4 < others.boundingRect().left());
    else
        QVERIFY(others.boundingRect().right() + 4 < reds.boundingRect().left());
}

void tst_Labels::iconColors()
{
    WSvgLabel label(QStringLiteral("text"));
    label.setSvgIcon(QStringLiteral(":/Resources/info-filled_16.svg"));
    QSignalSpy spy(&label, &WSvgLabel::svgIconColorSetChanged);
    label.setSvgIconColorSet(QStringLiteral("icon"));
    QCOMPARE(spy.value(0).value(0).value<WColorSet>().normal(), QColor(Qt::red));
    QVERIFY(has(pictureOf(&label), Qt::red));
    label.setEnabled(false);
    QVERIFY(has(pictureOf(&label), Qt::blue));
    label.setEnabled(true);
    qobject_cast<IWApplication *>(qApp)->setColorSets({{"icon", plainSet("icon", Qt::green)}});
    QVERIFY(has(pictureOf(&label), Qt::green));
    // One that is not there is reported when it is named, not whenever it is painted.
    WarningLog log;
    label.setSvgIconColorSet(QStringLiteral("nowhere"));
    pictureOf(&label);
    QCOMPARE(log.take().size(), 1);
}

void tst_Labels::badInput_data()
{
    QTest::addColumn<LabelAct>("act");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const LabelAct &act) {
        QTest::newRow(name) << act << QString::fromLatin1(name);
    };
    row("WLabel::setElideMode - Invalid elide mode: 9",
        [](WEmojiLabel *l, WSvgLabel *) { l->setElideMode(Qt::TextElideMode(9)); });
    row("WEmojiLabel::setElidePadding - Invalid padding: -1",
        [](WEmojiLabel *l, WSvgLabel *) { l->setElidePadding(-1); });
    row("WLabel::updateWrapMode - Invalid wrap mode: 9",
        [](WEmojiLabel *l, WSvgLabel *) { l->updateWrapMode(QTextOption::WrapMode(9)); });
    row("WEmojiLabel::setTextLeftPadding - Invalid padding: -2",
        [](WEmojiLabel *l, WSvgLabel *) { l->setTextLeftPadding(-2); });
    row("WEmojiLabel::setTextRightPadding - Invalid padding: -2",
        [](WEmojiLabel *l, WSvgLabel *) { l->setTextRightPadding(-2); });
    row("WSvgLabel::setSvgIconSize - Invalid size: QSize(-1, 3)",
        [](WEmojiLabel *, WSvgLabel *l) { l->setSvgIconSize(QSize(-1, 3)); });
    row("WSvgLabel::setSvgIconBottomRightPadding - Invalid padding: 2147483647",
        [](WEmojiLabel *, WSvgLabel *l) { l->setSvgIconBottomRightPadding(QPoint(INT_MAX, 0)); });
    row("WSvgLabel::setTextLeftPadding - Invalid padding: -3",
        [](WEmojiLabel *, WSvgLabel *l) { l->setTextLeftPadding(-3); });
    row("WSvgLabel::setSvgIconAlignment - Invalid alignment: 7",
        [](WEmojiLabel *, WSvgLabel *l) { l->setSvgIconAlignment(WEnum::Alignment(7)); });
    row("Unable to load SVG file: :/none.svg",
        [](WEmojiLabel *, WSvgLabel *l) { l->setSvgIcon(QStringLiteral(":/none.svg")); });
}

void tst_Labels::badInput()
{
    QFETCH(LabelAct, act);
    QFETCH(QString, message);
    WEmojiLabel emoji(QStringLiteral("text"));
    WSvgLabel svg(QStringLiteral("text"));
    const QSize before = emoji.sizeHint(), beforeSvg = svg.sizeHint();
    WarningLog log;
    act(&emoji, &svg);
    QStringList messages = log.take();
    for (QString &logged : messages)
        logged = logged.remove(QLatin1Char('"'));
    QCOMPARE(messages, QStringList(message));
    QCOMPARE(emoji.sizeHint(), before);
    QCOMPARE(svg.sizeHint(), beforeSvg);
}

W_TEST_MAIN(tst_Labels)
#include "tst_labels.moc"
