#pragma once

#include <UiElements/app/FontManagerEnum.h>
#include <UiElements/app/WFont.h>
#include <UiElements/uielements_export.h>

#include <QFont>
#include <QObject>

#include <bitset>
#include <vector>

/// The fonts of one kind of view, at the view's own scaling factor on top of the application's.
///
/// The fonts are prepared when the first one is asked for. Except for CodeBlocks they carry the fallback families of
/// WFont. The "compact" fonts and HeaderSecondary are sizes of the scale that have no token of their own.
class UIELEMENTS_EXPORT WScaledFonts : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QFont Display READ display NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BannerTertiary READ bannerTertiary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BannerPrimary READ bannerPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BannerSecondary READ bannerSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont Title READ title NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HeaderPrimary READ headerPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HighlightPrimary READ highlightPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont SubheaderPrimary READ subheaderPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BodyPrimary READ bodyPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HyperlinkPrimary READ hyperlinkPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont SubheaderSecondary READ subheaderSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HighlightSecondary READ highlightSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HeaderSecondary READ headerSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BodySecondary READ bodySecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HyperlinkSecondary READ hyperlinkSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HighlightCompact READ highlightCompact NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BodyCompact READ bodyCompact NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont LabelCompact READ labelCompact NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont CodeBlocks READ codeBlocks NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont Default READ defaultFont NOTIFY fontTokenChanged)

public:
    explicit WScaledFonts(QObject *parent = nullptr);

    QFont display() const { return prepared(DisplayFont); }
    QFont bannerTertiary() const { return prepared(BannerTertiaryFont); }
    QFont bannerPrimary() const { return prepared(BannerPrimaryFont); }
    QFont bannerSecondary() const { return prepared(BannerSecondaryFont); }
    QFont title() const { return prepared(TitleFont); }
    QFont headerPrimary() const { return prepared(HeaderPrimaryFont); }
    QFont highlightPrimary() const { return prepared(HighlightPrimaryFont); }
    QFont subheaderPrimary() const { return prepared(SubheaderPrimaryFont); }
    QFont bodyPrimary() const { return prepared(BodyPrimaryFont); }
    QFont hyperlinkPrimary() const { return prepared(HyperlinkPrimaryFont); }
    QFont subheaderSecondary() const { return prepared(SubheaderSecondaryFont); }
    QFont highlightSecondary() const { return prepared(HighlightSecondaryFont); }
    QFont headerSecondary() const { return prepared(HeaderSecondaryFont); }
    QFont bodySecondary() const { return prepared(BodySecondaryFont); }
    QFont hyperlinkSecondary() const { return prepared(HyperlinkSecondaryFont); }
    QFont highlightCompact() const { return prepared(HighlightCompactFont); }
    QFont bodyCompact() const { return prepared(BodyCompactFont); }
    QFont labelCompact() const { return prepared(LabelCompactFont); }
    QFont codeBlocks() const { return prepared(CodeBlocksFont); }
    QFont defaultFont() const { return prepared(DefaultFont); }

    FontManagerEnum::FontScalingFactor scalingFactor() const { return m_scalingFactor; }
    /// Announces fontTokenChanged() on every valid call, also for the same factor. A value outside the enumeration is
    /// reported and changes nothing.
    void setScalingFactor(FontManagerEnum::FontScalingFactor factor);

    /// The token's font, to be taken again after each fontTokenChanged(). A token that does not exist is reported and
    /// gives the font of Default.
    QFont getFont(WFont::Token token) const;

    /// Prepares all fonts again from the present factors and the present application font, without a signal.
    void initializeTokens();

Q_SIGNALS:
    /// The view's scaling factor or the application's font scale was set; all fonts may be others now.
    void fontTokenChanged();

private:
    /// Tokens of equal specification share a font.
    enum PreparedFont {
        DisplayFont,
        BannerTertiaryFont,
        BannerPrimaryFont,
        BannerSecondaryFont,
        TitleFont,
        HeaderPrimaryFont,
        HighlightPrimaryFont,
        SubheaderPrimaryFont,
        BodyPrimaryFont,
        HyperlinkPrimaryFont,
        SubheaderSecondaryFont,
        HighlightSecondaryFont,
        HeaderSecondaryFont,
        BodySecondaryFont,
        HyperlinkSecondaryFont,
        HighlightCompactFont,
        BodyCompactFont,
        LabelCompactFont,
        CodeBlocksFont,
        DefaultFont,
        RadioButtonLabelSecondaryFont,
        PreparedFontCount
    };

    static PreparedFont preparedFontOf(WFont::Token token);
    QFont build(PreparedFont font) const;
    QFont prepared(PreparedFont font) const;

    FontManagerEnum::FontScalingFactor m_scalingFactor = FontManagerEnum::Regular;
    // Each font from its first use on.
    mutable std::vector<QFont> m_fonts;
    mutable std::bitset<PreparedFontCount> m_isPrepared;
};
