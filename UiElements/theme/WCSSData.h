#pragma once

#include <UiElements/theme/WColorSet.h>

#include <QString>

/// The structured form of a style template: what its directives say.
///
/// WThemeUtils::parseCSS() fills all of it from a template; WThemeUtils::convertToWCSS() writes a template from the
/// names, the sides with their width and the trailing text, so that a style editor can read, change and write.
struct WCSSData
{
    /// Bits of rectangularCornerMask.
    enum Corner : quint8 { TopLeftCorner = 1, TopRightCorner = 2, BottomLeftCorner = 4, BottomRightCorner = 8 };

    QString backgroundColorSetName;
    QString borderColorSetName;
    QString textColorSetName;
    /// What stands in the template beside the directives, with its tokens unexpanded and blanks at both ends removed.
    QString trailingText;
    bool leftBorder = false;
    bool topBorder = false;
    bool rightBorder = false;
    bool bottomBorder = false;
    /// The border-color directive is not written. A result of convertToWCSS() and parseCSS(), never an input.
    bool suppressBorderColor = false;
    /// The focus frame drawn around the element follows the border radius.
    bool focusBorderRadius = false;
    /// The template speaks about borders at all. Set with no side, it asks for "no border": "border:none;" is written
    /// and a border color would be pointless.
    bool hasBorders = false;
    /// Corners that stay rectangular (Corner bits); 0 when all corners are rounded or no radius was asked for.
    quint8 rectangularCornerMask = 0;
    int borderWidth = 0; ///< in pixels
    int borderRadius = 0; ///< in pixels

    WColorSet backgroundColorSet;
    WColorSet borderColorSet;
    WColorSet textColorSet;
    QString borderText; ///< "border-style:solid; border-width:1px;" and its like
    QString radiusText; ///< "border-radius:6px;" and its like
    /// The expanded Qt style sheet.
    QString styleSheet;
};
