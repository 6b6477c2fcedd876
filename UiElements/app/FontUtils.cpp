#include <UiElements/app/FontUtils.h>

#include "FontTokens_p.h"

#include <QDebug>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace {
QString familyName(FontUtils::SupportedFontFamily family)
{
    switch (family) {
    case FontUtils::Default: return QStringLiteral("Segoe UI");
    case FontUtils::Monospace: return QStringLiteral("Consolas");
    case FontUtils::Emoji: return QStringLiteral("Segoe UI Emoji");
    }
    qWarning() << "FontUtils - Invalid font family" << static_cast<int>(family);
    return QStringLiteral("Segoe UI");
}
} // namespace

QFontMetrics FontUtils::fontMetrics(WFont::Token token)
{
    return QFontMetrics(WFont(token, FontTokens::wantsFallbackFamilies(token)));
}

bool FontUtils::isMonospaceFont(const WFont &font)
{
    // Code stays code on a desktop that has nothing of fixed pitch to draw it with.
    const QString monospace = familyName(Monospace);
    if (font.family().compare(monospace, Qt::CaseInsensitive) == 0
        || font.families().value(0).compare(monospace, Qt::CaseInsensitive) == 0)
        return true;

    // A stand-in need not declare its pitch, so its letters are asked. Always at one size: in a tiny
    // font narrow and wide letters are less than half a pixel apart.
    QFont measured(font);
    measured.setPixelSize(64);
    measured.setCapitalization(QFont::MixedCase);
    const QFontMetricsF metrics(measured);
    const QString letters = QStringLiteral("iW.m0");
    const auto [narrowest, widest] =
        std::minmax_element(letters.cbegin(), letters.cend(), [&metrics](QChar a, QChar b) {
            return metrics.horizontalAdvance(a) < metrics.horizontalAdvance(b);
        });
    return metrics.horizontalAdvance(*widest) - metrics.horizontalAdvance(*narrowest) < 0.5;
}

WFont FontUtils::getFontByPixelSize(int pixelSize, SupportedFontFamily family)
{
    return WFont(familyName(family), pixelSize, QFont::Normal);
}

int FontUtils::pixelSizeToPointSize(int pixelSize)
{
    if (pixelSize < 1) {
        qWarning() << "FontUtils::pixelSizeToPointSize - Invalid pixel size" << pixelSize;
        return 0;
    }
    const QScreen *screen = QGuiApplication::primaryScreen();
    const qreal dotsPerInch = screen ? screen->logicalDotsPerInchY() : 96.0;
    return std::max(1, qRound(pixelSize * 72.0 / dotsPerInch));
}

QString FontUtils::toHtml(const QString &text, SupportedFontFamily family, bool keepWhiteSpace)
{
    const QString document = keepWhiteSpace
        ? QStringLiteral("<html><head/><body><p style=\"font-family: %1;white-space: pre\">%2</p></body></html>")
        : QStringLiteral("<html><head/><body><p style=\"font-family: %1;\">%2</p></body></html>");
    // Both at once: a "%2" in the text must not become a place of its own.
    return document.arg(familyName(family), text.toHtmlEscaped());
}
