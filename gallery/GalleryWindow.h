#pragma once

#include "GalleryThemes.h"

#include <UiElements/widgets/WMainWindow.h>

#include <functional>

class GalleryBar;
class Label;
class Page;
class WListWidget;
class WStackedWidget;

/// The window of the gallery: the bar at the top, the navigation at the side, one page at a time.
class GalleryWindow : public WMainWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(GalleryThemes *themes, QWidget *parent = nullptr);

    /// By the name in the registry; made when it is first shown. False for a name that is not there.
    bool showPage(const QString &name);
    Page *currentPage() const;
    /// As high as it takes to show the page without scrolling, at the present width.
    void fitToPage();

    void setTheme(const GalleryThemes::Choice &choice);
    void setWindowThemeType(const QString &themeType);
    void setDirection(Qt::LayoutDirection direction);
    void setFontScale(float factor);
    /// Durations differ from run to run; pictures are made without them.
    void setTimesShown(bool shown);

private:
    QWidget *makeSide();
    void registerShortcuts();
    void showPageAt(int row);
    /// Makes the change, sees that it is on the screen and tells how long that took.
    void timed(const std::function<void()> &change);
    void showStatus(const QString &text);

    GalleryThemes *m_themes;
    GalleryBar *m_bar;
    WListWidget *m_navigation;
    WStackedWidget *m_stack;
    Label *m_status;
    QVector<Page *> m_pages; // null until shown
    bool m_timesShown = true;
};
