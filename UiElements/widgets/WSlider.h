#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QPoint>
#include <QSlider>

/// A themeable slider.
///
/// In a template `::sub-page` is the part before the handle of a horizontal slider, also where that is the right one:
/// in a right-to-left layout, or with an inverted appearance. (Qt takes the left part whatever the direction.) Of a
/// vertical slider it is the part above the handle, as Qt has it.
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

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPoint m_hoverPosition;
};
