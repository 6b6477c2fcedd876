#pragma once

#include <UiElements/uielements_export.h>

#include <QIcon>
#include <QObject>
#include <QPixmap>
#include <QPointer>

#include <memory>

class QPainter;
class QSvgRenderer;
class WSvgNode;

/// Loads one SVG file and draws it.
///
/// How it draws is decided when it loads. A document with exactly one node below its root is *tintable*: what it fills
/// is filled and what it strokes is stroked in the color asked for. Every other document keeps its own colors, and only
/// such a one can be animated. Title, metadata, gradients and their like are no nodes.
///
/// Files may come from anywhere. A document is refused that refers to other files or to the network, that is
/// compressed, larger than 4 MiB, has more than 50,000 elements or 10,000 characters of text, is nested deeper than 256
/// elements, refers to itself, multiplies itself by `use` or entities, has dimensions beyond a million units or would
/// take long to paint: "Unable to load SVG file: ", the path and the reason in brackets are logged. No file takes
/// longer to load than its size explains.
///
/// Sizes and rectangles are in device-independent pixels. GUI thread only.
class UIELEMENTS_EXPORT WSvgRenderer : public QObject
{
    Q_OBJECT

public:
    explicit WSvgRenderer(QObject *parent = nullptr);
    explicit WSvgRenderer(const QString &path, QObject *parent = nullptr);
    ~WSvgRenderer() override;

    /// A resource as ":/..." or "qrc:/...", or a file. The loaded path again does nothing and answers true, also when
    /// the file has changed and also after clear(). So does an empty path while nothing is loaded. After a failure,
    /// which is logged, nothing is loaded.
    bool load(const QString &path);
    /// Drops the document and leaves the loaded path.
    void clear();

    bool isLoaded() const { return !m_loadedPath.isEmpty(); }
    /// As it was given to load().
    QString getLoadedPath() const { return m_loadedPath; }
    bool isAnimated() const;
    /// The drawing of a tintable document, for DrawUtils, valid until the next load() or clear(). For anything else
    /// "SVG node does not exist!" is logged and null returned.
    const WSvgNode *getSvgNode() const;

    /// Fits the drawing into the rectangle, its aspect kept, centred. Color and opacity are for tintable documents;
    /// an invalid color draws nothing.
    void draw(QPainter *painter, const QRectF &rect, const QColor &color, double opacity = 1.0) const;
    /// For documents that are not tintable: renders to the origin, at the height of the view box, as wide as the view
    /// box would be at the height of the rectangle.
    void drawScalingHeight(QPainter *painter, const QRectF &rect) const;

    /// A picture of the size at the ratio (its pixels are the size times the ratio), filled with the background, the
    /// icon drawn into its rectangle. An icon larger than the picture is reported and cut.
    QPixmap renderPixmap(const QRectF &iconRect, const QSize &pixmapSize, double devicePixelRatio, const QColor &color,
                         const QColor &background) const;
    /// The icon in the middle.
    QPixmap renderPixmap(const QSize &iconSize, const QSize &pixmapSize, double devicePixelRatio, const QColor &color,
                         const QColor &background) const;
    /// The icon alone.
    QPixmap renderPixmap(const QSize &size, double devicePixelRatio, const QColor &color) const;

    /// ":/Resources/" + name + ".svg"
    static QString resourcePath(const QString &name);
    /// A new renderer that belongs to the parent; empty for an empty name. A missing parent is reported, and the
    /// renderer is the caller's.
    static WSvgRenderer *loadIconResource(const QString &name, QObject *parent);
    /// Loads another icon of the resources. An empty name changes nothing and answers false.
    bool updateIconResource(const QString &name);

    /// An icon of two resources, for the states Off and On of one mode. This renderer is left with the On file. What
    /// cannot be loaded is an empty picture; an empty name leaves the file that is loaded.
    QIcon renderIcon(const QString &offName, const QString &onName, const QSize &size, double devicePixelRatio,
                     const QColor &color, QIcon::Mode mode = QIcon::Normal);

Q_SIGNALS:
    /// The next picture of an animated document is due.
    void repaintNeeded();

private:
    friend class WSvgIcon;
    bool isTintable() const { return bool(m_node); }
    /// What of the rectangle draw() may leave marks in.
    QRectF markedArea(const QRectF &rect, bool mirrored) const;
    void drawMirrored(QPainter *painter, const QRectF &rect, const QColor &color, double opacity, bool mirrored) const;

    std::shared_ptr<const WSvgNode> m_node;
    QPointer<QSvgRenderer> m_renderer;
    QString m_loadedPath;
    quint32 m_revision = 0; // of what is loaded; never the same for two documents
};
