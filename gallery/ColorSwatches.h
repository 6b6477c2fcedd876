#pragma once

#include <QColor>
#include <QVector>
#include <QWidget>

/// Colors beside each other, with a caption below each, in as many rows as the width asks for.
///
/// The arrow keys go from one to the next, and each says what it is: as tooltip, and to screen readers.
class ColorSwatches : public QWidget
{
    Q_OBJECT

public:
    struct Swatch
    {
        QString caption;
        QString description;
        QColor ground; ///< without one there is nothing but the caption
        QColor front; ///< of the letters, or of the edge
        bool isEdge = false;
    };

    /// No swatch is narrower than the text.
    explicit ColorSwatches(const QString &name, const QString &widest = QString(), QWidget *parent = nullptr);

    void setSwatches(const QVector<Swatch> &swatches);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    /// The up key (-1) or the down key (1) leads out of the swatches.
    void leavesBy(int step);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    int boxHeight() const;
    QSize cell() const;
    int columns(int width) const;
    QRect place(int index) const;
    void moveTo(int index);
    void say(const QPoint &globalPlace);

    const QString m_widest;
    QVector<Swatch> m_swatches;
    int m_current = 0;
};
