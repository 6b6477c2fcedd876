#include "ControlText_p.h"

#include <QFile>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QUrl>

#include <vector>

namespace {

constexpr int LongestShown = 10000;
constexpr int LongestToolTip = 1000;
constexpr QChar Ellipsis(0x2026);

struct Image
{
    int position;
    int length;
    QString name;
    QString alternative;
};

std::vector<Image> imagesOf(const QTextDocument &document)
{
    std::vector<Image> images;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QTextImageFormat image = fragment.charFormat().toImageFormat();
            if (image.isValid())
                images.push_back({fragment.position(), fragment.length(), image.name(),
                                  image.property(QTextFormat::ImageAltText).toString()});
        }
    }
    return images;
}

} // namespace

bool ControlText::isLong(const QString &text)
{
    return text.size() > LongestShown;
}

QString ControlText::beginning(const QString &text, bool isMarkup)
{
    if (!isLong(text))
        return text;
    int length = LongestShown;
    if (text.at(length - 1).isHighSurrogate())
        --length;
    if (isMarkup) {
        const int open = text.lastIndexOf(QLatin1Char('<'), length - 1);
        if (open > text.lastIndexOf(QLatin1Char('>'), length - 1))
            length = open;
    }
    return text.left(length) + Ellipsis;
}

QString ControlText::toolTip(const QString &plainText)
{
    const QString shown = plainText.size() > LongestToolTip ? plainText.left(LongestToolTip) + Ellipsis : plainText;
    // As markup, and escaped: only so it is broken into lines.
    return Qt::convertFromPlainText(shown, Qt::WhiteSpaceNormal);
}

QString ControlText::withoutMnemonics(const QString &text)
{
    QString plain;
    plain.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&') && ++i == text.size())
            break;
        plain += text.at(i);
    }
    return plain;
}

bool ControlText::isInResources(const QString &name)
{
    if (name.startsWith(QLatin1String(":/")))
        return QFile::exists(name);
    return name.startsWith(QLatin1String("qrc:/")) && QFile::exists(name.mid(3));
}

ControlText::GuardedDocument::GuardedDocument(QObject *parent)
    : QTextDocument(parent)
{
    setUndoRedoEnabled(false);
}

void ControlText::GuardedDocument::setMarkup(const QString &text, Qt::TextFormat format)
{
    m_wasRefused = false;
    if (format == Qt::MarkdownText)
        setMarkdown(text);
    else
        setHtml(text);
}

bool ControlText::GuardedDocument::removeOutside()
{
    bool hadOutside = m_wasRefused;
    const std::vector<Image> images = imagesOf(*this);
    for (auto image = images.rbegin(); image != images.rend(); ++image) {
        if (isInResources(image->name))
            continue;
        hadOutside = true;
        QTextCursor cursor(this);
        cursor.setPosition(image->position);
        cursor.setPosition(image->position + image->length, QTextCursor::KeepAnchor);
        cursor.insertText(image->alternative, QTextCharFormat());
    }
    return hadOutside;
}

QString ControlText::GuardedDocument::plainText() const
{
    QString text = toPlainText(); // as many characters as the document has
    const std::vector<Image> images = imagesOf(*this);
    for (auto image = images.rbegin(); image != images.rend(); ++image)
        text.replace(image->position, image->length, image->alternative);
    return text;
}

QVariant ControlText::GuardedDocument::loadResource(int type, const QUrl &name)
{
    if (isInResources(name.toString()))
        return QTextDocument::loadResource(type, name);
    m_wasRefused = true;
    if (type != QTextDocument::ImageResource)
        return QVariant();
    // Answered with none, Qt would look for a file of that name itself.
    QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
    nothing.fill(Qt::transparent);
    return nothing;
}
