#pragma once

#include <QImage>
#include <QRgb>

#include <functional>

class QPainter;

/// What a picture of an icon depends on.
struct IconPictureKey
{
    quint32 revision = 0; ///< of the loaded document; 0 is none
    QRgb color = 0;
    float ratio = 0; ///< device pixels of one unit
    qint16 width = 0; ///< in units
    qint16 height = 0;
    quint8 x = 0; ///< where within a device pixel it starts, in 64ths
    quint8 y = 0;
    bool isMirrored = false;

    bool operator==(const IconPictureKey &other) const
    {
        return revision == other.revision && color == other.color && ratio == other.ratio && width == other.width
            && height == other.height && x == other.x && y == other.y && isMirrored == other.isMirrored;
    }
};
uint qHash(const IconPictureKey &key, uint seed = 0);

/// The pictures of the icons that were painted last, shared by all that show the same. Bounded by their bytes.
///
/// Images and not pixmaps: on the devices that are painted on they cost the same to draw and less to keep. They live
/// as long as the application object.
class IconPictures
{
public:
    /// The picture, made with the function if it is not there: of the part that the drawing leaves marks in, its place
    /// in pixels is QImage::offset(). The function draws one unit as one unit of the painter.
    static QImage picture(const IconPictureKey &key, const QRectF &marked, const std::function<void(QPainter *)> &draw);

    static qint64 bytes(); ///< of all pictures and what keeping them takes
    static void drop();
    static int rendered(); ///< pictures made since the program started
};
