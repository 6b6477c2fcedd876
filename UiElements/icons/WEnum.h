#pragma once

#include <UiElements/uielements_export.h>

#include <QObject>

/// Choices that several elements share.
namespace WEnum {
Q_NAMESPACE_EXPORT(UIELEMENTS_EXPORT)

/// Where an icon is beside its text. Left and Right are those of a left-to-right layout and change places in a
/// right-to-left one.
enum class Alignment { Left, Right, Top, Bottom };
Q_ENUM_NS(Alignment)

/// Where a text is in the room that it has, in a left-to-right layout.
enum class HorAlign { Left, Center, Right };
Q_ENUM_NS(HorAlign)

} // namespace WEnum
