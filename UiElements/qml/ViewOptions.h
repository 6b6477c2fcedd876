#pragma once

#include <QPointer>
#include <QWindow>

/// How a WQuickView behaves as a window.
struct ViewOptions
{
    bool closeOnEscape = false; ///< Escape that no item takes closes the view
    bool trackActivation = false; ///< the view is told when it loses activation and when its parent window moves
    bool deleteOnClose = true; ///< a close event deletes the view, later
    quint8 reserved = 0;
    QPointer<QWindow> parentWindow; ///< the window whose moves are followed
};
