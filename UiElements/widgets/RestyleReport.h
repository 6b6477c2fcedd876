#pragma once

#include <UiElements/uielements_export.h>

#include <QtGlobal>

/// What it took to restyle the themed widgets after the application's colors or a theme type changed.
struct UIELEMENTS_EXPORT RestyleReport
{
    int restyled = 0; ///< widgets that got other colors, or whose ancestor did
    int unchanged = 0; ///< widgets for which everything stayed the same
    int deferred = 0; ///< hidden widgets, restyled when they are shown
    qint64 microseconds = 0; ///< without the painting, which comes later

    /// The last one that is over.
    static RestyleReport last();
};
