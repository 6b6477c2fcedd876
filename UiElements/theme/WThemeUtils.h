#pragma once

#include <UiElements/theme/WCSSData.h>
#include <UiElements/theme/WColorSet.h>
#include <UiElements/uielements_export.h>

#include <QJsonObject>
#include <QMetaType>
#include <QString>

class QWidget;

/// The theme engine: color files and theme files, the application's color sets, and the expansion of style templates.
///
/// All members are static and belong to the GUI thread. Nothing throws: what cannot be done is one warning in the
/// message log and an empty or default result.
///
/// Color files
/// -----------
/// `{"colors": [{"variations": [{"name": ..., "alias": ..., "rgba": {"r", "g", "b", "a"}}]}]}`. The name is a key of
/// the palette; an alias beside it is a second key for the same color. A variation without "rgba" takes the color that
/// its alias names, which may itself be an alias. A color's own name wins over another color's alias.
///
/// Templates
/// ---------
/// A template is a Qt style sheet with tokens and directives:
///
///     $backgroundColors: button-primary-background; $textColors: button-primary-text;
///     $borders: all; $borderWidth: 1; $borderRadius: 6; padding: 4px 12px;
///     QLabel { color: $(text-secondary.normal); }
///
/// - `$(set.state)` stands for one color, written "#aarrggbb". It must stand on one line.
/// - `$backgroundColors: set;`, `$borderColors: set;` and `$textColors: set;` stand for one rule per state.
/// - `$borders: sides;` gives the sides a solid border: `left`, `top`, `right`, `bottom` or `all`, separated by blanks
///   or commas. `$borders: none;` asks for no border at all; without the directive nothing is said about borders.
/// - `$borderWidth: 2;` is the width of those borders in pixels, 1 if it is not given.
/// - `$borderRadius: 6;` rounds all corners. Words behind the number narrow that: `$borderRadius: 6 top;` is the top
///   edge, `$borderRadius: 6 top-left, bottom-left;` are single corners. The word `focus` makes the focus frame drawn
///   around the element follow: the widget gets the dynamic properties "focusBorderRadius" (pixels) and
///   "rectangularCornerMask" (WCSSData::Corner bits of the corners that stay rectangular).
/// - Numbers may carry "px". Upper and lower case of sides and corners do not matter; words that mean nothing here are
///   reported and ignored.
/// - A background set named "gradient-background-primary", "gradient-background-secondary" or
///   "gradient-background-secondary-dialog" is drawn as a gradient between the two sets
///   "theme-gradient-primary-0-background" and "theme-gradient-primary-1-background" (likewise "secondary" and
///   "dialog-secondary"), in their normal colors; the other states are the colors of the background set itself.
/// - A directive reaches up to the next ";": one that is forgotten swallows what stands before the next. The last one
/// in
///   a template without its ";" is reported and left out.
/// - A set that the theme does not have is reported and written as black, "#ff000000".
/// - Sides and corners are those of the screen; they are not mirrored in a right-to-left layout.
///
/// The result is the rules of the directives followed by the rest of the template, in which declarations outside any
/// rule are given the selector of the element: its object name or, without one, its class, by which elements of that
/// class inside of it are meant, too. The rules of the states are written so that the state which shows is
/// the one an icon in the same element shows: disabled before pressed before hovered before focused (where that color
/// differs from the normal one) before checked.
class UIELEMENTS_EXPORT WThemeUtils
{
    Q_GADGET

public:
    /// Which theme an element asks for; AppThemeTypeGlobal follows the application.
    enum AppThemeType { AppThemeTypeGlobal = 0, AppThemeTypeLight = 1, AppThemeTypeDark = 2, AppThemeTypeInverted = 3 };
    Q_ENUM(AppThemeType)

    /// What a color set is used for; the index of its directive.
    enum ColorSetType { ColorSetTypeBackground = 0, ColorSetTypeBorder = 1, ColorSetTypeText = 2 };
    Q_ENUM(ColorSetType)

    WThemeUtils() = delete;

    /// The object at the root of the JSON file; an empty object if there is none.
    static QJsonObject readJsonObject(const QString &path);

    /// The named colors of a color file.
    static WPalette parseWColorsFromJson(const QString &path);
    static WPalette parseWColorsFromJson(const QJsonObject &root);

    /// The color sets of a theme file. With a palette its states are names of palette colors; with an empty palette
    /// they are {"r", "g", "b", "a"} objects. The text of each set is its name.
    static WColorSets parseWColorSetsFromJson(const QString &path, const WPalette &palette);
    static WColorSets parseWColorSetsFromJson(const QJsonObject &root, const WPalette &palette);

    /// The registries of the application object; empty maps where there is none. Setting without an application object
    /// is reported and does nothing. The references stay valid until the registry is replaced.
    static const WColorSets &getAppWColorSets();
    static void setAppWColorSets(const WColorSets &sets);
    static const WColorSets &getAppInvertedWColorSets();
    static void setAppInvertedWColorSets(const WColorSets &sets);
    static const WColorTokens &getAppWColorTokens();
    static void setAppWColorTokens(const WColorTokens &tokens);

    /// True in a high-contrast mode, as the host told the application object.
    static bool isHighContrastEnabled();

    /// The registry for elements of that theme type: the application's sets in high contrast and for the theme that
    /// the application shows, the inverted ones for the opposite theme.
    static const WColorSets &getWColorSetsByThemeType(AppThemeType type);

    /// A copy of one set. An empty name gives a default set; so does an unknown one, which is reported.
    static WColorSet getColorSet(const std::string &name, AppThemeType type);

    /// The value of the directive for that kind of set: the text up to the next ";", trimmed.
    static QString getColorSetNameFromString(ColorSetType type, const QString &css);

    /// "light", "dark", "inverted", and "global" for everything else.
    static QString themeTypeToString(AppThemeType type);
    /// The reverse, case-sensitive; every other text is global.
    static AppThemeType stringToThemeType(const QString &text);

    /// The "themeType" of the widget or, where that is global, of its window.
    static AppThemeType getThemeTypeOfWidget(const QWidget *widget);

    /// A set whose six colors are fully transparent.
    static WColorSet transparentColourSet();

    /// The style block for hyperlinks in rich text, in the colors of the set "button-hyperlink-text".
    static QString getHyperlinkCSS(AppThemeType type);

    /// Expands the template for the widget: its selector is "#" and its object name, or its class name. With a theme
    /// type of its own the widget's registry is used, otherwise the sets that are passed. An object name that no
    /// selector can spell is addressed as [objectName="..."], one with quotes in it by its class; in class names "::"
    /// is written "--", as Qt wants it.
    static WCSSData parseCSS(QWidget *widget, const QString &css, const WColorSets &colorSets);
    static WCSSData parseCSS(const QString &selector, const QString &css, const WColorSets &colorSets);

    /// Writes directives: the border text of the sides (only where hasBorders is set or a side is), the color-set names
    /// that are not blank, the trailing text. Numbers other than the border width are not written.
    static QString convertToWCSS(const WCSSData &data);

    /// Removes every directive that has a value; the text is trimmed if there was one.
    static void removeWCSSFromStyleSheet(QString &css);
};

Q_DECLARE_METATYPE(WThemeUtils::AppThemeType)
Q_DECLARE_METATYPE(WThemeUtils::ColorSetType)
