#pragma once

#include <UiElements/uielements_export.h>

#include <QMetaType>
#include <QObject>

/// What the font manager is asked with.
namespace FontManagerEnum {
Q_NAMESPACE_EXPORT(UIELEMENTS_EXPORT)

/// The kinds of view that scale their fonts independently of each other.
enum FontType : int { Default, MessagingView, MeetingView };
Q_ENUM_NS(FontType)

/// How large a view writes: 0.875, 1, 1.125 and 1.25 times the application's size.
enum FontScalingFactor : int { Small, Regular, Medium, Large };
Q_ENUM_NS(FontScalingFactor)
} // namespace FontManagerEnum

Q_DECLARE_METATYPE(FontManagerEnum::FontType)
Q_DECLARE_METATYPE(FontManagerEnum::FontScalingFactor)
