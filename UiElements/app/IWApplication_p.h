#pragma once

#include <UiElements/app/IWApplication.h>
#include <UiElements/theme/ThemeRegistry_p.h>

#include <QObject>
#include <QPointer>

class IWApplicationPrivate
{
public:
    static const IWApplicationPrivate *get(const IWApplication *app) { return app->d.get(); }

    ThemeRegistry colorSets;
    ThemeRegistry invertedColorSets;
    WColorTokens colorTokens;
    bool isDarkTheme = false;
    bool isHighContrastTheme = false;
    bool animationsDisabled = false;
    QPointer<QObject> qmlEngine;
    bool isShuttingDown = false;
};
