#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QPixmap>
#include <QWidget>

/// The themeable widget: a plain QWidget with the shared behaviour and, optionally, a picture.
class UIELEMENTS_EXPORT WWidget : public Themed<WWidget, QWidget>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WWidget(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    /// The file or resource of the picture. It is drawn above the background in the middle of the contents rectangle,
    /// scaled down to fit, never up; a "@2x" sibling is taken on a screen of that ratio. A picture that cannot be read
    /// is reported and the previous one stays; an empty path removes it.
    void setPixmapSrc(const QString &path);
    QString getPixmapSrc() const { return m_pixmapSrc; }

    W_THEME_SIGNALS
    W_THEME_SLOTS

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_pixmap;
    QString m_pixmapSrc;
};
