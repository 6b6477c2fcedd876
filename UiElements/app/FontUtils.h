#pragma once

#include <UiElements/app/WFont.h>
#include <UiElements/uielements_export.h>

#include <QFontMetrics>
#include <QMetaType>
#include <QObject>
#include <QString>

/// Helpers around the typographic scale. GUI thread only.
class UIELEMENTS_EXPORT FontUtils
{
    Q_GADGET

public:
    /// The families that the library writes in: "Segoe UI", "Consolas" and "Segoe UI Emoji". A value outside the
    /// enumeration is reported and means Default.
    enum SupportedFontFamily : int { Default, Monospace, Emoji };
    Q_ENUM(SupportedFontFamily)

    FontUtils() = delete;

    /// At the application's font scale. The factor of a view is not in it: there, measure the font that
    /// WScaledFonts::getFont() gives.
    static QFontMetrics fontMetrics(WFont::Token token);

    /// True for a font that asks for "Consolas", whatever it is drawn with, and for one whose narrow and wide letters
    /// are drawn equally wide.
    static bool isMonospaceFont(const WFont &font);

    /// The size is not scaled by the application. A size below 1 is reported and gives the size of WFont::Default.
    static WFont getFontByPixelSize(int pixelSize, SupportedFontFamily family = Default);

    /// The nearest whole point size on the primary screen, at 96 dots per inch without one; at least 1. A size below 1
    /// is reported and gives 0.
    static int pixelSizeToPointSize(int pixelSize);

    /// A document of one paragraph in that family. The text is plain text: what looks like markup in it is shown as it
    /// stands. Runs of white space and line breaks become one blank unless keepWhiteSpace is set.
    static QString toHtml(const QString &text, SupportedFontFamily family = Default, bool keepWhiteSpace = false);
};

Q_DECLARE_METATYPE(FontUtils::SupportedFontFamily)
