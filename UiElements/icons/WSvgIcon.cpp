#include <UiElements/icons/WSvgIcon.h>

#include <UiElements/icons/DrawUtils.h>
#include <UiElements/icons/IconPictures_p.h>
#include <UiElements/icons/MirroredIcons_p.h>

#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr int LargestUnits = 4096; // of a kept picture, before it is scaled
constexpr int LargestPicture = 256; // in device pixels; larger icons are drawn each time

} // namespace

struct WSvgIcon::IconData
{
    ~IconData() { delete renderer; }

    QPointer<WSvgRenderer> renderer;
    QString filePath;
    QSize iconSize {16, 16};
    WColorSet colorSet;
    bool visible = true;
    bool isMirroredBySet = false;

    // What was painted last.
    mutable IconPictureKey key;
    mutable QImage picture;
};

WSvgIcon::WSvgIcon(const QString &filePath)
{
    IconData *data = ensureIconDataExists();
    data->filePath = filePath;
    data->isMirroredBySet = isMirroredBySet(filePath);
    data->renderer = new WSvgRenderer(filePath);
    connect(data->renderer, &WSvgRenderer::repaintNeeded, this, &WSvgIcon::repaintNeeded);
}

WSvgIcon::~WSvgIcon() = default;

WSvgIcon::IconData *WSvgIcon::ensureIconDataExists()
{
    if (!m_data)
        m_data = std::make_unique<IconData>();
    return m_data.get();
}

WSvgIcon::IconData *WSvgIcon::ensureInnerIconDataExists()
{
    if (!m_innerData)
        m_innerData = std::make_unique<IconData>();
    return m_innerData.get();
}

QString WSvgIcon::getFilePath() const
{
    return m_data ? m_data->filePath : QString();
}

void WSvgIcon::setFilePath(const QString &filePath)
{
    assignPath(ensureIconDataExists(), filePath);
}

QSize WSvgIcon::getIconSize() const
{
    return m_data && m_data->visible ? m_data->iconSize : QSize();
}

void WSvgIcon::setIconSize(const QSize &size)
{
    ensureIconDataExists()->iconSize = size;
}

WColorSet WSvgIcon::getColorSet() const
{
    return m_data ? m_data->colorSet : WColorSet();
}

void WSvgIcon::setColorSet(const WColorSet &colorSet)
{
    ensureIconDataExists()->colorSet = colorSet;
}

bool WSvgIcon::isVisible() const
{
    return m_data && m_data->visible;
}

void WSvgIcon::setVisible(bool visible)
{
    if (m_data)
        m_data->visible = visible;
}

bool WSvgIcon::isValid() const
{
    return m_data && m_data->renderer;
}

QString WSvgIcon::getInnerFilePath() const
{
    return m_innerData ? m_innerData->filePath : QString();
}

void WSvgIcon::setInnerFilePath(const QString &filePath)
{
    assignPath(ensureInnerIconDataExists(), filePath);
}

QSize WSvgIcon::getInnerIconSize() const
{
    return m_innerData ? m_innerData->iconSize : QSize();
}

void WSvgIcon::setInnerIconSize(const QSize &size)
{
    ensureInnerIconDataExists()->iconSize = size;
}

WColorSet WSvgIcon::getInnerColorSet() const
{
    return m_innerData ? m_innerData->colorSet : WColorSet();
}

void WSvgIcon::setInnerColorSet(const WColorSet &colorSet)
{
    ensureInnerIconDataExists()->colorSet = colorSet;
}

bool WSvgIcon::isMirroredBySet(const QString &filePath)
{
    QStringView name(filePath);
    for (const QLatin1String prefix : {QLatin1String(":/Resources/"), QLatin1String("qrc:/Resources/")}) {
        if (!name.startsWith(prefix))
            continue;
        name = name.mid(prefix.size());
        const auto size = name.indexOf(QLatin1Char('_')); // "arrow-left_16.svg"
        if (size >= 0)
            name.truncate(size);
        if (name.endsWith(QLatin1String("-filled")))
            name.chop(7);
        return std::any_of(std::begin(mirroredIcons), std::end(mirroredIcons),
                           [name](QLatin1String each) { return name == each; });
    }
    return false;
}

void WSvgIcon::assignPath(IconData *data, const QString &filePath)
{
    data->filePath = filePath;
    data->isMirroredBySet = isMirroredBySet(filePath);
    if (filePath.isEmpty()) {
        delete data->renderer;
        return;
    }
    if (!data->renderer) {
        data->renderer = new WSvgRenderer;
        connect(data->renderer, &WSvgRenderer::repaintNeeded, this, &WSvgIcon::repaintNeeded);
    }
    if (!data->renderer->load(filePath))
        delete data->renderer;
}

void WSvgIcon::draw(QPainter *painter, QStyle::State state) const
{
    if (!painter || !m_data || !m_data->visible)
        return;
    if (m_data->renderer)
        paint(painter, *m_data, DrawUtils::colorForState(m_data->colorSet, state));
    if (m_innerData && m_innerData->renderer) {
        const QSizeF room = m_data->iconSize - m_innerData->iconSize;
        painter->save();
        painter->translate(room.width() * 0.5, room.height() * 0.5);
        paint(painter, *m_innerData, DrawUtils::colorForState(m_innerData->colorSet, state));
        painter->restore();
    }
}

int WSvgIcon::renderedPictures()
{
    return IconPictures::rendered();
}

qint64 WSvgIcon::pictureBytes()
{
    return IconPictures::bytes();
}

void WSvgIcon::dropPictures()
{
    IconPictures::drop();
}

void WSvgIcon::paint(QPainter *painter, const IconData &data, const QColor &color) const
{
    const WSvgRenderer &renderer = *data.renderer;
    const bool isMirrored =
        (m_mirroring == Mirroring::Always || (m_mirroring == Mirroring::BySet && data.isMirroredBySet))
        && DrawUtils::layoutDirection(painter) == Qt::RightToLeft;
    const auto draw = [&](QPainter *to) {
        renderer.drawMirrored(to, QRectF(QPointF(), QSizeF(data.iconSize)), color, 1.0, isMirrored);
    };

    const QTransform &device = painter->deviceTransform();
    const double ratio = device.m11();
    const QPaintEngine *engine = painter->paintEngine();
    const bool isOnPixels =
        engine && (engine->type() == QPaintEngine::Raster || engine->type() == QPaintEngine::OpenGL2);
    if (!isOnPixels || renderer.isAnimated() || device.type() > QTransform::TxScale || ratio != device.m22()
        || !(ratio > 0) || data.iconSize.isEmpty() || qMax(data.iconSize.width(), data.iconSize.height()) > LargestUnits
        || data.iconSize.width() * ratio > LargestPicture || data.iconSize.height() * ratio > LargestPicture) {
        draw(painter);
        return;
    }
    if (!renderer.isLoaded() || (renderer.isTintable() && color.alpha() == 0))
        return;

    const double left = std::floor(device.dx() + 1 / 128.0), top = std::floor(device.dy() + 1 / 128.0);
    IconPictureKey key;
    key.revision = renderer.m_revision;
    key.color = renderer.isTintable() ? color.rgba() : 0;
    key.ratio = float(ratio);
    key.width = qint16(data.iconSize.width());
    key.height = qint16(data.iconSize.height());
    key.x = quint8(std::max(0.0, std::round((device.dx() - left) * 64)));
    key.y = quint8(std::max(0.0, std::round((device.dy() - top) * 64)));
    key.isMirrored = isMirrored;
    if (!(key == data.key)) {
        const QRectF whole(QPointF(), QSizeF(data.iconSize));
        data.picture = IconPictures::picture(key, renderer.markedArea(whole, isMirrored), draw);
        data.key = key;
    }
    if (data.picture.isNull())
        return;
    const QPoint offset = data.picture.offset();
    painter->drawImage(QPointF((left + offset.x() - device.dx()) / ratio, (top + offset.y() - device.dy()) / ratio),
                       data.picture);
}
