#include <UiElements/app/WFont.h>

#include "FontTokens_p.h"

#include <UiElements/app/WApplication.h>

#include <QDebug>

#include <cmath>
#include <cstddef>
#include <iterator>

namespace {
constexpr FontTokens::Specification specifications[] = {
    {16, QFont::Normal, false}, // Default
    {20, QFont::DemiBold, false}, // Title
    {16, QFont::Bold, false}, // Header
    {16, QFont::DemiBold, false}, // SubheaderPrimary
    {14, QFont::DemiBold, false}, // SubheaderSecondary
    {16, QFont::Normal, false}, // BodyPrimary
    {14, QFont::Normal, false}, // BodySecondary
    {12, QFont::DemiBold, false}, // BodyTertiary
    {26, QFont::DemiBold, false}, // BannerPrimary
    {26, QFont::Normal, false}, // BannerSecondary
    {26, QFont::Bold, false}, // BannerTertiary
    {16, QFont::Bold, false}, // HighlightPrimary
    {14, QFont::Bold, false}, // HighlightSecondary
    {12, QFont::Bold, false}, // HighlightTertiary
    {16, QFont::Normal, true}, // HyperlinkPrimary
    {14, QFont::Normal, true}, // HyperlinkSecondary
    {14, QFont::DemiBold, false}, // TagLabelPrimary
    {12, QFont::DemiBold, false}, // TagLabelSecondary
    {16, QFont::Normal, false}, // CodeBlocks
    {12, QFont::Normal, false}, // RadioButtonLabelSecondary
    {40, QFont::DemiBold, false}, // Display
};
static_assert(std::size(specifications) == WFont::Display + 1, "one specification for each token");

// Unlike WApplication::find() silent: a font without our application object is nothing to report.
const WApplication *runningApplication()
{
    return qobject_cast<const WApplication *>(QCoreApplication::instance());
}

const QStringList &fallbackFamilies(bool withApplication)
{
    static const QStringList scaled {QStringLiteral("Segoe UI"), QStringLiteral("Ebrima"),
                                     QStringLiteral("Myanmar Text"), QStringLiteral("Nirmala UI")};
    // Only here: nobody has given "Segoe UI" a stand-in that knows emoji when there is no application object of ours.
    static const QStringList unscaled {QStringLiteral("Segoe UI"), QStringLiteral("Segoe UI Emoji"),
                                       QStringLiteral("Ebrima"), QStringLiteral("Myanmar Text"),
                                       QStringLiteral("Nirmala UI")};
    return withApplication ? scaled : unscaled;
}
} // namespace

const FontTokens::Specification *FontTokens::find(WFont::Token token)
{
    const auto index = static_cast<std::size_t>(token); // a negative token becomes a very large one
    return index < std::size(specifications) ? &specifications[index] : nullptr;
}

float FontTokens::applicationScale()
{
    const WApplication *app = runningApplication();
    return app ? app->getFontScaleFactor() : 1.0f;
}

int FontTokens::roundedPixelSize(float pixelSize)
{
    return static_cast<int>(std::lround(pixelSize));
}

WFont::WFont(Token token, bool withFallbackFamilies)
{
    const FontTokens::Specification *specification = FontTokens::find(token);
    if (!specification) {
        qWarning("Invalid font token! This should never happen!");
        specification = &specifications[Default];
    }
    setWeight(specification->weight);
    setUnderline(specification->underline);
    if (token == CodeBlocks)
        preferFamily(QStringLiteral("Consolas"));

    // The product is a float on purpose: 10 * 0.65f is 6.5 in float and just below it in double.
    const auto tableSize = static_cast<float>(specification->pixelSize);
    setPixelSize(FontTokens::roundedPixelSize(tableSize * FontTokens::applicationScale()));
    if (withFallbackFamilies)
        setFamilies(fallbackFamilies(runningApplication() != nullptr));
}

WFont::WFont(const QString &family, int pixelSize, int weight)
{
    applySizeAndWeight(pixelSize, weight);
    preferFamily(family);
}

WFont::WFont(const QStringList &families, int pixelSize, int weight)
{
    applySizeAndWeight(pixelSize, weight);
    if (!families.isEmpty())
        setFamilies(families);
}

WFont::WFont(const QFont &font)
    : QFont(font)
{
}

void WFont::applySizeAndWeight(int pixelSize, int weight)
{
    if (pixelSize < 1 || weight < 0 || weight > 99) {
        qWarning() << "WFont - Invalid pixel size or weight" << pixelSize << weight;
        pixelSize = specifications[Default].pixelSize;
        weight = specifications[Default].weight;
    }
    setPixelSize(pixelSize);
    setWeight(weight);
}

// A host may have given the application a font with a list of families, and a list hides the family set beside it.
void WFont::preferFamily(const QString &family)
{
    if (family.isEmpty())
        return;
    setFamily(family);
    if (!families().isEmpty())
        setFamilies(QStringList(family) + families());
}
