#pragma once

#include <UiElements/app/WAppSignals.h>

/// One shortcut of the main window.
struct ShortcutRow
{
    WAppSignals::Shortcut id;
    int key; ///< a key with its modifiers, or the negative of a QKeySequence::StandardKey
    void (*emitSignal)(WAppSignals &bus);
    WShortcut::ShortcutGroup registeredWith;
    WShortcut::ShortcutGroup group; ///< 0 for what help does not list
    const char *description; ///< source text of the context "WShortcut"; may be null

    QKeySequence keySequence() const;
};

/// All shortcuts, in the order in which they are registered.
struct ShortcutTable
{
    const ShortcutRow *begin() const;
    const ShortcutRow *end() const;
};

/// The name of the standard edit action that text inputs give to the key; empty for none.
QString standardEditAction(const QKeySequence &key);
/// True for keys that desktops take before a program sees them.
bool isReservedByDesktops(const QKeySequence &key);
