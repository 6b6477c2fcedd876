#pragma once

#include <QImage>
#include <QPainterPath>
#include <QPen>
#include <QRectF>
#include <QVector>

#include <memory>

class QPainter;
class QSvgRenderer;

/// The drawing of an SVG document, recorded once: what it fills and strokes, as paths in document units. It can be
/// drawn in any one color at any size without parsing again.
class WSvgNode
{
public:
    /// Null when the drawing is out of all bounds.
    static std::shared_ptr<const WSvgNode> record(QSvgRenderer &renderer);

    /// Of everything, also of what is neither filled nor stroked: an invisible box gives an icon its margins.
    QRectF bounds() const { return m_bounds; }

    /// Where draw() leaves marks.
    QRectF markedArea(const QRectF &rect, bool mirrored) const;
    /// Fits the bounds into the rectangle, aspect kept and centred. What the document fills is filled and what it
    /// strokes is stroked in the color, its own transparency kept; embedded pictures keep their colors.
    void draw(QPainter *painter, const QRectF &rect, const QColor &color, double opacity, bool mirrored = false) const;

private:
    friend class ShapeRecorder;
    struct Shape
    {
        QPainterPath path;
        QPen pen; ///< its geometry
        QImage image;
        QRectF imageRect;
        QTransform imageTransform;
        double opacity = 1;
        bool isFilled = false;
        bool isStroked = false;
    };

    /// From the document to the rectangle; not invertible when nothing can be drawn there.
    QTransform fitting(const QRectF &rect, bool mirrored) const;
    bool drawAsLayer(QPainter *painter, const QRectF &rect, const QColor &color, double alpha, bool mirrored) const;
    void drawShapes(QPainter *painter, const QColor &color, double opacity) const;

    QVector<Shape> m_shapes;
    QRectF m_bounds;
    QRectF m_marked; ///< of what leaves a mark
    int m_painted = 0; ///< shapes that leave a mark
    bool m_overlaps = false; ///< some of them may lie on each other
};
