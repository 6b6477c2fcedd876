#pragma once

#include <UiElements/app/IWApplication.h>
#include <UiElements/theme/ThemeRegistry_p.h>

#include <QObject>
#include <QPointer>

class IWApplicationPrivate
{
public:
    static const IWApplicationPrivate *get(const IWApplication *app) { return app->d.get(); }
    /// For whoever replaces several values at once: all of them first, then the signals, each once.
    static IWApplicationPrivate *get(IWApplication *app) { return app->d.get(); }

    /// The same as the application's setter, but not the host's word.
    static void changeAnimationsDisabled(IWApplication *app, bool disabled);

    ThemeRegistry colorSets;
    ThemeRegistry invertedColorSets;
    WColorTokens colorTokens;
    bool isDarkTheme = false;
    bool isHighContrastTheme = false;
    bool animationsDisabled = false;
    bool hostSetAnimations = false; ///< the host called the setter, and nobody gave the choice back since
    QPointer<QObject> qmlEngine;
    bool isShuttingDown = false;
};
