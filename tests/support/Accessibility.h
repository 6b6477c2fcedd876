#pragma once

#include <QAccessible>
#include <QLibrary>

// The platform tells whether somebody listens; the one without a display has nobody, and no public function says so.
inline bool setAccessibilityActive(bool active)
{
    QLibrary gui(QStringLiteral("Qt5Gui"), 5);
    const auto platform = reinterpret_cast<void **>(gui.resolve("_ZN22QGuiApplicationPrivate20platform_integrationE"));
    const auto accessibility =
        reinterpret_cast<void *(*)(const void *)>(gui.resolve("_ZNK20QPlatformIntegration13accessibilityEv"));
    const auto setActive =
        reinterpret_cast<void (*)(void *, bool)>(gui.resolve("_ZN22QPlatformAccessibility9setActiveEb"));
    if (platform && accessibility && setActive)
        setActive(accessibility(*platform), active);
    return QAccessible::isActive() == active;
}
