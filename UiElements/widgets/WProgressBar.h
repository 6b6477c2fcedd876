#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QProgressBar>

/// A themeable progress bar whose size can be pinned.
///
/// The bar is drawn in the middle of the widget at its height for the moment: barHeight while there is progress to
/// show, idleBarHeight before the first (the value is below or at the minimum, and the bar is not the endless one of an
/// equal minimum and maximum). The widget is as high as the higher of the two, so that nothing around it moves.
class UIELEMENTS_EXPORT WProgressBar : public Themed<WProgressBar, QProgressBar>
{
    Q_OBJECT
    Q_PROPERTY(QString styleSheet READ styleSheetProperty WRITE setCSS NOTIFY cssChanged)
    Q_PROPERTY(int barWidth READ barWidth WRITE setBarWidth)
    Q_PROPERTY(int barHeight READ barHeight WRITE setBarHeight)
    Q_PROPERTY(int idleBarHeight READ idleBarHeight WRITE setIdleBarHeight)
    Q_PROPERTY(QString themeType READ themeType WRITE setThemeType NOTIFY themeTypeChanged)
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WProgressBar(QWidget *parent = nullptr);

    // All in pixels; 0, the default, leaves the length to layout and style. Negative lengths are reported and ignored.
    int barWidth() const { return m_barWidth; }
    void setBarWidth(int width);
    int barHeight() const { return m_barHeight; }
    void setBarHeight(int height);
    int idleBarHeight() const { return m_idleBarHeight; }
    void setIdleBarHeight(int height);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    W_THEME_SIGNALS
#ifdef Q_MOC_RUN
public Q_SLOTS:
    void onThemeChanged();
    void onParentThemeTypeChanged();
    void onLayoutDirectionChanged();
#endif

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setLength(int *length, int value);
    QSize pinned(QSize hint) const;
    int shownBarHeight() const;

    int m_barWidth = 0;
    int m_barHeight = 0;
    int m_idleBarHeight = 0;
};
