#pragma once

#include <UiElements/uielements_export.h>

#include <QImage>
#include <QString>

namespace EmojiPicker {

/// The images of the emoji: one binary resource file, with the image of each sequence of code points as
/// ":/emojis/<code>.svg". EmojiConverter says how the code is made.
///
/// The file is mapped and not read: of it all, an image that is drawn is what takes time and memory. Emoji keep their
/// own colors and are never tinted. GUI thread only.
class UIELEMENTS_EXPORT EmojiResources
{
public:
    EmojiResources() = delete;

    /// Where the images come from: the file given to setFile(); else the one that the environment variable
    /// UIELEMENTS_EMOJIS names; else the one that lies with the library, found from where the library lies, so that an
    /// installed tree may be moved.
    static QString file();

    /// Takes the images of another file from now on. A file that is no resource file is reported and changes nothing.
    static bool setFile(const QString &path);

    /// Makes the images available, once. Whatever needs an image calls it by itself; a host calls it to use
    /// ":/emojis/" on its own. Without a file this is reported once, and emoji stay text; not reported where the host
    /// has resources of its own under ":/emojis/".
    static bool ensureRegistered();

    /// The path of the image of exactly these characters; empty where there is none or it is no SVG document. The
    /// answer is remembered.
    static QString imagePath(const QString &emoji);

    /// The picture of exactly these characters, `edge` units wide and high at the ratio; a null image where there is
    /// none. The pictures that were drawn last are kept.
    static QImage image(const QString &emoji, int edge, qreal devicePixelRatio);
};

} // namespace EmojiPicker
