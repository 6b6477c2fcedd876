#pragma once

#include <UiElements/uielements_export.h>

#include <QFont>
#include <QMetaType>
#include <QStringList>

/// A font of the typographic scale.
///
/// Nothing is stored beside the QFont, so a WFont may be copied into one and back. Whatever a constructor does not
/// name comes from the application's default font.
class UIELEMENTS_EXPORT WFont : public QFont
{
    Q_GADGET

public:
    /// Each token fixes a pixel size, a weight and whether the text is underlined. The numbers are part of the
    /// contract.
    enum Token : int {
        Default = 0,
        Title = 1,
        Header = 2,
        SubheaderPrimary = 3,
        SubheaderSecondary = 4,
        BodyPrimary = 5,
        BodySecondary = 6,
        BodyTertiary = 7,
        BannerPrimary = 8,
        BannerSecondary = 9,
        BannerTertiary = 10,
        HighlightPrimary = 11,
        HighlightSecondary = 12,
        HighlightTertiary = 13,
        HyperlinkPrimary = 14,
        HyperlinkSecondary = 15,
        TagLabelPrimary = 16,
        TagLabelSecondary = 17,
        CodeBlocks = 18,
        RadioButtonLabelSecondary = 19,
        Display = 20
    };
    Q_ENUM(Token)

    /// The token's font at the font scale of the application object, as that is now; unscaled without one. A token that
    /// does not exist is reported and gives the font of Default.
    ///
    /// The family stays that of the application, and is "Consolas" for CodeBlocks. With fallback families the font
    /// gets a list of families that is preferred to its family(): good for prose in any script. Do not ask for it
    /// together with CodeBlocks, which would then be drawn in a proportional font.
    explicit WFont(Token token, bool withFallbackFamilies = false);

    /// Pixel sizes are taken as they are, the application's font scale is not applied. Weights are those of QFont, 0 to
    /// 99. A size below 1 or another weight is reported and replaced, both together, by those of Default. An empty
    /// family, or an empty list, leaves the application's.
    WFont(const QString &family, int pixelSize, int weight);
    WFont(const QStringList &families, int pixelSize, int weight);

    WFont(const QFont &font);
    WFont(const WFont &other) = default;
    WFont &operator=(const WFont &other) = default;

private:
    void applySizeAndWeight(int pixelSize, int weight);
    void preferFamily(const QString &family);
};

static_assert(sizeof(WFont) == sizeof(QFont), "a WFont is sliced into a QFont wherever a widget takes it");

Q_DECLARE_METATYPE(WFont::Token)
