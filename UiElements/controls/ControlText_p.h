#pragma once

#include <QTextDocument>

/// What labels and buttons do alike with texts, which come from anywhere.
namespace ControlText {

/// The beginning of a text that is absurdly long, the whole of any other. Nobody reads more than that, and laying out
/// takes time for every character. Markup is not cut within a tag.
QString beginning(const QString &text, bool isMarkup = false);
bool isLong(const QString &text);

/// The text as tooltip: not too long, and nothing in it is taken for markup.
QString toolTip(const QString &plainText);

/// Without the marks of mnemonics.
QString withoutMnemonics(const QString &text);

/// ":/..." or "qrc:/...", and it exists: Qt would look for a file of that name otherwise.
bool isInResources(const QString &name);

/// Reads images and style sheets from Qt resources only, whatever its text names.
class GuardedDocument : public QTextDocument
{
public:
    explicit GuardedDocument(QObject *parent = nullptr);

    /// Markdown or else HTML.
    void setMarkup(const QString &text, Qt::TextFormat format);
    /// Puts the alternative texts in the places of the images from outside. True when there was something from outside,
    /// which is gone now.
    bool removeOutside();
    /// What is read aloud and copied: images by their alternative texts.
    QString plainText() const;

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    bool m_wasRefused = false;
};

} // namespace ControlText
