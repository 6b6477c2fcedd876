#pragma once

#include <QWidget>

/// Six swatches, one for each state of a color set, in the colors of the widget's theme type.
class ColorSwatches : public QWidget
{
    Q_OBJECT

public:
    explicit ColorSwatches(const QString &setName, QWidget *parent = nullptr);

    QSize sizeHint() const override;

    static constexpr int SwatchWidth = 26;
    static constexpr int Spacing = 4;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect swatch(int state) const;

    const std::string m_setName;
};
