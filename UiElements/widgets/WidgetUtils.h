#pragma once

#include <UiElements/uielements_export.h>

#include <QList>
#include <QRect>
#include <QString>

class QWidget;

/// Where a window stands: remembering it from one run to the next, and keeping it on a screen that exists.
///
/// All lengths are device-independent pixels in the coordinates of the virtual desktop, which are negative left of and
/// above the primary screen. A null argument, or a widget that is no window of its own, is one warning and no change.
///
/// Geometry files
/// --------------
/// A geometry file is a JSON object with the members
///
/// - "geometry": the base64 text of QWidget::saveGeometry();
/// - "WindowState": for a QMainWindow the base64 text of QMainWindow::saveState() (version 0), which holds its tool
/// bars
///   and docks; for any other window the number of its Qt::WindowStates, of which only maximized and full screen are
///   remembered. A window that was minimized when the application ended must not start out of sight.
///
/// Whatever else stands in the object belongs to others and stays. Files above 1 MiB are not geometry files.
class UIELEMENTS_EXPORT WidgetUtils
{
public:
    WidgetUtils() = delete;

    /// Writes both members, and the folders of the path where they are missing. The file is replaced as a whole: after
    /// a crash or on a full disk it is the old one.
    ///
    /// False, with a warning and nothing written, when the file cannot be written or is there and holds something else:
    /// JSON that is no object, more than a geometry file can be, or what cannot be read. A file that is no JSON at all
    /// is damaged: it is reported and replaced, or the geometry would never be remembered again.
    static bool saveGeometry(const QWidget *window, const QString &filePath);

    /// Gives the window the geometry and state of the file and then keeps it on a screen. A geometry that was saved on
    /// a screen which has since gone or changed its size is fitted to the screens there are.
    ///
    /// False, with the window unchanged, when there is nothing to restore: silently if the file or its member
    /// "geometry" is missing, as on the first start, and with a warning if the file or one of the two members is not as
    /// described above. A missing "WindowState" leaves the state to the geometry. For a main window call it when tool
    /// bars and docks are there and have their object names.
    static bool restoreGeometry(QWidget *window, const QString &filePath);

    /// Moves the window, with its frame, into the available geometry of the screen that fittedToScreen() chooses. It is
    /// made smaller only where the screen is too small for it, and never smaller than its minimum size: the top left
    /// corner, where the title begins, is then on the screen. Does nothing while the window is maximized or full
    /// screen.
    static void keepOnScreen(QWidget *widget);

    /// The frame moved, and cut to size where it must be, into one of the geometries: the one it shares the largest
    /// area with; the nearest if it touches none. The right-most wins where that is a tie. Unchanged when there is no
    /// geometry to choose from or the frame is empty; empty geometries do not count.
    static QRect fittedToScreen(const QRect &frame, const QList<QRect> &availableGeometries);
};
