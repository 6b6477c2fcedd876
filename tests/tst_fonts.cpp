#include <UiElements/app/FontManagerEnum.h>
#include <UiElements/app/FontUtils.h>
#include <UiElements/app/WApplication.h>
#include <UiElements/app/WFont.h>
#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>

#include "support/WarningLog.h"

#include <QMetaEnum>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>

#include <iterator>
#include <memory>
#include <vector>

using namespace FontManagerEnum;

namespace {
const QString invalidToken = QStringLiteral("Invalid font token! This should never happen!");

WApplication *app()
{
    return static_cast<WApplication *>(QCoreApplication::instance());
}

struct TokenRow
{
    const char *name;
    int pixelSize;
    int weight;
    bool underline;
    const char *property; // of the scaled set; null where there is none
};

// In the order of the values.
const TokenRow tokenRows[] = {
    {"Default", 16, 50, false, "Default"},
    {"Title", 20, 63, false, "Title"},
    {"Header", 16, 75, false, "HeaderPrimary"},
    {"SubheaderPrimary", 16, 63, false, "SubheaderPrimary"},
    {"SubheaderSecondary", 14, 63, false, "SubheaderSecondary"},
    {"BodyPrimary", 16, 50, false, "BodyPrimary"},
    {"BodySecondary", 14, 50, false, "BodySecondary"},
    {"BodyTertiary", 12, 63, false, "BodyCompact"},
    {"BannerPrimary", 26, 63, false, "BannerPrimary"},
    {"BannerSecondary", 26, 50, false, "BannerSecondary"},
    {"BannerTertiary", 26, 75, false, "BannerTertiary"},
    {"HighlightPrimary", 16, 75, false, "HighlightPrimary"},
    {"HighlightSecondary", 14, 75, false, "HighlightSecondary"},
    {"HighlightTertiary", 12, 75, false, "HighlightCompact"},
    {"HyperlinkPrimary", 16, 50, true, "HyperlinkPrimary"},
    {"HyperlinkSecondary", 14, 50, true, "HyperlinkSecondary"},
    {"TagLabelPrimary", 14, 63, false, "SubheaderSecondary"},
    {"TagLabelSecondary", 12, 63, false, "BodyCompact"},
    {"CodeBlocks", 16, 50, false, "CodeBlocks"},
    {"RadioButtonLabelSecondary", 12, 50, false, nullptr},
    {"Display", 40, 63, false, "Display"},
};

WScaledFonts *fontsOf(FontType type)
{
    return app()->getWFontManager()->getFont(type);
}

/// One spy for each kind of view.
std::vector<std::unique_ptr<QSignalSpy>> spies()
{
    std::vector<std::unique_ptr<QSignalSpy>> result;
    for (FontType type : {Default, MessagingView, MeetingView})
        result.push_back(std::make_unique<QSignalSpy>(fontsOf(type), &WScaledFonts::fontTokenChanged));
    return result;
}

/// How often each view announced since it was last asked, such as "0 1 0".
QString announcements(const std::vector<std::unique_ptr<QSignalSpy>> &spies)
{
    QStringList counts;
    for (const auto &spy : spies) {
        counts << QString::number(spy->count());
        spy->clear();
    }
    return counts.join(QLatin1Char(' '));
}
} // namespace

class tst_Fonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void tokens_data();
    void tokens();
    void tokenSizesRoundHalfUp_data();
    void tokenSizesRoundHalfUp();
    void familyOutranksTheApplicationsList();
    void invalidTokens_data();
    void invalidTokens();
    void invalidSizesAndWeights_data();
    void invalidSizesAndWeights();

    void propertiesOfTheScaledSet();
    void scaledSizes_data();
    void scaledSizes();
    void unaskedSetTakesTheFactor();
    void setsFollowTheApplication();
    void viewsScaleIndependently();
    void invalidViewsAndFactors();
    void metaTypesAreRegistered();

    void standIns();
    void metricsFollowTheScale();
    void monospace_data();
    void monospace();
    void fontByPixelSize();
    void pointSizes_data();
    void pointSizes();
    void html_data();
    void html();
};

void tst_Fonts::cleanup()
{
    app()->setFontScaleFactor(1.0f);
    for (FontType type : {Default, MessagingView, MeetingView})
        fontsOf(type)->setScalingFactor(Regular);
}

void tst_Fonts::tokens_data()
{
    QTest::addColumn<int>("index");
    const int count = int(std::size(tokenRows));
    QCOMPARE(QMetaEnum::fromType<WFont::Token>().keyCount(), count);
    for (int i = 0; i < count; ++i)
        QTest::newRow(tokenRows[i].name) << i;
}

void tst_Fonts::tokens()
{
    QFETCH(int, index);
    const TokenRow &row = tokenRows[index];
    const auto token = static_cast<WFont::Token>(index);
    const QString family = token == WFont::CodeBlocks ? QStringLiteral("Consolas") : QStringLiteral("Segoe UI");
    QCOMPARE(QMetaEnum::fromType<WFont::Token>().valueToKey(token), row.name);

    const WFont plain(token, false);
    const WFont withFallback(token, true);
    const QFont scaled = fontsOf(Default)->getFont(token);
    for (const QFont &font : {QFont(plain), QFont(withFallback), scaled}) {
        QCOMPARE(font.pixelSize(), row.pixelSize);
        QCOMPARE(font.weight(), row.weight);
        QCOMPARE(font.underline(), row.underline);
        QCOMPARE(font.family(), family);
    }
    const QStringList list {QStringLiteral("Segoe UI"), QStringLiteral("Ebrima"), QStringLiteral("Myanmar Text"),
                            QStringLiteral("Nirmala UI")};
    QCOMPARE(plain.families(), QStringList());
    QCOMPARE(withFallback.families(), list);
    // A list in front of "Consolas" would draw code in a proportional font.
    QCOMPARE(scaled.families(), token == WFont::CodeBlocks ? QStringList() : list);
    if (row.property)
        QCOMPARE(fontsOf(Default)->property(row.property).value<QFont>(), scaled);
}

void tst_Fonts::tokenSizesRoundHalfUp_data()
{
    QTest::addColumn<WFont::Token>("token");
    QTest::addColumn<float>("scale");
    QTest::addColumn<int>("pixelSize");
    QTest::newRow("largest") << WFont::Display << 1.5f << 60;
    QTest::newRow("smallest") << WFont::BodyTertiary << 0.5f << 6;
    QTest::newRow("17.5") << WFont::BodySecondary << 1.25f << 18;
    QTest::newRow("10.5") << WFont::BodySecondary << 0.75f << 11;
    QTest::newRow("32.5") << WFont::BannerPrimary << 1.25f << 33;
    QTest::newRow("20.8") << WFont::BannerPrimary << 0.8f << 21;
    QTest::newRow("10.4") << WFont::Default << 0.65f << 10;
    QTest::newRow("20.5, not exact in binary") << WFont::Title << 1.025f << 21;
}

void tst_Fonts::tokenSizesRoundHalfUp()
{
    QFETCH(WFont::Token, token);
    QFETCH(float, scale);
    app()->setFontScaleFactor(scale);
    QTEST(WFont(token, false).pixelSize(), "pixelSize");
    QTEST(WFont(token, true).pixelSize(), "pixelSize");
    QTEST(fontsOf(Default)->getFont(token).pixelSize(), "pixelSize");
}

void tst_Fonts::familyOutranksTheApplicationsList()
{
    const QFont before = QGuiApplication::font();
    QGuiApplication::setFont(WFont(WFont::Default, true));
    const WFont code(WFont::CodeBlocks, false);
    const WFont own(QStringLiteral("DejaVu Serif"), 10, QFont::Normal);
    QGuiApplication::setFont(before);
    QCOMPARE(code.families().value(0), QStringLiteral("Consolas"));
    QCOMPARE(code.families().value(1), QStringLiteral("Segoe UI"));
    QCOMPARE(own.families().value(0), QStringLiteral("DejaVu Serif"));
}

void tst_Fonts::invalidTokens_data()
{
    QTest::addColumn<int>("token");
    QTest::newRow("before the first") << -1;
    QTest::newRow("behind the last") << 21;
    QTest::newRow("far away") << 1000000;
}

void tst_Fonts::invalidTokens()
{
    QFETCH(int, token);
    const auto invalid = static_cast<WFont::Token>(token);
    app()->setFontScaleFactor(1.5f);
    WarningLog log;
    QCOMPARE(WFont(invalid, true), WFont(WFont::Default, true));
    QCOMPARE(log.take(), QStringList(invalidToken));
    QCOMPARE(fontsOf(Default)->getFont(invalid), fontsOf(Default)->getFont(WFont::Default));
    QCOMPARE(log.take(), QStringList(invalidToken));
}

void tst_Fonts::invalidSizesAndWeights_data()
{
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<int>("weight");
    QTest::addColumn<bool>("valid");
    QTest::newRow("smallest") << 1 << 0 << true;
    QTest::newRow("heaviest") << 200 << 99 << true;
    QTest::newRow("no size") << 0 << 50 << false;
    QTest::newRow("negative size") << -5 << 50 << false;
    QTest::newRow("weight below") << 12 << -1 << false;
    QTest::newRow("weight above") << 12 << 100 << false;
    QTest::newRow("both") << 0 << 100 << false;
}

void tst_Fonts::invalidSizesAndWeights()
{
    QFETCH(int, pixelSize);
    QFETCH(int, weight);
    QFETCH(bool, valid);
    app()->setFontScaleFactor(1.5f); // sizes that are named are not scaled
    const QStringList families {QStringLiteral("DejaVu Serif"), QStringLiteral("DejaVu Sans")};
    WarningLog log;
    const WFont one(families.first(), pixelSize, weight);
    const WFont many(families, pixelSize, weight);
    const QStringList warnings = log.take();
    QCOMPARE(warnings.size(), valid ? 0 : 2);
    for (const QString &warning : warnings)
        QCOMPARE(warning, QStringLiteral("WFont - Invalid pixel size or weight %1 %2").arg(pixelSize).arg(weight));
    for (const WFont &font : {one, many}) {
        QCOMPARE(font.pixelSize(), valid ? pixelSize : 16);
        QCOMPARE(font.weight(), valid ? weight : 50);
    }
    QCOMPARE(one.family(), families.first());
    QCOMPARE(many.families(), families);
    QCOMPARE(WFont(QString(), 12, 50).family(), QFont().family());
}

void tst_Fonts::propertiesOfTheScaledSet()
{
    // Name, pixel size, weight and, for the underlined ones, "u".
    const QStringList expected {
        QStringLiteral("Display 40 63"),
        QStringLiteral("BannerTertiary 26 75"),
        QStringLiteral("BannerPrimary 26 63"),
        QStringLiteral("BannerSecondary 26 50"),
        QStringLiteral("Title 20 63"),
        QStringLiteral("HeaderPrimary 16 75"),
        QStringLiteral("HighlightPrimary 16 75"),
        QStringLiteral("SubheaderPrimary 16 63"),
        QStringLiteral("BodyPrimary 16 50"),
        QStringLiteral("HyperlinkPrimary 16 50 u"),
        QStringLiteral("SubheaderSecondary 14 63"),
        QStringLiteral("HighlightSecondary 14 75"),
        QStringLiteral("HeaderSecondary 14 75"),
        QStringLiteral("BodySecondary 14 50"),
        QStringLiteral("HyperlinkSecondary 14 50 u"),
        QStringLiteral("HighlightCompact 12 75"),
        QStringLiteral("BodyCompact 12 63"),
        QStringLiteral("LabelCompact 10 63"),
        QStringLiteral("CodeBlocks 16 50"),
        QStringLiteral("Default 16 50"),
    };
    const WScaledFonts fonts;
    const QMetaObject *meta = fonts.metaObject();
    QStringList found;
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QFont font = property.read(&fonts).value<QFont>();
        found << QStringLiteral("%1 %2 %3%4")
                     .arg(QLatin1String(property.name()))
                     .arg(font.pixelSize())
                     .arg(font.weight())
                     .arg(QLatin1String(font.underline() ? " u" : ""));
        QCOMPARE(property.notifySignal().name(), QByteArray("fontTokenChanged"));
        QCOMPARE(property.userType(), int(QMetaType::QFont));
        QVERIFY(!property.isWritable());
    }
    QCOMPARE(found, expected);
}

void tst_Fonts::scaledSizes_data()
{
    QTest::addColumn<float>("scale");
    QTest::addColumn<FontScalingFactor>("factor");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("pixelSize");
    QTest::newRow("17.5 small") << 1.0f << Small << QByteArray("Title") << 18;
    QTest::newRow("22.5 medium") << 1.0f << Medium << QByteArray("Title") << 23;
    QTest::newRow("25 large") << 1.0f << Large << QByteArray("Title") << 25;
    QTest::newRow("compact: 8.75 small") << 1.0f << Small << QByteArray("LabelCompact") << 9;
    QTest::newRow("compact: 6.5 by the application") << 0.65f << Regular << QByteArray("LabelCompact") << 7;
    QTest::newRow("of another size than its token: 17.5") << 1.0f << Large << QByteArray("HeaderSecondary") << 18;
    QTest::newRow("both factors") << 1.5f << Large << QByteArray("Display") << 75;
    QTest::newRow("both factors, smallest") << 0.5f << Small << QByteArray("LabelCompact") << 4;
    QTest::newRow("9.1875, rounded once") << 0.75f << Small << QByteArray("BodySecondary") << 9;
}

void tst_Fonts::scaledSizes()
{
    QFETCH(float, scale);
    QFETCH(FontScalingFactor, factor);
    QFETCH(QByteArray, property);
    app()->setFontScaleFactor(scale);
    fontsOf(MeetingView)->setScalingFactor(factor);
    QTEST(fontsOf(MeetingView)->property(property.constData()).value<QFont>().pixelSize(), "pixelSize");
}

void tst_Fonts::unaskedSetTakesTheFactor()
{
    WScaledFonts fonts;
    fonts.setScalingFactor(Large);
    app()->setFontScaleFactor(1.5f);
    QCOMPARE(fonts.getFont(WFont::Display).pixelSize(), 75);
    QSignalSpy changed(&fonts, &WScaledFonts::fontTokenChanged);
    app()->setFontScaleFactor(0.5f);
    QCOMPARE(fonts.getFont(WFont::Display).pixelSize(), 75); // prepared already, and not a set of the manager
    fonts.initializeTokens();
    QCOMPARE(fonts.getFont(WFont::Display).pixelSize(), 25);
    QCOMPARE(changed.count(), 0);
}

void tst_Fonts::setsFollowTheApplication()
{
    fontsOf(MessagingView)->setScalingFactor(Small);
    QCOMPARE(fontsOf(MessagingView)->getFont(WFont::Default).pixelSize(), 14);
    const auto changed = spies();
    // Whoever listens takes its font right then.
    int seen = 0;
    const auto connection = connect(fontsOf(MessagingView), &WScaledFonts::fontTokenChanged, this,
                                    [&seen] { seen = fontsOf(MessagingView)->getFont(WFont::Default).pixelSize(); });
    app()->setFontScaleFactor(1.5f);
    disconnect(connection);
    QCOMPARE(seen, 21);
    QCOMPARE(announcements(changed), QStringLiteral("1 1 1"));
    QCOMPARE(fontsOf(Default)->getFont(WFont::Default).pixelSize(), 24);
    QCOMPARE(fontsOf(MessagingView)->scalingFactor(), Small);

    app()->setFontScaleFactor(1.5f);
    QCOMPARE(announcements(changed), QStringLiteral("1 1 1"));

    WarningLog log;
    app()->setFontScaleFactor(1.51f);
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(announcements(changed), QStringLiteral("0 0 0"));
}

void tst_Fonts::viewsScaleIndependently()
{
    const QFont before = fontsOf(Default)->getFont(WFont::Title);
    const auto changed = spies();
    // By name, as QML and queued connections do.
    QVERIFY(QMetaObject::invokeMethod(app()->getWFontManager(), "setScalingFactor",
                                      Q_ARG(FontManagerEnum::FontType, MessagingView),
                                      Q_ARG(FontManagerEnum::FontScalingFactor, Large)));
    QCOMPARE(announcements(changed), QStringLiteral("0 1 0"));
    QCOMPARE(fontsOf(MessagingView)->getFont(WFont::Title).pixelSize(), 25);
    QCOMPARE(fontsOf(Default)->getFont(WFont::Title), before);
    QCOMPARE(fontsOf(MeetingView)->getFont(WFont::Title), before);

    app()->getWFontManager()->setScalingFactor(MessagingView, Large);
    QCOMPARE(announcements(changed), QStringLiteral("0 1 0"));
}

void tst_Fonts::invalidViewsAndFactors()
{
    WFontManager *manager = app()->getWFontManager();
    QCOMPARE(WFontManager::get(), manager);
    const auto changed = spies();
    WarningLog log;
    for (int value : {-1, 4}) {
        const QString number = QString::number(value);
        QCOMPARE(manager->getFont(static_cast<FontType>(value)), fontsOf(Default));
        manager->setScalingFactor(static_cast<FontType>(value), Large);
        manager->setScalingFactor(MeetingView, static_cast<FontScalingFactor>(value));
        QCOMPARE(log.take(),
                 QStringList() << QStringLiteral("WFontManager::getFont - Invalid font type ") + number
                               << QStringLiteral("WFontManager::setScalingFactor - Invalid font type ") + number
                               << QStringLiteral("WScaledFonts::setScalingFactor - Invalid scaling factor ") + number);
    }
    QCOMPARE(announcements(changed), QStringLiteral("0 0 0"));
    QCOMPARE(fontsOf(MeetingView)->scalingFactor(), Regular);
}

void tst_Fonts::metaTypesAreRegistered()
{
    // Read in main(), before this file's own templates could have registered them.
    QCOMPARE(app()->property("unregistered").toStringList(), QStringList());
}

void tst_Fonts::standIns()
{
    // Qt keeps them in lower case.
    const QStringList prose = QFont::substitutes(QStringLiteral("Segoe UI"));
    QCOMPARE(prose.value(0), QStringLiteral("open sans"));
    // An emoji font knows the digits too, so it may only come last.
    QCOMPARE(prose.last(), QStringLiteral("noto color emoji"));
    // What main() asked for before the application object was made still comes first.
    QCOMPARE(QFont::substitutes(QStringLiteral("Consolas")),
             QStringList() << QStringLiteral("a host's own") << QStringLiteral("inconsolata")
                           << QStringLiteral("dejavu sans mono"));
}

void tst_Fonts::metricsFollowTheScale()
{
    const int small = FontUtils::fontMetrics(WFont::BodyTertiary).height();
    const int display = FontUtils::fontMetrics(WFont::Display).height();
    QVERIFY(small > 0);
    QVERIFY(display > small);
    app()->setFontScaleFactor(1.5f);
    QVERIFY(FontUtils::fontMetrics(WFont::Display).height() > display);
}

void tst_Fonts::monospace_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<bool>("expected");
    const auto family = [](const char *name, int size) {
        return QFont(WFont(QLatin1String(name), size, QFont::Normal));
    };
    QTest::newRow("code") << QFont(WFont(WFont::CodeBlocks, false)) << true;
    QTest::newRow("code that falls back") << QFont(WFont(WFont::CodeBlocks, true)) << true;
    QTest::newRow("prose") << QFont(WFont(WFont::Default, true)) << false;
    QTest::newRow("asked in other letters") << family("consolas", 12) << true;
    QTest::newRow("drawn so, though nobody said") << family("DejaVu Sans Mono", 12) << true;
    QTest::newRow("tiny prose") << family("DejaVu Sans", 1) << false;
    QFont capitals(family("DejaVu Sans Mono", 12));
    capitals.setCapitalization(QFont::SmallCaps);
    QTest::newRow("small capitals") << capitals << true;
}

void tst_Fonts::monospace()
{
    QFETCH(QFont, font);
    if (font.family().startsWith(QLatin1String("DejaVu")) && QFontInfo(font).family() != font.family())
        QSKIP("The font of this row is not installed.");
    QTEST(FontUtils::isMonospaceFont(font), "expected");
}

void tst_Fonts::fontByPixelSize()
{
    app()->setFontScaleFactor(1.5f);
    QCOMPARE(FontUtils::getFontByPixelSize(11, FontUtils::Default),
             QFont(WFont(QStringLiteral("Segoe UI"), 11, QFont::Normal)));
    QCOMPARE(FontUtils::getFontByPixelSize(11, FontUtils::Monospace).family(), QStringLiteral("Consolas"));
    QCOMPARE(FontUtils::getFontByPixelSize(11, FontUtils::Emoji).family(), QStringLiteral("Segoe UI Emoji"));
    WarningLog log;
    QCOMPARE(FontUtils::getFontByPixelSize(0, FontUtils::Emoji).pixelSize(), 16);
    QCOMPARE(log.take().size(), 1);
    const auto invalid = static_cast<FontUtils::SupportedFontFamily>(3);
    QCOMPARE(FontUtils::getFontByPixelSize(11, invalid).family(), QStringLiteral("Segoe UI"));
    QCOMPARE(log.take(), QStringList(QStringLiteral("FontUtils - Invalid font family 3")));
}

void tst_Fonts::pointSizes_data()
{
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<int>("warnings");
    QTest::newRow("12") << 16 << 12 << 0;
    QTest::newRow("7.5") << 10 << 8 << 0;
    QTest::newRow("11.25") << 15 << 11 << 0;
    QTest::newRow("15.75") << 21 << 16 << 0;
    QTest::newRow("0.75") << 1 << 1 << 0;
    QTest::newRow("zero") << 0 << 0 << 1;
    QTest::newRow("negative") << -16 << 0 << 1;
}

void tst_Fonts::pointSizes()
{
    QFETCH(int, pixelSize);
    WarningLog log;
    QTEST(FontUtils::pixelSizeToPointSize(pixelSize), "pointSize");
    QTEST(int(log.take().size()), "warnings");
}

void tst_Fonts::html_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<FontUtils::SupportedFontFamily>("family");
    QTest::addColumn<bool>("keepWhiteSpace");
    QTest::addColumn<QString>("html");
    const QString segoe = QStringLiteral("<html><head/><body><p style=\"font-family: Segoe UI;\">%1</p></body></html>");
    const QString consolas =
        QStringLiteral("<html><head/><body><p style=\"font-family: Consolas;white-space: pre\">%1</p></body></html>");
    const auto row = [](const char *name, const char *text, FontUtils::SupportedFontFamily family, bool keep,
                        const QString &frame, const char *body) {
        QTest::newRow(name) << QString::fromUtf8(text) << family << keep
                            << QString(frame).replace(QLatin1String("%1"), QString::fromUtf8(body));
    };
    row("prose", "Hello", FontUtils::Default, false, segoe, "Hello");
    row("nothing", "", FontUtils::Default, false, segoe, "");
    row("white space", "a  b\n c", FontUtils::Monospace, true, consolas, "a  b\n c");
    row("markup", "<b>\"A&B\"</b>", FontUtils::Default, false, segoe, "&lt;b&gt;&quot;A&amp;B&quot;&lt;/b&gt;");
    row("places", "%1 %2 %", FontUtils::Monospace, true, consolas, "%1 %2 %");
}

void tst_Fonts::html()
{
    QFETCH(QString, text);
    QFETCH(FontUtils::SupportedFontFamily, family);
    QFETCH(bool, keepWhiteSpace);
    const QString html = FontUtils::toHtml(text, family, keepWhiteSpace);
    QTEST(html, "html");
    QTextDocument document;
    document.setHtml(html);
    QCOMPARE(document.toPlainText(), text);
}

int main(int argc, char **argv)
{
    qputenv("QT_FONT_DPI", "96"); // the rows of pointSizes() are those of such a screen
    QFont::insertSubstitution(QStringLiteral("Consolas"), QStringLiteral("A host's own"));
    WApplication application(argc, argv);
    QStringList unregistered;
    for (const char *name : {"WFont::Token", "FontManagerEnum::FontType", "FontManagerEnum::FontScalingFactor"}) {
        if (QMetaType::type(name) == QMetaType::UnknownType)
            unregistered << QLatin1String(name);
    }
    application.setProperty("unregistered", unregistered);
    tst_Fonts test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_fonts.moc"
