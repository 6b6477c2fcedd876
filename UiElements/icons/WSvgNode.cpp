#include "WSvgNode_p.h"

#include "SvgScan_p.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

/// Of the lines between the control points, each counted up to `longest`: at least that of the path.
double lengthAtMost(const QPainterPath &path, double longest)
{
    double length = 0;
    for (int i = 1; i < path.elementCount(); ++i) {
        if (path.elementAt(i).type != QPainterPath::MoveToElement)
            length += std::min(longest, QLineF(path.elementAt(i - 1), path.elementAt(i)).length());
    }
    return length;
}

/// How many of them a pen makes along the path, the drawing being `size` wide or high.
double dashes(const QPainterPath &path, const QPen &pen, double size)
{
    if (pen.style() == Qt::SolidLine)
        return 0;
    const QVector<qreal> parts = pen.dashPattern();
    const double pattern = std::accumulate(parts.begin(), parts.end(), 0.0);
    // A cosmetic pen is as wide as ever where the drawing is large.
    const double scale = pen.isCosmetic() ? 4096 / size : 1;
    const double count = lengthAtMost(path, HUGE_VAL) * scale / (pattern * pen.widthF()) * parts.size();
    const double offset = std::abs(pen.dashOffset()) / pattern; // Qt goes through it, too
    const bool isSane = count >= 0 && offset <= SvgLimits::Dashes && parts.size() <= SvgLimits::DashPattern;
    return isSane ? count : HUGE_VAL; // also when one is no number
}

bool isWithinBounds(const QRectF &rect)
{
    // Written so that something that is no number is out of bounds.
    const double limit = SvgLimits::Coordinate;
    return rect.left() >= -limit && rect.top() >= -limit && rect.right() <= limit && rect.bottom() <= limit;
}

/// QRectF::united() leaves out what has no height, such as a line.
QRectF united(const QRectF &a, const QRectF &b)
{
    return QRectF(QPointF(std::min(a.left(), b.left()), std::min(a.top(), b.top())),
                  QPointF(std::max(a.right(), b.right()), std::max(a.bottom(), b.bottom())));
}

} // namespace

/// Takes what a renderer paints and keeps it as paths.
class ShapeRecorder : public QPaintEngine
{
public:
    // Without the one for gradients that relate to the object, Qt hands over the brush as it is.
    ShapeRecorder()
        : QPaintEngine(PaintEngineFeatures(AllFeatures) & ~PaintEngineFeatures(ObjectBoundingModeGradients))
    {
    }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override { }

    void drawPath(const QPainterPath &path) override
    {
        if (!isSane || path.elementCount() == 0) // such as that of a circle without a radius
            return;
        WSvgNode::Shape shape;
        shape.path = state->transform().map(path);
        const QBrush fill = state->brush();
        const QPen pen = state->pen();
        shape.isFilled = fill.style() != Qt::NoBrush;
        shape.isStroked = pen.style() != Qt::NoPen && pen.brush().style() != Qt::NoBrush && pen.widthF() > 0;
        const QBrush &paint = shape.isFilled ? fill : pen.brush();
        shape.opacity = state->opacity() * (paint.style() == Qt::SolidPattern ? paint.color().alphaF() : 1);
        QRectF bounds = shape.path.controlPointRect();
        isSane = isWithinBounds(bounds);
        if (shape.isStroked) {
            const double width = pen.widthF() * std::sqrt(std::abs(state->transform().determinant()));
            isSane = isSane && width < SvgLimits::StrokeWidth;
            shape.pen = pen;
            shape.pen.setWidthF(isSane ? width : 1);
            bounds.adjust(-width / 2, -width / 2, width / 2, width / 2);
        }
        add(shape, bounds);
    }

    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        QPainterPath path;
        path.addPolygon(QPolygonF(QVector<QPointF>(points, points + count)));
        if (mode != PolylineMode)
            path.closeSubpath();
        path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
        drawPath(path);
    }

    void drawPixmap(const QRectF &rect, const QPixmap &pixmap, const QRectF &source) override
    {
        drawImage(rect, pixmap.toImage(), source, Qt::AutoColor);
    }

    void drawImage(const QRectF &rect, const QImage &image, const QRectF &source, Qt::ImageConversionFlags) override
    {
        if (!isSane)
            return;
        WSvgNode::Shape shape;
        shape.image = source == QRectF(image.rect()) ? image : image.copy(source.toAlignedRect());
        shape.imageRect = rect;
        shape.imageTransform = state->transform();
        shape.opacity = state->opacity();
        const QRectF bounds = shape.imageTransform.mapRect(rect);
        isSane = isWithinBounds(bounds);
        add(shape, bounds);
    }

    /// Whether painting it ends soon, the drawing being `size` wide or high. It takes time for each pixel of an
    /// outline. A stroke has two of them, and at each bend and each end of a dash one more, as long as it is wide.
    bool isSoonPainted(double size) const
    {
        double outlines = 0, dashCount = 0;
        for (const WSvgNode::Shape &shape : shapes) {
            const double length = lengthAtMost(shape.path, 2 * size) / size; // what is farther out is not painted
            outlines += shape.isFilled ? length : 0;
            outlines += shape.image.isNull() ? 0 : SvgLimits::ImageOutline;
            if (shape.isStroked) {
                const double count = dashes(shape.path, shape.pen, size);
                const double width = std::min(shape.pen.widthF() / size, 2.0);
                outlines += 4 * length + 2 * width * (count + shape.path.elementCount());
                dashCount += count;
            }
        }
        return outlines <= SvgLimits::Outlines && dashCount <= SvgLimits::Dashes;
    }

    /// The exact bounds, for shapes of which the outlines are known to be short enough.
    void measure()
    {
        for (int i = 0; i < shapes.size(); ++i) {
            const WSvgNode::Shape &shape = shapes.at(i);
            QRectF bounds =
                shape.image.isNull() ? shape.path.boundingRect() : shape.imageTransform.mapRect(shape.imageRect);
            if (shape.isStroked) {
                QPainterPathStroker outline;
                outline.setWidth(shape.pen.widthF());
                outline.setCapStyle(shape.pen.capStyle());
                outline.setJoinStyle(shape.pen.joinStyle());
                outline.setMiterLimit(shape.pen.miterLimit());
                bounds |= outline.createStroke(shape.path).boundingRect();
            }
            allBounds = i == 0 ? bounds : united(allBounds, bounds);
            if (leavesMark(shape))
                marked = painted++ == 0 ? bounds : united(marked, bounds);
            outlined = outlined || (shape.isFilled && shape.isStroked);
        }
    }

    QVector<WSvgNode::Shape> shapes;
    QRectF roughBounds; ///< without what sticks out of joins
    QRectF allBounds;
    QRectF marked;
    int painted = 0;
    bool outlined = false;
    bool isSane = true;

private:
    static bool leavesMark(const WSvgNode::Shape &shape)
    {
        return (shape.isFilled || shape.isStroked || !shape.image.isNull()) && shape.opacity > 0;
    }

    void add(const WSvgNode::Shape &shape, const QRectF &bounds)
    {
        if (!isSane)
            return;
        roughBounds = shapes.isEmpty() ? bounds : united(roughBounds, bounds);
        shapes.append(shape);
    }
};

namespace {

class RecordingDevice : public QPaintDevice
{
public:
    explicit RecordingDevice(QPaintEngine *engine, const QSize &size)
        : m_engine(engine)
        , m_size(size)
    {
    }
    QPaintEngine *paintEngine() const override { return m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth: return m_size.width();
        case PdmHeight: return m_size.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY: return 96;
        case PdmDepth: return 32;
        case PdmDevicePixelRatio: return 1;
        case PdmDevicePixelRatioScaled: return int(devicePixelRatioFScale());
        default: return 0;
        }
    }

private:
    QPaintEngine *m_engine;
    QSize m_size;
};

} // namespace

std::shared_ptr<const WSvgNode> WSvgNode::record(QSvgRenderer &renderer)
{
    const QRectF box = renderer.viewBoxF();
    if (!isWithinBounds(box) || box.width() < 0 || box.height() < 0)
        return nullptr;
    ShapeRecorder recorder;
    {
        RecordingDevice device(&recorder, box.size().toSize().expandedTo(QSize(1, 1)));
        QPainter painter(&device);
        renderer.render(&painter, box); // one unit of the document is one of the paths
    }
    const double size = std::min(std::max(box.width(), box.height()),
                                 std::max(recorder.roughBounds.width(), recorder.roughBounds.height()));
    if (!recorder.isSane || (size > 0 && !recorder.isSoonPainted(size)))
        return nullptr;
    recorder.measure();
    auto node = std::make_shared<WSvgNode>();
    node->m_shapes = recorder.shapes;
    node->m_shapes.squeeze();
    node->m_bounds = recorder.allBounds;
    node->m_marked = recorder.marked;
    node->m_painted = recorder.painted;
    node->m_overlaps = recorder.painted > 1 || recorder.outlined;
    return node;
}

QTransform WSvgNode::fitting(const QRectF &rect, bool mirrored) const
{
    const double scaleX = m_bounds.width() > 0 ? rect.width() / m_bounds.width() : HUGE_VAL;
    const double scaleY = m_bounds.height() > 0 ? rect.height() / m_bounds.height() : HUGE_VAL;
    const double scale = std::min(scaleX, scaleY);
    if (m_painted == 0 || rect.isEmpty() || !std::isfinite(scale))
        return QTransform::fromScale(0, 0);
    const QPointF from = m_bounds.center(), to = rect.center();
    const double x = mirrored ? -scale : scale;
    return QTransform(x, 0, 0, scale, to.x() - x * from.x(), to.y() - scale * from.y());
}

QRectF WSvgNode::markedArea(const QRectF &rect, bool mirrored) const
{
    return fitting(rect, mirrored).mapRect(m_marked);
}

void WSvgNode::draw(QPainter *painter, const QRectF &rect, const QColor &color, double opacity, bool mirrored) const
{
    const QTransform fit = fitting(rect, mirrored);
    if (fit.m22() <= 0 || !color.isValid() || !(opacity > 0))
        return;
    const double alpha = std::min(opacity, 1.0) * color.alphaF();
    if (alpha < 1 && m_overlaps && drawAsLayer(painter, rect, color, alpha, mirrored))
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->setTransform(fit, true);
    drawShapes(painter, color, painter->opacity() * std::min(opacity, 1.0));
    painter->restore();
}

// Where shapes lie on each other, each of them would add to the transparent color. So they are drawn opaque, and what
// came of it transparent.
bool WSvgNode::drawAsLayer(QPainter *painter, const QRectF &rect, const QColor &color, double alpha,
                           bool mirrored) const
{
    const QTransform device = painter->deviceTransform();
    const QRect area = device.mapRect(rect).toAlignedRect().adjusted(-1, -1, 1, 1);
    constexpr int largest = 4096;
    if (!device.isInvertible() || area.width() > largest || area.height() > largest)
        return false;
    QImage layer(area.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    {
        QPainter layerPainter(&layer);
        layerPainter.setTransform(device * QTransform::fromTranslate(-area.x(), -area.y()));
        QColor opaque = color;
        opaque.setAlpha(255);
        draw(&layerPainter, rect, opaque, 1, mirrored);
    }
    painter->save();
    painter->setTransform(device.inverted(), true); // to the pixels of the device
    painter->setOpacity(painter->opacity() * alpha);
    painter->drawImage(area.topLeft(), layer);
    painter->restore();
    return true;
}

void WSvgNode::drawShapes(QPainter *painter, const QColor &color, double opacity) const
{
    for (const Shape &shape : m_shapes) {
        if (shape.opacity <= 0)
            continue;
        painter->setOpacity(opacity * shape.opacity);
        if (!shape.image.isNull()) {
            const QTransform before = painter->transform();
            painter->setTransform(shape.imageTransform, true);
            painter->drawImage(shape.imageRect, shape.image);
            painter->setTransform(before);
        }
        if (!shape.isFilled && !shape.isStroked)
            continue;
        // A path that was painted keeps its converted form, many times its own size. The copy takes it along.
        QPainterPath path = shape.path;
        path.setElementPositionAt(0, path.elementAt(0).x, path.elementAt(0).y);
        if (shape.isFilled)
            painter->fillPath(path, color);
        if (shape.isStroked) {
            QPen pen = shape.pen;
            pen.setBrush(color);
            painter->strokePath(path, pen);
        }
    }
}
