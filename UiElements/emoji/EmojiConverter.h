#pragma once

#include <UiElements/uielements_export.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QMimeData;
class QTextCursor;
class QTextDocument;
struct EmojiImage;

namespace EmojiPicker {

class EmojiData;

/// Turns plain text into rich text in which every emoji that has an image stands as an image tag, and back.
///
/// Two families, not to be mixed. For what people wrote, which stays text whatever it looks like: toRichText(),
/// toPlainText(), copyPlainText(), spokenText(). For HTML that is escaped already: convert(), htmlToPlainText(),
/// copyRichText(). What stands in a document comes back by selectedText().
///
/// A WEmojiLabel shows emoji by itself. Documents need insertEmojiImages(); a QLabel has no document to be had, and
/// shows no emoji.
///
/// What is one emoji: an emoji with what changes it (a skin tone, U+FE0F, tag characters), several of these joined by
/// U+200D, two regional indicators, or a digit, "#" or "*" with a keycap. If all of it together has no image, its
/// longest part from the beginning that has one is an emoji, and the rest is converted on its own; if no such part has
/// one, what stands before the first joiner is text. U+FE0E makes the emoji before it text. GUI thread only.
class UIELEMENTS_EXPORT EmojiConverter
{
public:
    /// What a tag says of its image.
    enum TagFormat : quint8 {
        SvgFileTag = 0, ///< a marker that insertEmojiImages() finds: images that follow the font
        QrcTag = 1 ///< its address and size, for QML; in documents, through insertEmojiImages(), it keeps the size
    };

    explicit EmojiConverter(int imageSize = 20, quint8 tagFormat = QrcTag);

    /// The edge of the images, in pixels. A size below 1 is reported and changes nothing.
    int imageSize() const { return m_imageSize; }
    void setImageSize(int pixels);
    /// With a format that is none, emoji are reported and left out.
    quint8 tagFormat() const { return m_tagFormat; }
    void setTagFormat(quint8 format) { m_tagFormat = format; }

    /// Plain text to rich text, for labels. Characters that mean something in HTML are escaped, line breaks become
    /// "<br>", and runs of blanks keep their width. Text without any of this, and without emoji, is returned as it is,
    /// shared.
    QString toRichText(const QString &plainText);
    /// Undoes toRichText(), to the last character. Tags of other origin disappear, but for their image's text.
    static QString toPlainText(const QString &richText);

    /// Puts tags in the places of the emoji and changes nothing else: the text must be escaped already, and have no
    /// tags with emoji in them.
    QString convert(const QString &text);
    /// The reverse of convert(): each "<img src=" up to the next ">" on the same line is replaced by imageTagToText().
    static QString htmlToPlainText(const QString &richText);

    /// The images that the last conversion referred to, once for each place, and those of the tags since.
    QStringList usedFiles() const;

    /// A single sequence, code point by code point. What is no code point is reported and not taken.
    void append(uint codePoint);
    void clear();
    /// Its code points as hexadecimal numbers joined by "-"; those of two digits are padded to four: "00a9", "1f600".
    QString code() const { return m_code; }
    QString text() const { return m_text; }
    /// The tag for the sequence; its text where it has no image.
    QString emojiToImageTag();
    /// What stands between the opening quote of the last source and a "|" behind it; otherwise the last alternative
    /// text; otherwise the tag.
    static QString imageTagToText(const QString &tag);

    /// Puts images where the document has the sources of tags: as text ("svgFile=...unicode", also where somebody wrote
    /// just that), or as images that came with HTML in either format. They are as sharp as the ratio allows; 0 is the
    /// ratio of the application. Images of which the HTML tells no edge are imageSize high or, with 0, as high as the
    /// letters around them reach, so that lines keep their height; of which it tells one, they are square. Calling it
    /// again, with another ratio or font, replaces the images. It is a step of its own for undo.
    static void insertEmojiImages(QTextDocument *document, int imageSize = 0, qreal devicePixelRatio = 0);

    /// What is selected in a document, with the emoji in the places of their images, and line breaks as "\n". Qt's own
    /// functions put a replacement character there.
    static QString selectedText(const QTextCursor &selection);
    /// The same and its HTML, for QTextEdit::createMimeDataFromSelection(). The caller owns it.
    static QMimeData *createMimeData(const QTextCursor &selection);

    /// The rich text as HTML and what htmlToPlainText() makes of it as plain text. The caller owns it.
    static QMimeData *createMimeData(const QString &richText);
    static void copyRichText(const QString &richText);
    /// For labels: the plain text as it is, and as HTML what toRichText() makes of it.
    void copyPlainText(const QString &plainText);

    /// Plain text with the names of the emoji in the user's language in their places: the accessible name of what
    /// shows the text. Emoji that the catalogue does not have stay.
    static QString spokenText(const QString &plainText, const std::shared_ptr<const EmojiData> &catalogue);

private:
    template <bool IsPlain>
    QString replaceEmoji(const QString &input);

    QString m_code;
    QString m_text;
    std::vector<const EmojiImage *> m_used;
    int m_imageSize = 0;
    quint8 m_tagFormat;
    QString m_tagMiddle; // of a qrc tag, from behind the path to the quote before the alternative text
};

} // namespace EmojiPicker
