#include "support/Colors.h"
#include "support/ThemedClasses.h"
#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <QBoxLayout>
#include <QLabel>
#include <QProxyStyle>

// The property "styleSheet" answers the template, and yet Qt's style engine, which reads the same property, finds the
// expanded text: in every situation in which it reads, for every class, seen by the pixels.
class tst_StyleSheetProperty : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void lookAndTemplate_data();
    void lookAndTemplate();
    void childrenAskFirst();
    void translucentBoxes_data() { addThemedClasses(); }
    void translucentBoxes();
    void shownState_data();
    void shownState();
};

enum Situation {
    SetBeforeShow,
    SetAfterShow,
    Reparented,
    AncestorSheetLater,
    ApplicationSheetLater,
    ApplicationStyleReplaced,
    ChildSizeHintBeforeShow,
    HiddenAndShown,
    ForeignUnpolishAndPolish,
    ForeignSheet,
    LayoutAsksBeforeShow,
    EmptiedThenAncestorSheet,
};

static const char *const situations[] {
    "set before show",
    "set after show",
    "re-parented",
    "ancestor gets a sheet later",
    "application gets a sheet later",
    "application style replaced",
    "child asked for its size hint before show",
    "hidden and shown",
    "unpolished and polished from outside",
    "sheet set from outside",
    "layout asks before show",
    "emptied, then ancestor gets a sheet",
};

static const QString css =
    QStringLiteral("#target { background-color: $(ground.normal); border: none; } "
                   "#target QAbstractScrollArea > QWidget { background-color: $(ground.normal); }");

// How much of the widget has exactly that color.
static double share(QWidget *widget, const QColor &color)
{
    QCoreApplication::processEvents();
    const QImage image = widget->grab().toImage();
    int hits = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            hits += image.pixelColor(x, y) == color;
    }
    return double(hits) / (image.width() * image.height());
}

void tst_StyleSheetProperty::init()
{
    WApplication::find()->setColorSets({{"ground", plainSet("ground", Qt::green)}});
    WApplication::find()->setInvertedColorSets({{"ground", plainSet("ground", Qt::blue)}});
}

void tst_StyleSheetProperty::cleanup()
{
    qApp->setStyleSheet(QString());
    QApplication::setStyle(QStringLiteral("Fusion"));
}

void tst_StyleSheetProperty::lookAndTemplate_data()
{
    QTest::addColumn<MakeWidget>("make");
    QTest::addColumn<int>("situation");
    forEachThemedClass([](const char *name, const MakeWidget &make) {
        for (int i = SetBeforeShow; i <= EmptiedThenAncestorSheet; ++i)
            QTest::addRow("%s, %s", name, situations[i]) << make << i;
    });
}

void tst_StyleSheetProperty::lookAndTemplate()
{
    QFETCH(MakeWidget, make);
    QFETCH(int, situation);
    WarningLog log;
    QWidget window, other;
    auto *box = new QWidget(&window);
    (new QVBoxLayout(&window))->addWidget(box);
    auto *boxLayout = new QVBoxLayout(box);
    auto *otherLayout = new QVBoxLayout(&other);
    QWidget *widget = make(box);
    widget->setObjectName(QStringLiteral("target"));
    widget->setParent(box, Qt::Widget);
    boxLayout->addWidget(widget);
    widget->show();
    window.resize(300, 200);

    if (situation != SetAfterShow)
        widget->setProperty("styleSheet", css);
    if (situation == ChildSizeHintBeforeShow)
        (new QLabel(QStringLiteral("inner"), widget))->sizeHint();
    if (situation == LayoutAsksBeforeShow && !widget->layout())
        (new QVBoxLayout(widget))->contentsMargins();
    if (situation != SetAfterShow)
        QCOMPARE(widget->property("styleSheet").toString(), css);
    window.show();
    QCoreApplication::processEvents();
    switch (situation) {
    case SetAfterShow: widget->setProperty("styleSheet", css); break;
    case Reparented:
        other.resize(300, 200);
        other.show();
        otherLayout->addWidget(widget);
        widget->show();
        break;
    case AncestorSheetLater: box->setStyleSheet(QStringLiteral("QLabel { color: red }")); break;
    case ApplicationSheetLater: qApp->setStyleSheet(QStringLiteral("QLabel { color: blue }")); break;
    case ApplicationStyleReplaced: QApplication::setStyle(QStringLiteral("Windows")); break;
    case HiddenAndShown:
        widget->hide();
        widget->show();
        break;
    case ForeignUnpolishAndPolish:
        widget->style()->unpolish(widget);
        widget->style()->polish(widget);
        break;
    case ForeignSheet: widget->setStyleSheet(widget->styleSheet() + QLatin1Char(' ')); break;
    case EmptiedThenAncestorSheet:
        widget->setProperty("styleSheet", QString()); // keeps the look
        box->setStyleSheet(QStringLiteral("QLabel { color: red }"));
        QVERIFY(share(widget, Qt::green) > 0.3);
        QCOMPARE(ThemeSupport::of(widget)->css(), QString());
        widget->setProperty("styleSheet", css);
        break;
    default: break;
    }
    QVERIFY2(share(widget, Qt::green) > 0.3, qPrintable(QString::number(share(widget, Qt::green))));
    QCOMPARE(widget->property("styleSheet").toString(), css);

    ThemeSupport::of(widget)->setThemeType(QStringLiteral("inverted"));
    QVERIFY(share(widget, Qt::blue) > 0.3);
    QCOMPARE(share(widget, Qt::green), 0.0); // nothing of the old theme is left
    QCOMPARE(widget->property("styleSheet").toString(), css);
    QCOMPARE(log.take(), QStringList());
}

// Themed widgets inside each other have style objects of their own; the engine, at work for the inner one, reads the
// property of the outer, which it has not seen yet.
void tst_StyleSheetProperty::childrenAskFirst()
{
    WarningLog log;
    WFrame outer;
    outer.setObjectName(QStringLiteral("target"));
    auto *layout = new QVBoxLayout(&outer);
    layout->setContentsMargins(20, 20, 20, 20);
    auto *inner = new WRadioButton(QStringLiteral("inner"), &outer);
    layout->addWidget(inner);
    inner->setCSS(QStringLiteral("WRadioButton { background-color: $(ground.normal); }"));
    outer.setCSS(css);
    inner->sizeHint();
    inner->style()->unpolish(inner);
    inner->ensurePolished();
    outer.resize(200, 100);
    outer.show();
    QVERIFY(share(&outer, Qt::green) > 0.8);
    // The style of a plain child with a sheet is at work, refuses every other, and looks for the sheet of its parent.
    WFrame parent;
    parent.setObjectName(QStringLiteral("target"));
    parent.setCSS(css);
    auto *plain = new QLabel(QStringLiteral("plain"), &parent);
    plain->setStyleSheet(QStringLiteral("QLabel { color: red }"));
    plain->sizeHint();
    parent.resize(200, 100);
    parent.show();
    QVERIFY(share(&parent, Qt::green) > 0.5);
    QVERIFY(share(&outer, Qt::green) > 0.8);
    QApplication::setStyle(QStringLiteral("Windows"));
    qApp->setStyleSheet(QStringLiteral("QLabel { color: blue }"));
    outer.setFont(QFont(QStringLiteral("Consolas"), 20));
    QVERIFY(share(&outer, Qt::green) > 0.8);
    QCOMPARE(outer.property("styleSheet").toString(), css);
    QCOMPARE(log.take(), QStringList());
}

// Drawn by the style and once more as the widget's background, a translucent color would be twice as strong.
void tst_StyleSheetProperty::translucentBoxes()
{
    QFETCH(MakeWidget, make);
    WApplication::find()->setColorSets({{"ground", plainSet("ground", QColor(255, 0, 0, 128))}});
    QWidget window;
    window.setStyleSheet(QStringLiteral("QWidget { background-color: white; }"));
    QWidget *widget = make(&window);
    widget->setParent(&window, Qt::Widget);
    widget->setProperty("styleSheet", QStringLiteral("$backgroundColors: ground; $borders: none;"));
    widget->setGeometry(20, 20, 160, 60);
    window.resize(200, 100);
    window.show();
    const QImage image = window.grab().toImage();
    QHash<QRgb, int> shares;
    for (int y = 21; y < 79; ++y) {
        for (int x = 21; x < 179; ++x)
            ++shares[image.pixel(x, y)];
    }
    const int once = shares.value(qRgb(255, 127, 127)) + shares.value(qRgb(255, 126, 126));
    QVERIFY2(once > 3000,
             qPrintable(QStringLiteral("%1, in the middle %2").arg(once).arg(image.pixelColor(100, 50).name())));
}

void tst_StyleSheetProperty::shownState_data()
{
    QTest::addColumn<bool>("focusDiffers");
    QTest::newRow("focused has a color of its own") << true;
    QTest::newRow("focused looks as normal") << false;
}

// Every combination of states shows the color of the state that an icon beside it would choose.
void tst_StyleSheetProperty::shownState()
{
    QFETCH(bool, focusDiffers);
    WColorSet set(QStringLiteral("ground"));
    for (int state = 0; state < WColorSet::StateCount; ++state)
        set.setColor(WColorSet::State(state), QColor(200, 10 + 20 * state, 0));
    if (!focusDiffers)
        set.setColor(WColorSet::Focused, set.normal());
    WApplication::find()->setColorSets({{"ground", set}});

    QWidget window;
    WRadioButton button(&window);
    WRadioButton elsewhere(&window);
    button.setAutoExclusive(false);
    button.setCSS(QStringLiteral("$backgroundColors: ground; $borders: none;"));
    button.resize(100, 40);
    window.resize(200, 100);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    for (int bits = 0; bits < 32; ++bits) {
        const bool checked = bits & 1, focused = bits & 2, hovered = bits & 4, pressed = bits & 8, disabled = bits & 16;
        button.setEnabled(true);
        button.setChecked(checked);
        (focused ? button : elsewhere).setFocus();
        button.setAttribute(Qt::WA_UnderMouse, hovered);
        button.setDown(pressed);
        button.setEnabled(!disabled);
        const WColorSet::State expected = disabled ? WColorSet::Disabled
            : pressed                              ? WColorSet::Pressed
            : hovered                              ? WColorSet::Hovered
            : focused && focusDiffers              ? WColorSet::Focused
            : checked                              ? WColorSet::Checked
                                                   : WColorSet::Normal;
        const QColor shown = button.grab().toImage().pixelColor(95, 3);
        QVERIFY2(shown == set.color(expected), qPrintable(QStringLiteral("%1: %2").arg(bits, 5, 2).arg(shown.green())));
    }
}

W_TEST_MAIN(tst_StyleSheetProperty)
#include "tst_style_sheet_property.moc"
