#pragma once

#include <UiElements/theme/WColorSet.h>
#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QColor>
#include <QLabel>
#include <QPixmap>
#include <QStyle>
#include <QTextOption>

#include <memory>

class QPainter;

namespace EmojiPicker {
class EmojiData;
}

/// A themeable label that can be clicked.
///
/// - As long as it has any text interaction flag (Qt's default is one), the left mouse button, Return, Enter and Space
///   emit clicked(); what Qt does with them follows. A label whose clicked() is connected can be reached by Tab, is a
///   button to a screen reader and shows its focus. Without flags it ignores clicks and keys.
/// - A right click selects the whole of a selectable text, Copy takes the whole text, Cancel ends the selection.
/// - Links have the colors of the set "button-hyperlink-text". They open nothing unless the host says so with
///   setOpenExternalLinks(), or answers linkActivated().
/// - Images in rich text come from Qt resources only; see setOutsideImagesAllowed().
/// - A plain text that does not fit is elided as elideMode says, with the whole text as tooltip.
/// - Left and right in the alignment are those of a left-to-right layout, whatever the direction of the text.
/// - Of a text longer than 10,000 characters only the beginning is shown; text() and Copy know all of it.
///
/// setAlignment(), setText(), setTextFormat(), setTextInteractionFlags() and setPixmap() hide those of QLabel: what is
/// set through a QLabel pointer is shown as QLabel shows it.
class UIELEMENTS_EXPORT WLabel : public Themed<WLabel, QLabel>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)
    Q_PROPERTY(int elidePadding READ elidePadding WRITE setElidePadding)
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WLabel(QWidget *parent = nullptr);
    WLabel(QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags = Qt::WindowFlags());
    explicit WLabel(const QString &text, QWidget *parent = nullptr, QAccessible::Role role = QAccessible::NoRole,
                    Qt::WindowFlags flags = Qt::WindowFlags());
    ~WLabel() override;

    /// Qt::ElideNone at first. Otherwise the label may become narrower than its text.
    Qt::TextElideMode elideMode() const { return m_elideMode; }
    void setElideMode(Qt::TextElideMode mode);
    /// Pixels that an elided text leaves free; a negative number is reported and changes nothing.
    int elidePadding() const { return m_elidePadding; }
    void setElidePadding(int pixels);

    /// As it was set. QLabel's own knows where a text goes that Qt lays out in a right-to-left layout.
    Qt::Alignment alignment() const;
    void setAlignment(Qt::Alignment alignment);

    /// As it was set, without what is added for display.
    QString text() const;
    virtual void setTextFormat(Qt::TextFormat format);
    void setTextInteractionFlags(Qt::TextInteractionFlags flags);

    /// How a plain text is broken into lines while wordWrap is on.
    QTextOption::WrapMode wrapMode() const { return m_wrapMode; }
    void updateWrapMode(QTextOption::WrapMode mode);

    void setPixmap(const QPixmap &pixmap);
    /// Draws the label's pixmaps, also later ones, in one color; an invalid color gives them their own back.
    void setPixmapColor(const QColor &color);

    /// Lets images and style sheets in rich text be read from files, too. Off at first: what does not come from ":/"
    /// or "qrc:/" is replaced by its alternative text.
    bool outsideImagesAllowed() const { return m_outsideImagesAllowed; }
    void setOutsideImagesAllowed(bool allowed);

    /// Somebody listens to clicked(), and there is a text interaction flag.
    bool isClickable() const;
    /// What the screen reader says where no accessible name is set: the text without markup, emoji by their names.
    QString spokenText() const;
    /// Emoji by their names, also for other elements.
    static QString spokenText(const QString &plainText);
    /// Where labels and buttons find the names of emoji. Without a catalogue emoji are left to the screen reader.
    static void setEmojiCatalogue(const std::shared_ptr<const EmojiPicker::EmojiData> &catalogue);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

    W_THEME_SIGNALS
Q_SIGNALS:
    /// By mouse, by key, or by the press action of the accessibility interface.
    void clicked();
    /// The label was shown or hidden; minimizing its window does not count.
    void onVisibilityChanged(bool isVisible);

public Q_SLOTS:
#ifdef Q_MOC_RUN
    void refreshCSS();
#endif
    virtual void setText(const QString &text);
    void onThemeChanged() override;
#ifdef Q_MOC_RUN
    void onParentThemeTypeChanged();
#endif
    void onLayoutDirectionChanged() override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void connectNotify(const QMetaMethod &signal) override;
    void disconnectNotify(const QMetaMethod &signal) override;

    /// The signal, which a class below may have once more. The label may be gone afterwards.
    virtual void emitClicked();
    virtual bool hasClickReceivers() const;
    virtual void copyText();
    /// Something that the layout depends on has changed.
    virtual void invalidateText();
    /// The text shown is less than the whole.
    virtual bool isElided() const;

    bool elides() const;
    QString elidedText() const;
    /// QLabel's own painting would not do.
    virtual bool drawsItself() const;
    bool isSelectable() const;
    /// What QLabel was given to show.
    QString shownText() const
    {
        return QLabel::text();
    }
    /// QLabel shows the text as it is, without markup.
    bool isPlain() const;
    /// Where the text goes.
    virtual QRect textRect() const;
    /// How QLabel is to align a text that it lays out.
    virtual Qt::Alignment placedAlignment() const;
    void placeText();
    /// The color of the template's text set for the state that shows; without a set, that of the palette.
    QColor textColor() const;
    virtual QStyle::State textState() const;
    bool showsFocus() const;
    void drawFocus(QPainter *painter);
    /// A plain text, elided and broken into lines.
    void drawLines(QPainter *painter, const QRect &rect) const;
    void showText();
    bool hasBareLinks() const;
    void colorLinks();
    /// What QLabel is to show for the text that was set.
    virtual QString displayText() const;

private:
    friend class LabelAccessible;

    void init(QAccessible::Role role);
    void updateFocusPolicy();
    void selectAll();
    QString safeText(const QString &text) const;
    QString markupAsText(const QString &text) const;
    QString withLinkColors(const QString &text) const;
    void showToolTip(const QPoint &at);

    struct Elided
    {
        int width = -1;
        QString text;
    };
    class Lines;

    mutable WColorSet m_linkColors;
    QString m_text;
    QString m_shown; // what QLabel was given
    QPixmap m_pixmap; // in its own colors
    Qt::Alignment m_alignment = Qt::AlignLeft | Qt::AlignVCenter;
    Qt::Alignment m_placedAlignment = m_alignment; // what QLabel was given
    qint64 m_tintedKey = 0; // of the picture that was made of it
    QColor m_pixmapColor;
    mutable Elided m_elided;
    Qt::TextElideMode m_elideMode = Qt::ElideNone;
    QTextOption::WrapMode m_wrapMode = QTextOption::WordWrap;
    int m_elidePadding = 0;
    bool m_outsideImagesAllowed = false;
    bool m_gaveTabFocus = false;
    bool m_isCut = false;
};
