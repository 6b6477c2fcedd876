// Written by scripts/import-assets from scripts/assets/icons.tsv, where the reasons are. Change it there.
#pragma once

#include <QLatin1String>

/// The icons that are drawn mirrored where the text runs from right to left, sorted. A name stands for the plain and
/// the filled icon in every size: "reply" for ":/Resources/reply_16.svg" and ":/Resources/reply-filled_24.svg".
// clang-format off
inline constexpr QLatin1String mirroredIcons[] = {
    QLatin1String("arrow-left", 10),
    QLatin1String("arrow-right", 11),
    QLatin1String("back", 4),
    QLatin1String("calendar", 8),
    QLatin1String("chat", 4),
    QLatin1String("chat-add", 8),
    QLatin1String("chevron-left", 12),
    QLatin1String("chevron-right", 13),
    QLatin1String("forward", 7),
    QLatin1String("insights", 8),
    QLatin1String("reply", 5),
    QLatin1String("send", 4),
    QLatin1String("share", 5),
    QLatin1String("speaker", 7),
    QLatin1String("speaker-off", 11),
};
// clang-format on
