#pragma once

#include <UiElements/uielements_export.h>

#include <QColor>
#include <QQuickPaintedItem>
#include <QRect>

/// A rounded box with an arrow that points at what the box belongs to.
///
/// The arrow takes a strip as deep as `arrowSize` of the item's side that carries it, and is twice as wide as deep;
/// the box is the rest. The border is inside the item. Sides are those of the screen: they are not mirrored in a
/// right-to-left layout. Sizes below 0 count as 0 when the balloon is drawn.
class UIELEMENTS_EXPORT WQmlBalloon : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(ArrowAlignment arrowAlignment READ arrowAlignment WRITE setArrowAlignment NOTIFY arrowAlignmentChanged)
    Q_PROPERTY(ArrowAnchor arrowAnchor READ arrowAnchor WRITE setArrowAnchor NOTIFY arrowAnchorChanged)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged)
    Q_PROPERTY(int arrowOffset READ arrowOffset WRITE setArrowOffset NOTIFY arrowOffsetChanged)
    Q_PROPERTY(int arrowSize READ arrowSize WRITE setArrowSize NOTIFY arrowSizeChanged)
    Q_PROPERTY(int radius MEMBER m_radius NOTIFY radiusChanged)
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth NOTIFY borderWidthChanged)
    Q_PROPERTY(int topMargin READ topMargin WRITE setTopMargin NOTIFY topMarginChanged)

public:
    /// The side that carries the arrow; the values are those of Qt::ArrowType.
    enum ArrowAnchor { None = 0, Top = 1, Bottom = 2, Left = 3, Right = 4 };
    Q_ENUM(ArrowAnchor)

    /// Where along its side the arrow sits. An alignment that does not fit the side means the middle.
    enum ArrowAlignment {
        LeftAlignment = 0,
        CenterAlignment = 1,
        RightAlignment = 2,
        TopAlignment = 3,
        BottomAlignment = 4
    };
    Q_ENUM(ArrowAlignment)

    explicit WQmlBalloon(QQuickItem *parent = nullptr);
    ~WQmlBalloon() override;

    ArrowAlignment arrowAlignment() const { return m_arrowAlignment; }
    void setArrowAlignment(ArrowAlignment alignment);
    ArrowAnchor arrowAnchor() const { return m_arrowAnchor; }
    void setArrowAnchor(ArrowAnchor anchor);
    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);
    QColor borderColor() const { return m_borderColor; }
    void setBorderColor(const QColor &color); ///< without a color the border takes no room
    int arrowOffset() const { return m_arrowOffset; }
    void setArrowOffset(int offset); ///< moves the arrow along its side, to the right or down
    int arrowSize() const { return m_arrowSize; }
    void setArrowSize(int size);
    int borderWidth() const { return m_borderWidth; }
    void setBorderWidth(int width);
    int topMargin() const { return m_topMargin; }
    void setTopMargin(int margin); ///< left empty at the top of the item, above box and arrow

    static ArrowAnchor arrowAnchorFromArrowType(Qt::ArrowType type);
    static Qt::ArrowType arrowTypeFromArrowAnchor(ArrowAnchor anchor);
    /// The opposite side.
    static ArrowAnchor flipAnchor(ArrowAnchor anchor);

    /// The left edge, on the desktop, of a popup of that width whose arrow is to meet the middle of the target's side.
    /// With an arrow on its left or right side the popup is beside the target.
    static int getGlobalXCenter(ArrowAlignment alignment, ArrowAnchor anchor, const QRect &target, int arrowOffset,
                                int arrowSize, int popupWidth);
    /// The top edge in the same way. Without an arrow the popup begins at the top of the target.
    static int getGlobalYCenter(ArrowAlignment alignment, ArrowAnchor anchor, const QRect &target, int arrowOffset,
                                int arrowSize, int popupHeight);
    /// Both for an item as the target: where on the desktop the top left corner of a popup of that size goes.
    static QPoint calcArrowPos(QQuickItem *target, const QSize &popupSize, ArrowAnchor anchor, ArrowAlignment alignment,
                               int arrowOffset, int arrowSize);

    /// Where the tip of an arrow is along the top or the bottom side of an item of that size, never above a corner.
    qreal getXCenter(const QSizeF &size) const;
    /// The same along the left or the right side.
    qreal getYCenter(const QSizeF &size) const;

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void arrowAlignmentChanged();
    void arrowAnchorChanged();
    void backgroundColorChanged();
    void borderColorChanged();
    void arrowOffsetChanged();
    void arrowSizeChanged();
    void radiusChanged();
    void borderWidthChanged();
    void topMarginChanged();

private:
    template <typename T>
    void set(T &member, const T &value, void (WQmlBalloon::*changed)());
    qreal clamped(qreal center, qreal length) const;

    ArrowAlignment m_arrowAlignment = CenterAlignment;
    ArrowAnchor m_arrowAnchor = Top;
    QColor m_backgroundColor = Qt::transparent;
    QColor m_borderColor = Qt::transparent;
    int m_arrowOffset = 0;
    int m_arrowSize = 10;
    int m_radius = 0;
    int m_borderWidth = 1;
    int m_topMargin = 0;
};
