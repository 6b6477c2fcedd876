#pragma once

#include "GalleryThemes.h"

#include <UiElements/widgets/WFrame.h>

class FlowLayout;
class Label;
class QComboBox;
class QPushButton;
class WSlider;

/// The bar at the top of the window: everything that changes the look of the whole application.
class GalleryBar : public WFrame
{
    Q_OBJECT

public:
    explicit GalleryBar(const GalleryThemes &themes, QWidget *parent = nullptr);

    /// Shows what is chosen without asking for it.
    void show(const GalleryThemes::Choice &choice);
    void showThemeType(const QString &themeType);
    void showDirection(Qt::LayoutDirection direction);
    using WFrame::show;

Q_SIGNALS:
    void themeRequested(const GalleryThemes::Choice &choice);
    void themeTypeRequested(const QString &themeType);
    void directionRequested(Qt::LayoutDirection direction);
    void fontScaleRequested(float factor);

private:
    void addField(const QString &title, const QString &id, QWidget *field);
    QComboBox *addChoice(const QString &title, const QString &id);
    void requestTheme();
    void requestFontScale(int percent);

    FlowLayout *m_fields;
    QComboBox *m_family;
    QComboBox *m_brightness;
    QComboBox *m_themeType;
    QComboBox *m_direction;
    QPushButton *m_highContrast;
    WSlider *m_fontScale;
    Label *m_fontScaleValue;
};
