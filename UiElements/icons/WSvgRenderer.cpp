#include <UiElements/icons/WSvgRenderer.h>

#include <UiElements/icons/DrawUtils.h>
#include <UiElements/icons/SvgScan_p.h>
#include <UiElements/icons/WSvgNode_p.h>

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace {

quint32 nextRevision()
{
    static quint32 last = 0;
    return ++last;
}

/// The drawings of the resources in use: an icon that many elements show is parsed and kept once.
struct SharedNodes
{
    struct Entry
    {
        std::weak_ptr<const WSvgNode> node;
        quint32 revision = 0;
    };
    QHash<QString, Entry> entries;
};
Q_GLOBAL_STATIC(SharedNodes, sharedNodes)

QByteArray readFile(const QString &path, QString *refusal)
{
    QFile file(path);
    // A pipe or a device would be read for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return QByteArray();
    const QByteArray bytes = file.read(SvgLimits::FileBytes + 1);
    if (bytes.size() > SvgLimits::FileBytes)
        *refusal = QStringLiteral("too large");
    return bytes;
}

} // namespace

WSvgRenderer::WSvgRenderer(QObject *parent)
    : QObject(parent)
{
}

WSvgRenderer::WSvgRenderer(const QString &path, QObject *parent)
    : QObject(parent)
{
    load(path);
}

WSvgRenderer::~WSvgRenderer()
{
    clear();
}

bool WSvgRenderer::load(const QString &path)
{
    if (path == m_loadedPath)
        return true;
    clear();
    m_loadedPath.clear();

    const QString localPath = path.startsWith(QLatin1String("qrc:/")) ? path.mid(3) : path;
    SharedNodes *shared = localPath.startsWith(QLatin1String(":/")) ? sharedNodes() : nullptr;
    if (shared) {
        const SharedNodes::Entry entry = shared->entries.value(localPath);
        if ((m_node = entry.node.lock())) {
            m_revision = entry.revision;
            m_loadedPath = path;
            return true;
        }
    }

    QString refusal;
    const QByteArray document = readFile(localPath, &refusal);
    SvgScan scan;
    if (refusal.isEmpty()) {
        scan = scanSvg(document);
        refusal = scan.reason;
    }
    std::unique_ptr<QSvgRenderer> renderer;
    std::shared_ptr<const WSvgNode> node;
    if (scan.verdict == SvgScan::Fine) {
        renderer = std::make_unique<QSvgRenderer>();
        if (!renderer->load(document)) {
            qWarning(scan.rootChildren == 1 ? "Unable to load SVG file: %s" : "Invalid svg file: %s",
                     qUtf8Printable(path));
            return false;
        }
        if (!(node = WSvgNode::record(*renderer))) {
            scan.verdict = SvgScan::Refused;
            refusal = QStringLiteral("out of all bounds");
        }
    }
    if (scan.verdict != SvgScan::Fine) {
        const QString reason = refusal.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(refusal);
        qWarning("Unable to load SVG file: %s%s", qUtf8Printable(path), qUtf8Printable(reason));
        return false;
    }

    m_revision = nextRevision();
    if (scan.rootChildren == 1) {
        m_node = node;
        if (shared)
            shared->entries.insert(localPath, {m_node, m_revision});
    } else {
        if (renderer->animated())
            connect(renderer.get(), &QSvgRenderer::repaintNeeded, this, &WSvgRenderer::repaintNeeded);
        m_renderer = renderer.release();
    }
    m_loadedPath = path;
    return true;
}

void WSvgRenderer::clear()
{
    m_node.reset();
    delete m_renderer;
}

bool WSvgRenderer::isAnimated() const
{
    return m_renderer && m_renderer->animated();
}

const WSvgNode *WSvgRenderer::getSvgNode() const
{
    if (!m_node) {
        qWarning("SVG node does not exist!");
        return nullptr;
    }
    return m_node.get();
}

void WSvgRenderer::draw(QPainter *painter, const QRectF &rect, const QColor &color, double opacity) const
{
    drawMirrored(painter, rect, color, opacity, false);
}

QRectF WSvgRenderer::markedArea(const QRectF &rect, bool mirrored) const
{
    return m_node ? m_node->markedArea(rect, mirrored) : rect;
}

void WSvgRenderer::drawMirrored(QPainter *painter, const QRectF &rect, const QColor &color, double opacity,
                                bool mirrored) const
{
    if (!painter)
        return;
    if (m_node) {
        m_node->draw(painter, rect, color, opacity, mirrored);
    } else if (m_renderer) {
        const QSizeF box = m_renderer->viewBoxF().size();
        const QRectF target = DrawUtils::fitRectangle(rect, box.width() / box.height());
        if (target.isEmpty())
            return;
        if (!mirrored)
            return m_renderer->render(painter, target);
        painter->save();
        painter->translate(2 * target.center().x(), 0);
        painter->scale(-1, 1);
        m_renderer->render(painter, target);
        painter->restore();
    }
}

void WSvgRenderer::drawScalingHeight(QPainter *painter, const QRectF &rect) const
{
    if (!painter || !m_renderer)
        return;
    const QSizeF box = m_renderer->viewBoxF().size();
    if (box.height() > 0)
        m_renderer->render(painter, QRectF(0, 0, rect.height() / box.height() * box.width(), box.height()));
}

QPixmap WSvgRenderer::renderPixmap(const QRectF &iconRect, const QSize &pixmapSize, double devicePixelRatio,
                                   const QColor &color, const QColor &background) const
{
    if (iconRect.width() > pixmapSize.width() || iconRect.height() > pixmapSize.height())
        qWarning("Icon size should be less or equal than the pixmap size");
    if (m_node)
        return DrawUtils::renderPixmap(m_node.get(), iconRect, pixmapSize, devicePixelRatio, color, background);
    QPixmap pixmap = DrawUtils::emptyPixmap(pixmapSize, devicePixelRatio, background);
    if (!pixmap.isNull()) {
        QPainter painter(&pixmap);
        draw(&painter, iconRect, Qt::black, 1.0);
    }
    return pixmap;
}

QPixmap WSvgRenderer::renderPixmap(const QSize &iconSize, const QSize &pixmapSize, double devicePixelRatio,
                                   const QColor &color, const QColor &background) const
{
    const QPointF topLeft((pixmapSize.width() - iconSize.width()) / 2.0,
                          (pixmapSize.height() - iconSize.height()) / 2.0);
    return renderPixmap(QRectF(topLeft, QSizeF(iconSize)), pixmapSize, devicePixelRatio, color, background);
}

QPixmap WSvgRenderer::renderPixmap(const QSize &size, double devicePixelRatio, const QColor &color) const
{
    return renderPixmap(QRectF(QPointF(), QSizeF(size)), size, devicePixelRatio, color, Qt::transparent);
}

QString WSvgRenderer::resourcePath(const QString &name)
{
    return QStringLiteral(":/Resources/%1.svg").arg(name);
}

WSvgRenderer *WSvgRenderer::loadIconResource(const QString &name, QObject *parent)
{
    if (!parent)
        qWarning("WSvgRenderer::loadIconResource - the parent object should not be null");
    return name.isEmpty() ? new WSvgRenderer(parent) : new WSvgRenderer(resourcePath(name), parent);
}

bool WSvgRenderer::updateIconResource(const QString &name)
{
    return !name.isEmpty() && load(resourcePath(name));
}

QIcon WSvgRenderer::renderIcon(const QString &offName, const QString &onName, const QSize &size,
                               double devicePixelRatio, const QColor &color, QIcon::Mode mode)
{
    QIcon icon;
    updateIconResource(offName);
    icon.addPixmap(renderPixmap(size, devicePixelRatio, color), mode, QIcon::Off);
    updateIconResource(onName);
    icon.addPixmap(renderPixmap(size, devicePixelRatio, color), mode, QIcon::On);
    return icon;
}
