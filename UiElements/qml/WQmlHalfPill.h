#pragma once

#include <UiElements/uielements_export.h>

#include <QColor>
#include <QQuickPaintedItem>

/// A box with one round end, as one half of a pill.
///
/// The round end is half a circle of the item's height. The border of that end follows it all round and belongs to
/// the side: `borderLeft` of a pill that is round on the left. All borders are inside the item. Sides are those of the
/// screen: they are not mirrored in a right-to-left layout.
class UIELEMENTS_EXPORT WQmlHalfPill : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged)
    Q_PROPERTY(bool borderBottom READ borderBottom WRITE setBorderBottom NOTIFY borderChanged)
    Q_PROPERTY(bool borderLeft READ borderLeft WRITE setBorderLeft NOTIFY borderChanged)
    Q_PROPERTY(bool borderRight READ borderRight WRITE setBorderRight NOTIFY borderChanged)
    Q_PROPERTY(bool borderTop READ borderTop WRITE setBorderTop NOTIFY borderChanged)
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth NOTIFY borderChanged)
    Q_PROPERTY(RoundEdge edge READ edge WRITE setEdge NOTIFY edgeChanged)

public:
    /// The end that is round.
    enum RoundEdge { Left, Right, None };
    Q_ENUM(RoundEdge)

    explicit WQmlHalfPill(QQuickItem *parent = nullptr);
    ~WQmlHalfPill() override;

    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);
    QColor borderColor() const { return m_borderColor; }
    void setBorderColor(const QColor &color);
    bool borderBottom() const { return m_borderBottom; }
    void setBorderBottom(bool on);
    bool borderLeft() const { return m_borderLeft; }
    void setBorderLeft(bool on);
    bool borderRight() const { return m_borderRight; }
    void setBorderRight(bool on);
    bool borderTop() const { return m_borderTop; }
    void setBorderTop(bool on);
    int borderWidth() const { return m_borderWidth; }
    void setBorderWidth(int width);
    RoundEdge edge() const { return m_edge; }
    void setEdge(RoundEdge edge);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void backgroundColorChanged();
    void borderColorChanged();
    void borderChanged();
    void edgeChanged();

private:
    template <typename T>
    void set(T &member, const T &value, void (WQmlHalfPill::*changed)());

    void drawSemiCircle(QPainter *painter, const QSizeF &size);
    void drawRect(QPainter *painter, const QSizeF &size);
    void drawBorders(QPainter *painter, const QSizeF &size, const QColor &borderColor, int borderWidth, bool bottom,
                     bool left, bool right, bool top);

    QColor m_backgroundColor = Qt::transparent;
    QColor m_borderColor = Qt::transparent;
    bool m_borderBottom = true;
    bool m_borderLeft = true;
    bool m_borderRight = true;
    bool m_borderTop = true;
    int m_borderWidth = 1;
    RoundEdge m_edge = Left;
};
