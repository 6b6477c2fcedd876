#pragma once

#include <UiElements/uielements_export.h>

/// The types of the QML module "UiElements" 1.0.
class UIELEMENTS_EXPORT WQmlTypes
{
public:
    WQmlTypes() = delete;

    /// To be called before QML that imports the module is loaded; calls after the first do nothing.
    ///
    /// OverflowListProxyModel, WBalloon, WHalfPill, WQmlPopupController and WQmlDialogController can be made in QML.
    /// The singleton `Theme` gives the colors and fonts of the application:
    ///
    ///     color: Theme.colorSet("background-primary").normal
    ///     color: Theme.colorSet("text-primary", controller.themeType).disabled
    ///     font: Theme.fonts.BodyPrimary
    ///
    /// Such bindings follow a change of the theme, of its flags and of the font scale. Beside `fonts` there are
    /// `messagingFonts` and `meetingFonts`, and the flags `isDark`, `isHighContrast`, `animationsDisabled` and
    /// `isMirrored` (laid out from right to left). `Theme.icon("chat_24", color)` is the source of an Image that shows
    /// an icon of the library's set in that color.
    static void registerQmlTypes();
};
