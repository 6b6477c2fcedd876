#pragma once

#include <UiElements/uielements_export.h>

#include <QVector>

class QObject;
class QQuickWidget;
class QWidget;

/// The order in which Tab goes through a window of widgets and of QML in QQuickWidgets.
///
/// A stop is a place where Tab stops: a widget, or a QML item inside a QQuickWidget (here: a view). Who is one follows
/// Qt: what is visible, enabled and takes the focus by Tab, of a widget with a focus proxy the proxy, of a group of
/// exclusive buttons the one that had the focus last (each of them until one had it). Opacity does not count. The order
/// is logical: right-to-left changes nothing.
///
/// A null argument is one warning and no change.
class UIELEMENTS_EXPORT TabOrderUtils
{
public:
    TabOrderUtils() = delete;

    /// Tab goes through the widgets as they are listed, from where the earliest of them stood; the others of the window
    /// keep their order. A compound widget (one whose focus proxy is inside it, or a spin box) comes as a whole, in its
    /// own order. A widget that takes no focus stands for what is inside it. Null and repeated widgets are left out,
    /// each with a warning. Widgets of more than one window are refused with one warning, and the order stays.
    static void setTabOrder(const QVector<QWidget *> &widgets);

    /// Orders what is inside the container as one reads it: rows from top to bottom, each row in the container's layout
    /// direction. Widgets are in one row when they share more than half the height of the lower one. A tall widget is
    /// read between what is beside it on either side. What is inside a nested widget stays together. To be called when
    /// the layout has placed the widgets, and again when it places them differently.
    static void setReadingOrder(QWidget *container);

    /// All stops of the window, in the order of Tab, from the start of its chain: a view is its items. A view without
    /// any is a stop itself unless Tab is let through.
    static QVector<QObject *> stops(const QWidget *window);

    /// The stop after or before any widget or item of the window, going round at its ends; the first or the last one
    /// for null. Null when the window has no stop, and with a warning when `from` is not in the window.
    static QObject *nextStop(const QWidget *window, const QObject *from, bool forward);

    /// Move the focus as Tab and Backtab do, going round at the ends of the window. False when there is no stop.
    static bool focusNext(QWidget *window);
    static bool focusPrevious(QWidget *window);

    /// Moves the focus past the widget and all that is inside it, to the next or the previous stop of the window. False
    /// when there is no other. It is for containers of foreign content, which has a focus chain of its own.
    static bool focusNextPrevChild(QWidget *widget, bool next);

    /// Makes Tab and Backtab go through the view: into it at its first or last item, and from its last or first item to
    /// the next or previous stop of the window. Without this Tab never leaves a view that has two items.
    ///
    /// An item that accepts the key keeps it: a TextEdit that inserts tabs, a handler of Keys or KeyNavigation. A view
    /// without a stop is passed over. A view that is hidden or disabled hands on the focus. Nothing is remembered
    /// between two keys: QML may be loaded, changed and replaced at any time. Tab with Ctrl, Alt or Meta is not
    /// touched. Repeated calls have no effect. It lasts as long as the view.
    static void letTabThrough(QQuickWidget *view);
};
