#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QSlider>

/// A themeable slider.
class UIELEMENTS_EXPORT WSlider : public Themed<WSlider, QSlider>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    /// Vertical, as QSlider is.
    explicit WSlider(QWidget *parent = nullptr);

    W_THEME_SIGNALS
#ifdef Q_MOC_RUN
public Q_SLOTS:
    void refreshCSS();
    void onParentThemeTypeChanged();
    void onThemeChanged();
    void onLayoutDirectionChanged();
#endif
};
