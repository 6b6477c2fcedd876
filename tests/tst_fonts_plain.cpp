#include <UiElements/app/FontUtils.h>
#include <UiElements/app/WFont.h>
#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>

#include "support/WarningLog.h"

#include <QApplication>
#include <QTest>

/// Fonts in a program that has no application object of ours.
class tst_FontsPlain : public QObject
{
    Q_OBJECT

public:
    int pointSizeWithoutScreen = 0;
    int pixelSizeWithoutApplication = 0;

private Q_SLOTS:
    void tokensAreUnscaled();
    void beforeAnyApplicationObject();
    void managerIsMissing();
    void setOfOnesOwn();
    void codeIsMonospace();
};

void tst_FontsPlain::tokensAreUnscaled()
{
    WarningLog log;
    const WFont code(WFont::CodeBlocks, false);
    const WFont link(WFont::HyperlinkSecondary, true);
    QCOMPARE(code.family(), QStringLiteral("Consolas"));
    QCOMPARE(code.families(), QStringList());
    QCOMPARE(link.pixelSize(), 14);
    QCOMPARE(link.weight(), int(QFont::Normal));
    QVERIFY(link.underline());
    QCOMPARE(link.family(), QApplication::font().family());
    QCOMPARE(link.families(),
             QStringList() << QStringLiteral("Segoe UI") << QStringLiteral("Segoe UI Emoji") << QStringLiteral("Ebrima")
                           << QStringLiteral("Myanmar Text") << QStringLiteral("Nirmala UI"));
    QCOMPARE(log.take(), QStringList());
}

void tst_FontsPlain::beforeAnyApplicationObject()
{
    QCOMPARE(pixelSizeWithoutApplication, 20);
    QCOMPARE(pointSizeWithoutScreen, 15); // at 96 dots per inch
}

void tst_FontsPlain::managerIsMissing()
{
    WarningLog log;
    QVERIFY(!WFontManager::get());
    QCOMPARE(log.take(), QStringList(QStringLiteral("Unable to find WApplication")));
}

void tst_FontsPlain::setOfOnesOwn()
{
    WarningLog log;
    WScaledFonts fonts;
    fonts.setScalingFactor(FontManagerEnum::Large);
    QCOMPARE(fonts.getFont(WFont::Display).pixelSize(), 50);
    QCOMPARE(log.take(), QStringList());
}

// Nothing stands in for "Consolas" here, and what Qt draws instead is up to the desktop.
void tst_FontsPlain::codeIsMonospace()
{
    QVERIFY(FontUtils::isMonospaceFont(WFont(WFont::CodeBlocks, false)));
    QVERIFY(!FontUtils::isMonospaceFont(WFont(WFont::Title, false)));
}

int main(int argc, char **argv)
{
    tst_FontsPlain test;
    test.pixelSizeWithoutApplication = WFont(WFont::Title, false).pixelSize();
    test.pointSizeWithoutScreen = FontUtils::pixelSizeToPointSize(20);
    QApplication application(argc, argv);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_fonts_plain.moc"
