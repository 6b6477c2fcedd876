#include "IconPictures_p.h"

#include <QCache>
#include <QCoreApplication>
#include <QHash>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <cstring>
#include <utility>

namespace {

constexpr int MaxBytes = 8 * 1024 * 1024;
constexpr int EntryBytes = 400; // what an entry takes besides the bits: empty pictures count too

struct Table
{
    QCache<IconPictureKey, QImage> pictures {MaxBytes};
    // An image that was painted on keeps its paint engine, many times the size of an icon. So all are painted on this
    // one, and the pictures are copies of the bits.
    QImage scratch;
};

Table *table = nullptr; // goes with the application object
int renderedCount = 0;

Table &theTable()
{
    if (!table) {
        table = new Table;
        qAddPostRoutine([] { delete std::exchange(table, nullptr); });
    }
    return *table;
}

void clear(QImage *image, const QSize &size)
{
    for (int y = 0; y < size.height(); ++y)
        std::memset(image->scanLine(y), 0, size_t(size.width()) * sizeof(QRgb));
}

QImage render(const IconPictureKey &key, const QRectF &marked, const std::function<void(QPainter *)> &draw)
{
    const double ratio = double(key.ratio);
    const QPointF offset(key.x / 64.0, key.y / 64.0);
    const QSize whole(int(std::ceil(key.width * ratio + offset.x())), int(std::ceil(key.height * ratio + offset.y())));
    const QRect area =
        QRectF(marked.topLeft() * ratio + offset, marked.size() * ratio).toAlignedRect() & QRect(QPoint(), whole);
    ++renderedCount;
    if (area.isEmpty())
        return QImage();

    QImage &scratch = theTable().scratch;
    if (scratch.width() < area.width() || scratch.height() < area.height())
        scratch = QImage(scratch.size().expandedTo(area.size()), QImage::Format_ARGB32_Premultiplied);
    clear(&scratch, area.size());
    {
        QPainter painter(&scratch);
        painter.setClipRect(QRect(QPoint(), area.size()));
        painter.translate(offset - area.topLeft());
        painter.scale(ratio, ratio);
        draw(&painter);
    }
    QImage copy = scratch.copy(QRect(QPoint(), area.size()));
    copy.setDevicePixelRatio(ratio);
    copy.setOffset(area.topLeft());
    return copy;
}

} // namespace

uint qHash(const IconPictureKey &key, uint seed)
{
    const quint64 place = quint64(quint16(key.width)) << 48 | quint64(quint16(key.height)) << 32 | quint64(key.x) << 24
        | quint64(key.y) << 16 | quint64(key.isMirrored);
    return ::qHash((quint64(key.revision) << 32 | key.color) ^ (place * Q_UINT64_C(0x9e3779b97f4a7c15)), seed)
        ^ uint(key.ratio * 64);
}

QImage IconPictures::picture(const IconPictureKey &key, const QRectF &marked,
                             const std::function<void(QPainter *)> &draw)
{
    Table &all = theTable();
    if (const QImage *found = all.pictures.object(key))
        return *found;
    const QImage made = render(key, marked, draw);
    all.pictures.insert(key, new QImage(made), int(made.sizeInBytes()) + EntryBytes);
    return made;
}

qint64 IconPictures::bytes()
{
    return table ? table->pictures.totalCost() : 0;
}

void IconPictures::drop()
{
    if (table)
        table->pictures.clear();
}

int IconPictures::rendered()
{
    return renderedCount;
}
