#pragma once

#include <UiElements/controls/WPushButton.h>
#include <UiElements/icons/WEnum.h>

#include <QIcon>
#include <QPoint>
#include <QPointer>

#include <memory>

class QTextDocument;
class WSvgIcon;

namespace ControlText {
class GuardedDocument;
}

/// A push button with an SVG icon beside its text.
///
/// Icon and text are one block within what the style sheet's padding leaves of the button, placed by textHorAlign and
/// drawn in the colors of the button's state. In a right-to-left layout left and right are exchanged, those of the
/// paddings too. A text that does not fit is elided by elideMode, or cut without one; its tooltip then is the full text
/// where no other is set. Rich text is cut.
///
/// A QIcon set with setIcon() shows, drawn by the style with the text, only as long as there is neither an SVG icon nor
/// rich text.
///
/// Sizes and paddings are in device-independent pixels. Negative ones, and values outside of an enumeration, are
/// reported and change nothing.
class UIELEMENTS_EXPORT WSvgPushButton : public WPushButton
{
    Q_OBJECT
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize)
    Q_PROPERTY(QString svgIcon READ svgIcon WRITE setSvgIcon NOTIFY svgIconChanged)
    Q_PROPERTY(QString svgIconChecked READ svgIconChecked WRITE setSvgIconChecked NOTIFY svgIconCheckedChanged)
    Q_PROPERTY(Qt::TextFormat textFormat READ textFormat WRITE setTextFormat)
    Q_PROPERTY(QString svgIconColorSet READ svgIconColorSet WRITE setSvgIconColorSet)
    Q_PROPERTY(QSize svgIconSize READ svgIconSize WRITE setSvgIconSize NOTIFY svgIconSizeChanged)
    Q_PROPERTY(WEnum::Alignment svgIconAlignment READ svgIconAlignment WRITE setSvgIconAlignment)
    Q_PROPERTY(WEnum::HorAlign textHorAlign READ textHorAlign WRITE setTextHorAlign)
    Q_PROPERTY(int textLeftPadding READ textLeftPadding WRITE setTextLeftPadding)
    Q_PROPERTY(int textRightPadding READ textRightPadding WRITE setTextRightPadding)
    Q_PROPERTY(QPoint svgIconTopLeftPadding READ svgIconTopLeftPadding WRITE setSvgIconTopLeftPadding)
    Q_PROPERTY(QPoint svgIconBottomRightPadding READ svgIconBottomRightPadding WRITE setSvgIconBottomRightPadding)
    Q_PROPERTY(QString innerSvgIcon READ innerSvgIcon WRITE setInnerSvgIcon)
    Q_PROPERTY(QString innerSvgIconColorSet READ innerSvgIconColorSet WRITE setInnerSvgIconColorSet)
    Q_PROPERTY(QSize innerSvgIconSize READ innerSvgIconSize WRITE setInnerSvgIconSize)

public:
    explicit WSvgPushButton(QWidget *parent = nullptr);
    explicit WSvgPushButton(const QString &text, QWidget *parent = nullptr);
    ~WSvgPushButton() override;

    /// Paths of SVG files or resources. A file that cannot be loaded is reported, and no icon is shown.
    QString svgIcon() const;
    void setSvgIcon(const QString &path);
    /// Shown while the button is checked; empty shows the same icon.
    QString svgIconChecked() const;
    void setSvgIconChecked(const QString &path);

    /// Qt::PlainText at first. Qt::AutoText takes a text for rich text where it looks like it.
    ///
    /// Rich text reads its images from Qt resources only; others are replaced by their alternative texts.
    Qt::TextFormat textFormat() const { return m_textFormat; }
    void setTextFormat(Qt::TextFormat format);

    /// The name of a color set; empty takes the set of the text.
    QString svgIconColorSet() const { return m_svgIconColorSet; }
    void setSvgIconColorSet(const QString &name);
    /// Of the normal and the checked icon, 16 x 16 at first.
    QSize svgIconSize() const { return m_svgIconSize; }
    void setSvgIconSize(const QSize &size);
    WEnum::Alignment svgIconAlignment() const { return m_svgIconAlignment; }
    void setSvgIconAlignment(WEnum::Alignment alignment);
    WEnum::HorAlign textHorAlign() const { return m_textHorAlign; }
    void setTextHorAlign(WEnum::HorAlign alignment);

    /// Beside the text, 4 at first.
    int textLeftPadding() const { return m_textLeftPadding; }
    void setTextLeftPadding(int padding);
    int textRightPadding() const { return m_textRightPadding; }
    void setTextRightPadding(int padding);
    /// Around the icon: left and top, right and bottom.
    QPoint svgIconTopLeftPadding() const { return m_svgIconTopLeftPadding; }
    void setSvgIconTopLeftPadding(const QPoint &padding);
    QPoint svgIconBottomRightPadding() const { return m_svgIconBottomRightPadding; }
    void setSvgIconBottomRightPadding(const QPoint &padding);

    /// Drawn in the middle of the icon, and only with it.
    QString innerSvgIcon() const;
    void setInnerSvgIcon(const QString &path);
    QString innerSvgIconColorSet() const { return m_innerSvgIconColorSet; }
    void setInnerSvgIconColorSet(const QString &name);
    QSize innerSvgIconSize() const { return m_innerSvgIconSize; }
    void setInnerSvgIconSize(const QSize &size);

    /// A hidden icon takes no room.
    bool isSvgIconVisible() const { return m_svgIconVisible; }
    void setSvgIconVisible(bool visible);

    /// Hides the one of QAbstractButton, which does the same where the text is plain.
    void setText(const QString &text);

    QSize sizeHint() const override;
    QString plainText() const override;
    bool showsOnlyIcon() const override;

Q_SIGNALS:
    void svgIconChanged(const QString &path);
    void svgIconCheckedChanged(const QString &path);
    /// The name of the set was changed. A theme that changes its colors is told by cssChanged().
    void svgIconColorSetChanged(const WColorSet &colorSet);
    void svgIconSizeChanged(const QSize &size);

public Q_SLOTS:
    void onSvgIconColorSetChanged();
    void onSvgIconSizeChanged();
    virtual void onCSSChanged();
    void onThemeChanged() override;

protected:
    // Where things are. Rectangles are those of a left-to-right layout; visualRect() tells where they are drawn.

    /// What the style leaves of the button for its contents.
    QRect contentsArea(const QStyleOptionButton &option) const;
    /// The part of it that icon and text share: all of it here.
    virtual QRect iconTextArea(const QRect &contents) const;
    /// What the text leaves free on its left and right besides the paddings: nothing here.
    virtual QMargins extraTextPadding() const;
    /// Where the text is, empty without one.
    QRect textArea(const QStyleOptionButton &option) const;
    /// What icons and paddings add to the hint of the text.
    virtual QSize sizeOfIcons() const;
    /// To be called when any of these changed.
    void arrangeAgain();

    /// Loads the file into the icon, which is made for it at the size. False where the path was this one already.
    bool assignIcon(std::unique_ptr<WSvgIcon> *icon, const QString &path, const QSize &size);
    /// Gives the icons their colors, before they are painted. Called when they may be others than before.
    virtual void applyColors();
    /// Gives an icon the colors of the set, or those of the text. An icon that is not there is ignored.
    void colorIcon(const std::unique_ptr<WSvgIcon> &icon, const QString &colorSetName) const;
    /// To be called when the name of a set changed: reports an unknown one.
    void colorsAreOthers(const QString &colorSetName);

    void initStyleOption(QStyleOptionButton *option) const override;
    void paintButton(QStylePainter *painter, const QStyleOptionButton &option) override;
    void paintContents(QStylePainter *painter, const QStyleOptionButton &option) override;
    QString elidedFullText() const override;
    void updateColors() override;
    void changeEvent(QEvent *event) override;

private:
    struct Room;
    struct Arrangement;

    void init();
    const WSvgIcon *shownIcon() const;
    bool isDrawnByStyle() const;
    QTextDocument *richText() const;
    const Arrangement &arrangement(const QStyleOptionButton &option) const;
    void arrange(Arrangement *arrangement, QTextDocument *document) const;
    void prepareText(Arrangement *arrangement) const;

    std::unique_ptr<WSvgIcon> m_icon;
    std::unique_ptr<WSvgIcon> m_checkedIcon;
    std::unique_ptr<WSvgIcon> m_innerIcon;
    WColorSet m_textColors;
    QString m_svgIconColorSet;
    QString m_innerSvgIconColorSet;
    QSize m_svgIconSize {16, 16};
    QSize m_innerSvgIconSize {16, 16};
    QPoint m_svgIconTopLeftPadding;
    QPoint m_svgIconBottomRightPadding;
    int m_textLeftPadding = 4;
    int m_textRightPadding = 4;
    Qt::TextFormat m_textFormat = Qt::PlainText;
    WEnum::Alignment m_svgIconAlignment = WEnum::Alignment::Left;
    WEnum::HorAlign m_textHorAlign = WEnum::HorAlign::Center;
    bool m_svgIconVisible = true;
    bool m_colorsAreApplied = false;

    // A text can be set without a word to this class, so it is looked at when it is needed.
    mutable QString m_seenText;
    mutable bool m_isRich = false;
    mutable QPointer<ControlText::GuardedDocument> m_document;
    mutable std::unique_ptr<Arrangement> m_arrangement;
};
