#include "support/Colors.h"
#include "support/ThemedClasses.h"
#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QAccessible>
#include <QBoxLayout>
#include <QScrollArea>

// What every themeable class must do; the rows are the classes, so a line forgotten in one of them is found.
class tst_ThemedWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void styleTemplate_data() { addThemedClasses(); }
    void styleTemplate();
    void themeType_data() { addThemedClasses(); }
    void themeType();
    void themeTypeThroughPlainWidgets_data() { addThemedClasses(); }
    void themeTypeThroughPlainWidgets();
    void reparenting_data() { addThemedClasses(); }
    void reparenting();
    void fonts_data() { addThemedClasses(); }
    void fonts();
    void margins_data() { addThemedClasses(); }
    void margins();
    void accessibility_data() { addThemedClasses(); }
    void accessibility();
    void accessibleInterfacesOfQtRemain();
    void metaObject_data();
    void metaObject();
    void focusProperties();
    void subclassesAnswerThemeChanges();
    void slotsThatChangeThings();
};

static const QString cssOne = QStringLiteral("* { color: $(a.normal); }");

static QString sheetOf(const QWidget *widget)
{
    return widget->styleSheet();
}

// "a" in the sheet: QColor(0, state, blue).
static QString colorOf(const QWidget *widget)
{
    return sheetOf(widget).section(QLatin1Char('#'), -1).left(8);
}

void tst_ThemedWidgets::init()
{
    auto *app = WApplication::find();
    app->setIsDarkTheme(false);
    app->setColorSets(spelledSets({"a", "b"}, 1));
    app->setInvertedColorSets(spelledSets({"a", "b"}, 2));
    app->setFontScaleFactor(1);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_ThemedWidgets::styleTemplate()
{
    QFETCH(MakeWidget, make);
    QScopedPointer<QWidget> widget(make(nullptr));
    QSignalSpy css(widget.data(), SIGNAL(cssChanged()));
    QVERIFY(css.isValid());
    QCOMPARE(widget->property("themeType").toString(), QStringLiteral("global"));
    QVERIFY(!widget->testAttribute(Qt::WA_StyledBackground) || qobject_cast<QMenu *>(widget.data()));

    const QString directive = QStringLiteral("$textColors: b;");
    QVERIFY(widget->setProperty("styleSheet", directive));
    QCOMPARE(css.count(), 1);
    QVERIFY(widget->testAttribute(Qt::WA_StyledBackground));
    const QString className = QString::fromLatin1(widget->metaObject()->className());
    QVERIFY2(sheetOf(widget.data()).startsWith(className + QStringLiteral("{color:#ff010001;} ")),
             qPrintable(sheetOf(widget.data())));

    widget->setObjectName(QStringLiteral("x"));
    QCOMPARE(css.count(), 2);
    QVERIFY(sheetOf(widget.data()).startsWith(QStringLiteral("#x{color:#ff010001;} ")));

    WApplication::find()->setColorSets(spelledSets({"a", "b"}, 7));
    QCOMPARE(css.count(), 3);
    QVERIFY(sheetOf(widget.data()).startsWith(QStringLiteral("#x{color:#ff010007;} ")));
    // Announced again although nothing is different.
    WApplication::find()->setInvertedColorSets(spelledSets({"a", "b"}, 8));
    QCOMPARE(css.count(), 4);
    QVERIFY(QMetaObject::invokeMethod(widget.data(), "onThemeChanged"));
    QCOMPARE(css.count(), 5);

    // An expansion to nothing leaves the look and says nothing.
    const QString before = sheetOf(widget.data());
    QVERIFY(widget->setProperty("styleSheet", QString()));
    QCOMPARE(css.count(), 5);
    QCOMPARE(sheetOf(widget.data()), before);
    QCOMPARE(ThemeSupport::of(widget.data())->css(), QString());
}

void tst_ThemedWidgets::themeType()
{
    QFETCH(MakeWidget, make);
    WFrame window;
    WFrame parent(&window);
    QWidget *widget = make(&parent);
    widget->setParent(&parent, Qt::Widget); // dialogs, main windows and menus are windows of their own otherwise
    widget->setProperty("styleSheet", cssOne);
    QSignalSpy css(widget, SIGNAL(cssChanged()));
    QSignalSpy type(widget, SIGNAL(themeTypeChanged()));

    window.setThemeType(QStringLiteral("dark")); // announced level by level
    QCOMPARE(css.count(), 1);
    QCOMPARE(type.count(), 1);
    QCOMPARE(colorOf(widget), QStringLiteral("ff000002"));
    QCOMPARE(widget->property("themeType").toString(), QStringLiteral("global"));

    widget->setProperty("themeType", QStringLiteral("light"));
    QCOMPARE(css.count(), 2);
    QCOMPARE(type.count(), 2);
    QCOMPARE(colorOf(widget), QStringLiteral("ff000001"));
    widget->setProperty("themeType", QStringLiteral("light"));
    QCOMPARE(type.count(), 2);

    WarningLog log;
    widget->setProperty("themeType", QStringLiteral("Dark"));
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(widget->property("themeType").toString(), QStringLiteral("global"));
    QCOMPARE(colorOf(widget), QStringLiteral("ff000002"));

    // The registries change their meaning with the application's theme, and high contrast knows only one.
    WApplication::find()->setIsDarkTheme(true);
    QCOMPARE(colorOf(widget), QStringLiteral("ff000001"));
    WApplication::find()->setIsDarkTheme(false);
    QCOMPARE(colorOf(widget), QStringLiteral("ff000002"));
    WApplication::find()->setIsHighContrastTheme(true);
    QCOMPARE(colorOf(widget), QStringLiteral("ff000001"));
    WApplication::find()->setIsHighContrastTheme(false);
    QCOMPARE(colorOf(widget), QStringLiteral("ff000002"));
}

void tst_ThemedWidgets::themeTypeThroughPlainWidgets()
{
    QFETCH(MakeWidget, make);
    WFrame window;
    QWidget *plain = new QWidget(&window);
    QWidget *widget = make(plain);
    widget->setParent(plain, Qt::Widget);
    widget->setProperty("styleSheet", cssOne);
    auto *below = new WFrame(widget);
    below->setCSS(cssOne);
    QSignalSpy css(widget, SIGNAL(cssChanged()));
    QSignalSpy cssBelow(below, &WFrame::cssChanged);
    window.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(css.count(), 1);
    QCOMPARE(colorOf(widget), QStringLiteral("ff000002"));
    QCOMPARE(cssBelow.count(), 1);
    QCOMPARE(colorOf(below), QStringLiteral("ff000002"));
}

void tst_ThemedWidgets::reparenting()
{
    QFETCH(MakeWidget, make);
    WFrame light, dark, plainWindow;
    dark.setThemeType(QStringLiteral("dark"));
    QWidget *widget = make(&light);
    widget->setParent(&light, Qt::Widget);
    widget->setProperty("styleSheet", cssOne);
    QCOMPARE(colorOf(widget), QStringLiteral("ff000001"));
    widget->setParent(&dark, Qt::Widget);
    QCOMPARE(colorOf(widget), QStringLiteral("ff000002"));

    QSignalSpy css(widget, SIGNAL(cssChanged()));
    light.setThemeType(QStringLiteral("inverted")); // no parent of it any more
    QCOMPARE(css.count(), 0);
    dark.setThemeType(QStringLiteral("light"));
    QCOMPARE(css.count(), 1);
    QCOMPARE(colorOf(widget), QStringLiteral("ff000001"));

    // Without a template there is nothing to expand, but somebody below or an icon may depend on it.
    widget->setParent(nullptr);
    QWidget *bare = make(&dark);
    bare->setParent(&dark, Qt::Widget);
    QSignalSpy bareType(bare, SIGNAL(themeTypeChanged()));
    bare->setParent(&plainWindow, Qt::Widget);
    QCOMPARE(bareType.count(), 1);

    // Moved inside something plain, of which it is told nothing, it is right when it is seen.
    auto *plain = new QWidget(&plainWindow);
    widget->setParent(plain, Qt::Widget);
    QCOMPARE(colorOf(widget), QStringLiteral("ff000001"));
    light.show();
    plain->setParent(&light);
    plain->show();
    widget->show();
    QCOMPARE(colorOf(widget), QStringLiteral("ff000002"));
}

void tst_ThemedWidgets::fonts()
{
    QFETCH(MakeWidget, make);
    QScopedPointer<QWidget> widget(make(nullptr));
    const auto font = [&widget] {
        const QFont f = widget->font();
        return QStringLiteral("%1 %2%3")
            .arg(f.pixelSize())
            .arg(f.weight())
            .arg(f.underline() ? QLatin1String(" u") : QLatin1String());
    };
    QCOMPARE(font(), QStringLiteral("16 50"));
    QVERIFY(widget->setProperty("fontToken", QVariant::fromValue(WFont::HyperlinkSecondary)));
    QCOMPARE(font(), QStringLiteral("14 50 u"));
    QVERIFY(widget->setProperty("fontToken", QVariant::fromValue(WFont::Title)));
    QCOMPARE(font(), QStringLiteral("20 63"));
    WApplication::find()->setFontScaleFactor(1.5f);
    QCOMPARE(font(), QStringLiteral("30 63"));
    WApplication::find()->setFontScaleFactor(1.0f);

    WFontManager *manager = WFontManager::get();
    QVERIFY(widget->setProperty("fontType", QVariant::fromValue(FontManagerEnum::MessagingView)));
    manager->setScalingFactor(FontManagerEnum::MessagingView, FontManagerEnum::Large);
    QCOMPARE(font(), QStringLiteral("25 63"));
    QVERIFY(widget->setProperty("fontType", QVariant::fromValue(FontManagerEnum::MeetingView)));
    QCOMPARE(font(), QStringLiteral("20 63"));
    manager->setScalingFactor(FontManagerEnum::MessagingView, FontManagerEnum::Small); // not followed any more
    QCOMPARE(font(), QStringLiteral("20 63"));
    manager->setScalingFactor(FontManagerEnum::MessagingView, FontManagerEnum::Regular);

    WarningLog log;
    ThemeSupport::of(widget.data())->setFontToken(WFont::Token(21));
    QCOMPARE(log.take(), QStringList(QStringLiteral("Invalid font token! This should never happen!")));
    QCOMPARE(font(), QStringLiteral("20 63"));
}

void tst_ThemedWidgets::margins()
{
    QFETCH(MakeWidget, make);
    QScopedPointer<QWidget> widget(make(nullptr));
    ThemeSupport *theme = ThemeSupport::of(widget.data());
    QVERIFY(theme);
    if (!widget->layout())
        theme->setLayoutContentsMargins({1, 2, 3, 4}); // nothing, and nothing kept for later
    auto *layout = widget->layout() ? widget->layout() : new QHBoxLayout(widget.data());
    const QMargins own = layout->contentsMargins();
    theme->setContentsMargins({1, 2, 3, 4});
    QCOMPARE(widget->contentsMargins(), QMargins(1, 2, 3, 4));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(widget->contentsMargins(), QMargins(3, 2, 1, 4));
    QCOMPARE(layout->contentsMargins(), own);
    theme->setLayoutContentsMargins({5, 6, 7, 8});
    QCOMPARE(layout->contentsMargins(), QMargins(7, 6, 5, 8));
    widget->setLayoutDirection(Qt::LeftToRight); // its own, against the application's
    QCOMPARE(widget->contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(layout->contentsMargins(), QMargins(5, 6, 7, 8));
    widget->unsetLayoutDirection();
    widget->setProperty("styleSheet", QStringLiteral("* { border: 5px solid $(a.normal); }"));
    widget->ensurePolished();
    WApplication::find()->setColorSets(spelledSets({"a"}, 5)); // frames take the width of their border as margins
    QCOMPARE(widget->contentsMargins(), QMargins(3, 2, 1, 4));
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QVERIFY(QMetaObject::invokeMethod(widget.data(), "onLayoutDirectionChanged"));
    QCOMPARE(widget->contentsMargins(), QMargins(1, 2, 3, 4));
}

void tst_ThemedWidgets::accessibility()
{
    QFETCH(MakeWidget, make);
    QScopedPointer<QWidget> widget(make(nullptr));
    widget->setAccessibleName(QStringLiteral("name"));
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget.data());
    QVERIFY(interface && interface->isValid());
    const QAccessible::Role qtRole = interface->role();
    QVERIFY(qtRole != QAccessible::NoRole);
    QVERIFY(widget->setProperty("accessibleRole", QVariant::fromValue(QAccessible::Notification)));
    QVERIFY(widget->setProperty("elementUniqueId", QStringLiteral("call.mute")));
    interface = QAccessible::queryAccessibleInterface(widget.data());
    QCOMPARE(interface->role(), QAccessible::Notification);
    QCOMPARE(interface->text(ThemeSupport::ElementUniqueIdText), QStringLiteral("call.mute"));
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("name"));
    QVERIFY(widget->setProperty("accessibleRole", QVariant::fromValue(QAccessible::NoRole)));
    QCOMPARE(interface->role(), qtRole);
}

void tst_ThemedWidgets::accessibleInterfacesOfQtRemain()
{
    WSlider slider(Qt::Horizontal);
    slider.setRange(0, 10);
    slider.setValue(4);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&slider);
    QVERIFY(interface->valueInterface());
    QCOMPARE(interface->valueInterface()->currentValue().toInt(), 4);
    interface->valueInterface()->setCurrentValue(7);
    QCOMPARE(slider.value(), 7);

    WTextEdit edit;
    edit.setPlainText(QStringLiteral("hello"));
    interface = QAccessible::queryAccessibleInterface(&edit);
    QVERIFY(interface->textInterface());
    QCOMPARE(interface->textInterface()->characterCount(), 5);

    WFrame window;
    auto *list = new WListWidget(&window);
    list->addItems({QStringLiteral("one"), QStringLiteral("two")});
    interface = QAccessible::queryAccessibleInterface(list);
    QVERIFY(interface->tableInterface());
    QCOMPARE(interface->tableInterface()->rowCount(), 2);
    QAccessibleInterface *cell = interface->tableInterface()->cellAt(1, 0);
    QCOMPARE(cell->text(QAccessible::Name), QStringLiteral("two"));
    QCOMPARE(cell->parent(), interface);
    QAccessibleInterface *parent = QAccessible::queryAccessibleInterface(&window);
    QCOMPARE(interface->parent(), parent);
    QCOMPARE(parent->child(parent->indexOfChild(interface)), interface);
    delete list->takeItem(0); // the interface is told of its rows
    QCOMPARE(interface->tableInterface()->rowCount(), 1);
    delete list;
    QCOMPARE(parent->childCount(), 0);
}

void tst_ThemedWidgets::metaObject_data()
{
    QTest::addColumn<MakeWidget>("make");
    QTest::addColumn<QString>("expected");
    const QString usual = QStringLiteral(
        "cssChanged() themeTypeChanged() | refreshCSS() onThemeChanged() onParentThemeTypeChanged() "
        "onLayoutDirectionChanged() | styleSheet themeType elementUniqueId accessibleRole font fontToken fontType");
    const QHash<QByteArray, QString> others {
        {"WDialog",
         QString(usual).replace(QLatin1String("themeTypeChanged() |"),
                                QLatin1String("themeTypeChanged() onClose() |"))},
        {"WListWidget",
         QString(usual).replace(QLatin1String("themeTypeChanged() |"),
                                QLatin1String("themeTypeChanged() updateItemWidget(QListWidgetItem*) updateItemSize() "
                                              "visibleUpdated() keyPressed(QKeyEvent*) |"))},
        {"WSlider",
         QString(usual).replace(QLatin1String("onThemeChanged() onParentThemeTypeChanged()"),
                                QLatin1String("onParentThemeTypeChanged() onThemeChanged()"))},
        {"WProgressBar",
         QString(usual)
             .replace(QLatin1String("refreshCSS() "), QString())
             .replace(QLatin1String("styleSheet themeType"),
                      QLatin1String("styleSheet barWidth barHeight idleBarHeight themeType"))},
    };
    forEachThemedClass(
        [&](const char *name, const MakeWidget &make) { QTest::newRow(name) << make << others.value(name, usual); });
}

void tst_ThemedWidgets::metaObject()
{
    QFETCH(MakeWidget, make);
    QFETCH(QString, expected);
    QScopedPointer<QWidget> widget(make(nullptr));
    const QMetaObject *meta = widget->metaObject();
    QStringList signalNames, slotNames, properties;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        (method.methodType() == QMetaMethod::Signal ? signalNames : slotNames)
            << QString::fromLatin1(method.methodSignature());
    }
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        properties << QString::fromLatin1(meta->property(i).name());
        QVERIFY(meta->property(i).isWritable());
    }
    const QString blank(QLatin1Char(' '));
    QCOMPARE(QStringList({signalNames.join(blank), slotNames.join(blank), properties.join(blank)})
                 .join(QStringLiteral(" | ")),
             expected);
    // Designer and forms set the enumerations by name.
    QVERIFY(meta->property(meta->indexOfProperty("fontToken")).isEnumType());
    QVERIFY(widget->setProperty("fontToken", QStringLiteral("BannerPrimary")));
    QCOMPARE(widget->property("fontToken").value<WFont::Token>(), WFont::BannerPrimary);
}

void tst_ThemedWidgets::focusProperties()
{
    WFrame frame;
    frame.setCSS(QStringLiteral("$borderRadius: 8 top focus;"));
    QCOMPARE(frame.property("focusBorderRadius"), QVariant(8));
    QCOMPARE(frame.property("rectangularCornerMask"),
             QVariant(WCSSData::BottomLeftCorner | WCSSData::BottomRightCorner));
    frame.setCSS(QStringLiteral("$borderRadius: 8;"));
    QVERIFY(!frame.property("focusBorderRadius").isValid());

    for (const char *name : {"a\"b", "a\\b", "two\nlines", "1.5", "#x{}", "::y"}) {
        WarningLog log;
        WFrame odd;
        odd.setObjectName(QString::fromLatin1(name));
        odd.setCSS(QStringLiteral("$backgroundColors: b;"));
        odd.ensurePolished();
        QCOMPARE(odd.palette().color(QPalette::Window), QColor(1, 0, 1));
        QCOMPARE(log.take(), QStringList());
    }
    QWidget plain;
    plain.setObjectName(QStringLiteral("not a \u00e9 selector"));
    const WCSSData data = WThemeUtils::parseCSS(&plain, QStringLiteral("$borderRadius: 3 focus; $textColors: a;"),
                                                WThemeUtils::getAppWColorSets());
    QCOMPARE(plain.property("focusBorderRadius"), QVariant(3));
    // Qt must be able to read what addresses a name with blanks.
    plain.setStyleSheet(data.styleSheet);
    plain.ensurePolished();
    QCOMPARE(plain.palette().color(QPalette::WindowText), QColor(0, 0, 1));
    QCOMPARE(WThemeUtils::parseCSS(static_cast<QWidget *>(nullptr), QStringLiteral("x{}"), {}).styleSheet,
             QStringLiteral("x{}"));
}

// A class of the host may do more in onThemeChanged() than the template does.
void tst_ThemedWidgets::subclassesAnswerThemeChanges()
{
    class Picture : public WFrame
    {
    public:
        void onThemeChanged() override
        {
            ++changes;
            WFrame::onThemeChanged();
        }
        int changes = 0;
    };
    WFrame window;
    Picture picture;
    picture.setParent(&window);
    WApplication::find()->setColorSets(spelledSets({"a"}));
    QCOMPARE(picture.changes, 1);
    WApplication::find()->setIsDarkTheme(true);
    QCOMPARE(picture.changes, 2);
    window.setThemeType(QStringLiteral("light"));
    QCOMPARE(picture.changes, 3);
    picture.setThemeType(QStringLiteral("dark"));
    QCOMPARE(picture.changes, 4);
}

// Slots that destroy, re-parent or restyle in the middle of a pass over all widgets.
void tst_ThemedWidgets::slotsThatChangeThings()
{
    auto *window = new WFrame;
    QVector<QPointer<WFrame>> frames;
    for (int i = 0; i < 6; ++i) {
        frames << new WFrame(i < 3 ? window : frames.at(i - 3).data());
        frames.last()->setCSS(cssOne);
    }
    connect(frames.at(0), &WFrame::cssChanged, this, [&] { delete frames.at(4); });
    connect(frames.at(1), &WFrame::cssChanged, frames.at(1), [&] { frames.at(1)->setParent(frames.at(5)); });
    connect(frames.at(2), &WFrame::cssChanged, frames.at(2), [&] {
        if (frames.at(2)->getCSS() == cssOne)
            frames.at(2)->setCSS(QStringLiteral("* { color: $(b.normal); }"));
    });
    connect(frames.at(3), &WFrame::cssChanged, frames.at(3), [&] { delete frames.at(3); });
    WApplication::find()->setColorSets(spelledSets({"a", "b"}, 9));
    QVERIFY(!frames.at(3) && !frames.at(4));
    QCOMPARE(colorOf(frames.at(1)), QStringLiteral("ff000009"));
    QCOMPARE(colorOf(frames.at(2)), QStringLiteral("ff010009"));
    QCOMPARE(colorOf(frames.at(5)), QStringLiteral("ff000009"));

    // The window goes while it announces its theme type to those below.
    connect(window, &WFrame::themeTypeChanged, window, [window] { delete window; });
    window->setThemeType(QStringLiteral("dark"));
    QVERIFY(!frames.at(5));
}

W_TEST_MAIN(tst_ThemedWidgets)
#include "tst_themed_widgets.moc"
