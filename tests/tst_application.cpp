#include "support/Colors.h"
#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WGlobalSignalListener.h>
#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/widgets/WFrame.h>

#include <QToolTip>

#include <cmath>
#include <limits>

class tst_Application : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void construction();
    void metaObject();
    void eachChangeOnce_data();
    void eachChangeOnce();
    void colorSets();
    void fontScaleFactor_data();
    void fontScaleFactor();
    void registries_data();
    void registries();
    void lookUps();
    void themeTypeTexts();
    void themeTypeOfWidgets();
    void hyperlinks();
    void publishingInfo();
};

static WApplication *app()
{
    return WApplication::find();
}

void tst_Application::init()
{
    app()->setIsDarkTheme(false);
    app()->setIsHighContrastTheme(false);
    app()->setFontScaleFactor(1);
}

void tst_Application::construction()
{
    QStringList own;
    for (const QObject *child : app()->children()) {
        const QString name = QString::fromLatin1(child->metaObject()->className());
        if (name.startsWith(QLatin1Char('W')))
            own << name;
    }
    QCOMPARE(own,
             QStringList({QStringLiteral("WAppSignals"), QStringLiteral("WFontManager"),
                          QStringLiteral("WGlobalSignalListener")}));
    QCOMPARE(WAppSignals::get()->parent(), app());
    QCOMPARE(WFontManager::get(), app()->getWFontManager());
    QCOMPARE(WGlobalSignalListener::get(), app()->getGlobalSignalListener());
    QVERIFY(QMetaType::type("WColorSet") != QMetaType::UnknownType);
    QVERIFY(QMetaType::type("WAppSignals::Shortcut") != QMetaType::UnknownType);
    QCOMPARE(QApplication::font().family(), QStringLiteral("Segoe UI"));
    QCOMPARE(QApplication::font().pixelSize(), 16);
}

void tst_Application::metaObject()
{
    const auto members = [](const QMetaObject &meta) {
        QStringList out;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            out << QString::fromLatin1(meta.method(i).methodSignature());
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
            out << QString::fromLatin1(meta.property(i).name());
        return out.join(QLatin1Char(' '));
    };
    QCOMPARE(members(IWApplication::staticMetaObject),
             QStringLiteral("colorSetsChanged() animationsDisabledChanged(bool) animationsDisabled"));
    QCOMPARE(members(WApplication::staticMetaObject),
             QStringLiteral("themeChanged(QString) isDarkThemeChanged(bool) isHighContrastThemeChanged(bool) "
                            "fontScaleFactorChanged(float) logoSvgPathChanged(QString) logoPngPathChanged(QString) "
                            "publishingInfoChanged() getColorSet(QString,QString) "
                            "getKeySequence(WAppSignals::Shortcut) theme logoSvgPath logoPngPath fontScaleFactor"));
}

void tst_Application::eachChangeOnce_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("restyles");
    QTest::newRow("theme") << QByteArray(SIGNAL(themeChanged(QString))) << QVariant(QStringLiteral("meridia")) << 0;
    QTest::newRow("logoSvgPath") << QByteArray(SIGNAL(logoSvgPathChanged(QString))) << QVariant(QStringLiteral(":/a"))
                                 << 0;
    QTest::newRow("logoPngPath") << QByteArray(SIGNAL(logoPngPathChanged(QString))) << QVariant(QStringLiteral(":/b"))
                                 << 0;
    QTest::newRow("animationsDisabled") << QByteArray(SIGNAL(animationsDisabledChanged(bool))) << QVariant(true) << 0;
    QTest::newRow("dark") << QByteArray(SIGNAL(isDarkThemeChanged(bool))) << QVariant(true) << 1;
    QTest::newRow("high contrast") << QByteArray(SIGNAL(isHighContrastThemeChanged(bool))) << QVariant(true) << 1;
}

void tst_Application::eachChangeOnce()
{
    QFETCH(QByteArray, signal);
    QFETCH(QVariant, value);
    QFETCH(int, restyles);
    const auto set = [&] {
        if (signal == SIGNAL(isDarkThemeChanged(bool)))
            app()->setIsDarkTheme(value.toBool());
        else if (signal == SIGNAL(isHighContrastThemeChanged(bool)))
            app()->setIsHighContrastTheme(value.toBool());
        else
            app()->setProperty(QTest::currentDataTag(), value);
    };
    QSignalSpy spy(app(), signal.constData());
    QSignalSpy colors(app(), &IWApplication::colorSetsChanged);
    set();
    set();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first(), value);
    QCOMPARE(colors.count(), restyles);
}

void tst_Application::colorSets()
{
    QSignalSpy colors(app(), &IWApplication::colorSetsChanged);
    app()->setColorSets(spelledSets({"a"}, 1));
    QCOMPARE(colors.count(), 1);
    app()->setInvertedColorSets(spelledSets({"a"}, 2));
    QCOMPARE(colors.count(), 2);
    app()->setColorSets(spelledSets({"a"}, 1));
    QCOMPARE(colors.count(), 3);
    app()->setColorTokens({{3, "a"}});
    QCOMPARE(colors.count(), 3);
    QCOMPARE(WThemeUtils::getAppWColorTokens().at(3), std::string("a"));
    // A set that was there is gone: the map is replaced whole.
    WThemeUtils::setAppWColorSets(spelledSets({"b"}));
    QVERIFY(WThemeUtils::getAppWColorSets().count("a") == 0);
    // Tooltips take what there is.
    const QPalette before = QToolTip::palette();
    app()->setColorSets(spelledSets({"tooltip-background", "tooltip-text"}));
    QCOMPARE(QToolTip::palette().color(QPalette::ToolTipBase), app()->getColorSets().at("tooltip-background").normal());
    QCOMPARE(QToolTip::palette().color(QPalette::ToolTipText), app()->getColorSets().at("tooltip-text").normal());
    app()->setColorSets(spelledSets({"b"}));
    QVERIFY(QToolTip::palette() != before);
    QToolTip::setPalette(before);
    // The registry handed to itself.
    WThemeUtils::setAppWColorSets(WThemeUtils::getAppWColorSets());
    QCOMPARE(int(WThemeUtils::getAppWColorSets().count("b")), 1);
}

void tst_Application::fontScaleFactor_data()
{
    QTest::addColumn<float>("factor");
    QTest::addColumn<bool>("valid");
    const float nan = std::numeric_limits<float>::quiet_NaN(), infinity = std::numeric_limits<float>::infinity();
    QTest::newRow("smallest") << 0.5f << true;
    QTest::newRow("largest") << 1.5f << true;
    QTest::newRow("the same again") << 1.0f << true;
    QTest::newRow("too small") << 0.49f << false;
    QTest::newRow("too large") << 1.51f << false;
    QTest::newRow("no number") << nan << false;
    QTest::newRow("infinite") << infinity << false;
    QTest::newRow("minus infinite") << -infinity << false;
}

void tst_Application::fontScaleFactor()
{
    QFETCH(float, factor);
    QFETCH(bool, valid);
    QSignalSpy spy(app(), &WApplication::fontScaleFactorChanged);
    WarningLog log;
    app()->setFontScaleFactor(factor);
    QCOMPARE(spy.count(), valid ? 1 : 0);
    QCOMPARE(app()->getFontScaleFactor(), valid ? factor : 1.0f);
    const QStringList warnings = log.take();
    QCOMPARE(warnings.size(), valid ? 0 : 1);
    if (!valid)
        QVERIFY(
            warnings.first().startsWith(QLatin1String("WApplication::setFontScaleFactor - Invalid fontScaleFactor")));
}

void tst_Application::registries_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<bool>("highContrast");
    QTest::addColumn<QString>("registries"); // for global, light, dark, inverted and a value of no name
    QTest::newRow("light") << false << false << QStringLiteral("app app inv inv app");
    QTest::newRow("dark") << true << false << QStringLiteral("app inv app inv app");
    QTest::newRow("light, high contrast") << false << true << QStringLiteral("app app app app app");
    QTest::newRow("dark, high contrast") << true << true << QStringLiteral("app app app app app");
}

void tst_Application::registries()
{
    QFETCH(bool, dark);
    QFETCH(bool, highContrast);
    QFETCH(QString, registries);
    app()->setColorSets(spelledSets({"app"}));
    app()->setInvertedColorSets(spelledSets({"inv"}));
    app()->setIsDarkTheme(dark);
    app()->setIsHighContrastTheme(highContrast);
    QCOMPARE(WThemeUtils::isHighContrastEnabled(), highContrast);
    QStringList found;
    for (int type : {0, 1, 2, 3, 9}) {
        const WColorSets &sets = WThemeUtils::getWColorSetsByThemeType(WThemeUtils::AppThemeType(type));
        found << QString::fromStdString(sets.begin()->first);
        // Expansion chooses by the same rule.
        WFrame frame;
        frame.setThemeType(WThemeUtils::themeTypeToString(WThemeUtils::AppThemeType(type)));
        WarningLog log;
        frame.setCSS(QStringLiteral("* { color: $(%1.normal); }").arg(found.last()));
        QCOMPARE(log.take(), QStringList());
    }
    QCOMPARE(found.join(QLatin1Char(' ')), registries);
}

void tst_Application::lookUps()
{
    app()->setColorSets(spelledSets({"a", "\u00e9"}));
    WarningLog log;
    QCOMPARE(WThemeUtils::getColorSet("", WThemeUtils::AppThemeTypeGlobal), WColorSet());
    QCOMPARE(app()->getColorSet(QStringLiteral("\u00e9"), QString()).checked(), QColor(1, 5, 0)); // names are UTF-8
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(app()->getColorSet(QStringLiteral("unknown"), QStringLiteral("dark")), WColorSet());
    QCOMPARE(log.take(), QStringList(QStringLiteral("ColorSet name does not exist!  \"unknown\"")));
    QVERIFY(app()->getKeySequence(WAppSignals::Shortcut::ZoomIn).isEmpty());
    QCOMPARE(log.take(), QStringList(QStringLiteral("ShortcutId (55) is not registered! This should never happen")));

    // A copy: what the caller does with it changes nobody else's.
    WColorSet set = WThemeUtils::getColorSet("a", WThemeUtils::AppThemeTypeGlobal);
    set.fill(Qt::red);
    QCOMPARE(WThemeUtils::getColorSet("a", WThemeUtils::AppThemeTypeGlobal).pressed(), QColor(0, 2, 0));
    const WColorSet transparent = WThemeUtils::transparentColourSet();
    for (int state = 0; state < WColorSet::StateCount; ++state) {
        QVERIFY(transparent.color(WColorSet::State(state)).isValid());
        QCOMPARE(transparent.color(WColorSet::State(state)).alpha(), 0);
    }
}

void tst_Application::themeTypeTexts()
{
    for (int type = 0; type < 4; ++type) {
        const auto themeType = WThemeUtils::AppThemeType(type);
        QCOMPARE(WThemeUtils::stringToThemeType(WThemeUtils::themeTypeToString(themeType)), themeType);
    }
    QCOMPARE(WThemeUtils::themeTypeToString(WThemeUtils::AppThemeType(7)), QStringLiteral("global"));
    for (const char *text : {"Dark", "", "global", " light", "INVERTED"})
        QCOMPARE(WThemeUtils::stringToThemeType(QString::fromLatin1(text)), WThemeUtils::AppThemeTypeGlobal);
}

void tst_Application::themeTypeOfWidgets()
{
    QCOMPARE(WThemeUtils::getThemeTypeOfWidget(nullptr), WThemeUtils::AppThemeTypeGlobal);
    QWidget window; // plain, with a dynamic property
    WFrame middle(&window);
    QWidget inner(&middle);
    QCOMPARE(WThemeUtils::getThemeTypeOfWidget(&inner), WThemeUtils::AppThemeTypeGlobal);
    middle.setThemeType(QStringLiteral("light"));
    QCOMPARE(WThemeUtils::getThemeTypeOfWidget(&inner), WThemeUtils::AppThemeTypeGlobal); // parents do not count
    window.setProperty("themeType", QStringLiteral("dark"));
    QCOMPARE(WThemeUtils::getThemeTypeOfWidget(&inner), WThemeUtils::AppThemeTypeDark);
    QCOMPARE(WThemeUtils::getThemeTypeOfWidget(&middle), WThemeUtils::AppThemeTypeLight);
    inner.setProperty("themeType", QStringLiteral("global"));
    QCOMPARE(WThemeUtils::getThemeTypeOfWidget(&inner), WThemeUtils::AppThemeTypeDark);
}

void tst_Application::hyperlinks()
{
    WColorSet link(QStringLiteral("button-hyperlink-text"));
    link.setColor(WColorSet::Normal, QColor(0, 0, 255, 10)); // alpha is not written
    link.setColor(WColorSet::Hovered, QColor(0xAB, 0xCD, 0xEF));
    app()->setColorSets({{"button-hyperlink-text", link}});
    QCOMPARE(WThemeUtils::getHyperlinkCSS(WThemeUtils::AppThemeTypeGlobal),
             QStringLiteral("<style type = \"text/css\">a:link{text-decoration: underline; color:#0000ff;} "
                            "a:visited{color:#0000ff;} a:hover{ color:#abcdef;}</style>"));
}

void tst_Application::publishingInfo()
{
    QSignalSpy spy(app(), &WApplication::publishingInfoChanged);
    WPublishingInfo info;
    app()->setPublishingInfo(info);
    QCOMPARE(spy.count(), 0);
    for (QString WPublishingInfo::*member :
         {&WPublishingInfo::productName, &WPublishingInfo::publisher, &WPublishingInfo::version,
          &WPublishingInfo::channel, &WPublishingInfo::supportUrl}) {
        info.*member = QStringLiteral("x");
        app()->setPublishingInfo(info);
        app()->setPublishingInfo(info);
    }
    QCOMPARE(spy.count(), 5);
    QVERIFY(app()->getPublishingInfo() == info);
}

W_TEST_MAIN(tst_Application)
#include "tst_application.moc"
