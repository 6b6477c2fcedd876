#pragma once

#include <QImage>
#include <QString>

/// An emoji that has an image.
struct EmojiImage
{
    QString text;
    QString path; ///< ":/emojis/" + code + ".svg"
    QString qrcTagHead; ///< up to and with the path
    QString tagEnd; ///< the text and what follows it
};

/// Which sequences of characters have an image, asked of the resource once for each.
class EmojiImages
{
public:
    /// The code points as hexadecimal numbers joined by "-"; those of two digits are padded to four.
    static QString code(QStringView text);

    /// Null where no valid SVG image is called as the code of the text. Stays valid for good.
    static const EmojiImage *find(QStringView text);

    /// The document, its aspect kept, in the middle of a picture of that many pixels; a null image for sizes that are
    /// empty or absurd.
    static QImage render(const QString &path, const QSize &pixels);

    /// Other files are registered now.
    static void forget();
};
