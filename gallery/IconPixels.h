#pragma once

#include <UiElements/icons/WSvgRenderer.h>

#include <QWidget>

/// The picture of an icon at one ratio of pixels, each pixel as a small square.
class IconPixels : public QWidget
{
    Q_OBJECT

public:
    explicit IconPixels(double ratio, QWidget *parent = nullptr);

    void setIcon(const QString &path, int side, const std::string &colorSet);
    /// The pixels of one edge.
    int pixels() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const double m_ratio;
    WSvgRenderer m_renderer;
    int m_side = 0;
    std::string m_colorSet;
};
