#pragma once

#include "Page.h"

#include <UiElements/theme/WThemeUtils.h>

#include <QVector>

#include <functional>

class IconGrid;
class IconModel;
class IconPixels;
class IconSample;
class Label;
class QIcon;
class QToolBar;
class QVBoxLayout;
class WMenu;

/// The library's icons, and what an icon can be: in states, of two, in its own colors, moving, mirrored, in a QIcon.
class IconsPage : public Page
{
    Q_OBJECT

public:
    IconsPage();

protected:
    void showEvent(QShowEvent *event) override;

private:
    struct Sample
    {
        IconSample *sample;
        int side;
    };
    struct Picture
    {
        IconPixels *pixels;
        Label *caption;
        double ratio;
    };
    using GiveIcon = std::function<void(const QIcon &)>;

    void addSet();
    void addStates();
    void addPixels();
    void addKinds();
    void addPlainWidgets();
    void addDirections();

    QWidget *makeChoices();
    void showChosenIcon();
    /// Gives a QIcon now and again for each theme type of the window: a QIcon does not know where it is shown.
    void followThemeType(const QString &name, const QString &colorSet, const GiveIcon &give,
                         const QString &checkedName = QString());
    void giveIcons();
    void fillToolBar(QToolBar *bar);
    void fillMenu(WMenu *menu);

    IconModel *const m_model;
    IconGrid *m_grid;
    Label *m_count;
    Label *m_path;
    QVector<Sample> m_samples;
    QVector<Picture> m_pictures;
    QVector<std::function<void(WThemeUtils::AppThemeType)>> m_iconGivers;
    WThemeUtils::AppThemeType m_iconType = WThemeUtils::AppThemeTypeGlobal;
};
