#include <UiElements/app/WScaledFonts.h>

#include "FontTokens_p.h"

#include <QDebug>

#include <cstddef>
#include <iterator>

namespace {
struct Source
{
    WFont::Token token;
    int pixelSize = 0; // before scaling; 0 takes the token's
};

// In the order of WScaledFonts::PreparedFont.
constexpr Source sources[] = {
    {WFont::Display},
    {WFont::BannerTertiary},
    {WFont::BannerPrimary},
    {WFont::BannerSecondary},
    {WFont::Title},
    {WFont::Header},
    {WFont::HighlightPrimary},
    {WFont::SubheaderPrimary},
    {WFont::BodyPrimary},
    {WFont::HyperlinkPrimary},
    {WFont::SubheaderSecondary},
    {WFont::HighlightSecondary},
    {WFont::Header, 14},
    {WFont::BodySecondary},
    {WFont::HyperlinkSecondary},
    {WFont::HighlightTertiary},
    {WFont::BodyTertiary},
    {WFont::BodyTertiary, 10},
    {WFont::CodeBlocks},
    {WFont::Default},
    {WFont::RadioButtonLabelSecondary},
};

// In the order of FontManagerEnum::FontScalingFactor. Exact in binary, so they add no rounding of their own.
constexpr float multipliers[] = {0.875f, 1.0f, 1.125f, 1.25f};
static_assert(std::size(multipliers) == FontManagerEnum::Large + 1, "one multiplier for each factor");
} // namespace

WScaledFonts::WScaledFonts(QObject *parent)
    : QObject(parent)
{
}

void WScaledFonts::setScalingFactor(FontManagerEnum::FontScalingFactor factor)
{
    if (static_cast<std::size_t>(factor) >= std::size(multipliers)) {
        qWarning() << "WScaledFonts::setScalingFactor - Invalid scaling factor" << static_cast<int>(factor);
        return;
    }
    m_scalingFactor = factor;
    if (!m_fonts.empty())
        initializeTokens();
    Q_EMIT fontTokenChanged();
}

QFont WScaledFonts::getFont(WFont::Token token) const
{
    return prepared(preparedFontOf(token));
}

void WScaledFonts::initializeTokens()
{
    m_fonts = build();
}

WScaledFonts::PreparedFont WScaledFonts::preparedFontOf(WFont::Token token)
{
    switch (token) {
    case WFont::Default: return DefaultFont;
    case WFont::Title: return TitleFont;
    case WFont::Header: return HeaderPrimaryFont;
    case WFont::SubheaderPrimary: return SubheaderPrimaryFont;
    case WFont::SubheaderSecondary: return SubheaderSecondaryFont;
    case WFont::BodyPrimary: return BodyPrimaryFont;
    case WFont::BodySecondary: return BodySecondaryFont;
    case WFont::BodyTertiary: return BodyCompactFont;
    case WFont::BannerPrimary: return BannerPrimaryFont;
    case WFont::BannerSecondary: return BannerSecondaryFont;
    case WFont::BannerTertiary: return BannerTertiaryFont;
    case WFont::HighlightPrimary: return HighlightPrimaryFont;
    case WFont::HighlightSecondary: return HighlightSecondaryFont;
    case WFont::HighlightTertiary: return HighlightCompactFont;
    case WFont::HyperlinkPrimary: return HyperlinkPrimaryFont;
    case WFont::HyperlinkSecondary: return HyperlinkSecondaryFont;
    case WFont::TagLabelPrimary: return SubheaderSecondaryFont;
    case WFont::TagLabelSecondary: return BodyCompactFont;
    case WFont::CodeBlocks: return CodeBlocksFont;
    case WFont::RadioButtonLabelSecondary: return RadioButtonLabelSecondaryFont;
    case WFont::Display: return DisplayFont;
    }
    qWarning("Invalid font token! This should never happen!");
    return DefaultFont;
}

std::vector<QFont> WScaledFonts::build() const
{
    static_assert(std::size(sources) == PreparedFontCount, "one source for each prepared font");
    const float applicationScale = FontTokens::applicationScale();
    const float multiplier = multipliers[m_scalingFactor];
    std::vector<QFont> fonts;
    fonts.reserve(PreparedFontCount);
    for (const Source &source : sources) {
        WFont font(source.token, FontTokens::wantsFallbackFamilies(source.token));
        // From the unscaled size, because scaling the rounded one would round twice.
        const int size = source.pixelSize ? source.pixelSize : FontTokens::find(source.token)->pixelSize;
        font.setPixelSize(FontTokens::roundedPixelSize(static_cast<float>(size) * applicationScale * multiplier));
        fonts.push_back(font);
    }
    return fonts;
}

QFont WScaledFonts::prepared(PreparedFont font) const
{
    if (m_fonts.empty())
        m_fonts = build();
    return m_fonts[font];
}
