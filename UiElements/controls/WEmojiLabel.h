#pragma once

#include <UiElements/controls/WLabel.h>
#include <UiElements/uielements_export.h>

#include <QPointer>
#include <QStringList>

#include <memory>

/// A label for texts with emoji, which it draws as images as high as a line.
///
/// The text is never markup: whatever somebody wrote is shown as it was written. Each of its lines is elided on its
/// own. Emoji are left to the font while the text is selectable, where it has several lines and is centred in either
/// direction, and where the label is centred and mirrors its parent's focus.
///
/// A text without images is drawn as WLabel does; a document is made, once it is needed, for texts with images only.
class UIELEMENTS_EXPORT WEmojiLabel : public WLabel
{
    Q_OBJECT
    Q_PROPERTY(int textLeftPadding READ textLeftPadding WRITE setTextLeftPadding)
    Q_PROPERTY(int textRightPadding READ textRightPadding WRITE setTextRightPadding)

public:
    explicit WEmojiLabel(QWidget *parent = nullptr);
    WEmojiLabel(QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags = Qt::WindowFlags());
    explicit WEmojiLabel(const QString &text, QWidget *parent = nullptr, QAccessible::Role role = QAccessible::NoRole,
                         Qt::WindowFlags flags = Qt::WindowFlags());
    ~WEmojiLabel() override;

    /// As they are in a left-to-right layout. A negative padding is reported and changes nothing. A selectable text
    /// takes the leading one as its indent().
    int textLeftPadding() const { return m_leftPadding; }
    void setTextLeftPadding(int pixels);
    int textRightPadding() const { return m_rightPadding; }
    void setTextRightPadding(int pixels);

    /// The text has its focused color while the parent has the focus.
    bool mirrorsParentFocus() const { return m_mirrorsParentFocus; }
    void setMirrorParentFocus(bool mirrors);

    /// The text as it is shown in the room that the label has now.
    QString getElidedText() const;

    /// Everything but plain text is reported and changes nothing.
    void setTextFormat(Qt::TextFormat format) override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Comes with that of WLabel.
    void clicked(); // clazy:exclude=overridden-signal

public Q_SLOTS:
    void setText(const QString &_text) override;
    void onCssChanged();
    void onLayoutDirectionChanged() override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    void emitClicked() override;
    bool hasClickReceivers() const override;
    void copyText() override;
    void invalidateText() override;
    bool isElided() const override;
    bool drawsItself() const override;
    QString displayText() const override;
    QRect textRect() const override;
    QStyle::State textState() const override;

private:
    class Document;

    void init();
    void ensurePlain() const;
    void noticeText() const;
    bool shouldDrawSvgEmojis() const;
    bool showsImages() const;
    void updateText(int width) const;
    void build(const QStringList &lines) const;
    QString createIndentStyle() const;
    QStringList createElidedLines(int width) const;
    QString createElidedLine(const QString &line, int width) const;
    QPoint getTextOffset() const;
    QSize naturalSize() const;
    int besideText() const;
    int aroundText() const;

    // What was made of the text so far, each when it was first asked for.
    mutable std::unique_ptr<Document> m_document;
    mutable QString m_source;
    mutable QString m_html;
    mutable QString m_elidedText;
    mutable QSize m_naturalSize;
    mutable int m_width = -1; // that the document is laid out for
    mutable bool m_hasEmoji = false;
    mutable bool m_hasNewline = false;

    QPointer<QWidget> m_mirrored;
    int m_leftPadding = 0;
    int m_rightPadding = 0;
    bool m_mirrorsParentFocus = false;
    bool m_hasOwnIndent = false;
};
