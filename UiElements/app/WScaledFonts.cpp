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
    m_isPrepared.reset();
    Q_EMIT fontTokenChanged();
}

QFont WScaledFonts::getFont(WFont::Token token) const
{
    return prepared(preparedFontOf(token));
}

void WScaledFonts::initializeTokens()
{
    m_isPrepared.reset();
    for (int font = 0; font < PreparedFontCount; ++font)
        prepared(PreparedFont(font));
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

QFont WScaledFonts::build(PreparedFont preparedFont) const
{
    static_assert(std::size(sources) == PreparedFontCount, "one source for each prepared font");
    const Source &source = sources[preparedFont];
    WFont font(source.token, FontTokens::wantsFallbackFamilies(source.token));
    // From the unscaled size, because scaling the rounded one would round twice.
    const int size = source.pixelSize ? source.pixelSize : FontTokens::find(source.token)->pixelSize;
    const float scaled = static_cast<float>(size) * FontTokens::applicationScale() * multipliers[m_scalingFactor];
    font.setPixelSize(FontTokens::roundedPixelSize(scaled));
    return font;
}

QFont WScaledFonts::prepared(PreparedFont font) const
{
    if (!m_isPrepared[font]) {
        m_fonts.resize(PreparedFontCount);
        m_fonts[font] = build(font);
        m_isPrepared.set(font);
    }
    return m_fonts[font];
}
