#pragma once

#include <UiElements/theme/WColorSet.h>
#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QPushButton>
#include <QRect>

class QStyleOptionButton;
class QStylePainter;
class QTimer;

/// A themeable push button with long press, a badge, elided text and a focus frame of its own.
///
/// Return and Enter press it: pressed() when the key goes down, clicked(false) when it comes up. A checkable button is
/// not toggled by that, only by Space. Default and auto-default buttons leave these keys to their dialog.
///
/// While the text is shown elided and no tooltip is set, the tooltip is the full text. Of a text longer than 10,000
/// characters only the beginning is shown. The focus frame surrounds the
/// button or the rectangle in the dynamic property "customFocusRect", then also "hasCustomRect" is true.
///
/// A button without a text has its tooltip as accessible name where none is set. In debug builds one that shows only an
/// icon and has neither is reported when it is first shown.
class UIELEMENTS_EXPORT WPushButton : public Themed<WPushButton, QPushButton>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)
    Q_PROPERTY(int elidePadding READ elidePadding WRITE setElidePadding)
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES
    Q_PROPERTY(QString focusRectColorSet READ focusRectColorSet WRITE setFocusRectColorSet)
    Q_PROPERTY(bool longPressEnabled READ longPressEnabled WRITE setLongPressEnabled)
    Q_PROPERTY(bool badgeVisible READ badgeVisible WRITE setBadgeVisible)

public:
    explicit WPushButton(QWidget *parent = nullptr);
    explicit WPushButton(const QString &text, QWidget *parent = nullptr);
    WPushButton(const QIcon &icon, const QString &text, QWidget *parent = nullptr);

    /// Qt::ElideNone, the default, leaves a text that does not fit to the style, which cuts it.
    Qt::TextElideMode elideMode() const { return m_elideMode; }
    void setElideMode(Qt::TextElideMode mode);
    /// What the text leaves free of the button's width, in pixels. A negative one is reported and ignored.
    int elidePadding() const { return m_elidePadding; }
    void setElidePadding(int padding);

    /// The color set of the focus frame. With an empty name it is "outline-focus" or, in a theme without that, the
    /// style's.
    QString focusRectColorSet() const { return m_focusRectColorSet; }
    void setFocusRectColorSet(const QString &name);

    /// Holding the mouse button down for half a second emits longPressed(); then neither released() nor clicked()
    /// follows.
    bool longPressEnabled() const { return m_longPressEnabled; }
    void setLongPressEnabled(bool enabled);

    /// A dot in the upper trailing corner. The text gives way to it.
    bool badgeVisible() const { return m_badgeVisible; }
    void setBadgeVisible(bool visible);

    /// Swallows the arrow keys, which otherwise may move the focus.
    bool arrowKeysSuppressed() const { return m_arrowKeysSuppressed; }
    void setArrowKeysSuppressed(bool suppressed) { m_arrowKeysSuppressed = suppressed; }
    /// Opens the tooltip below the button when Tab or Backtab brings the focus.
    bool toolTipOnKeyboardFocus() const { return m_toolTipOnKeyboardFocus; }
    void setToolTipOnKeyboardFocus(bool show) { m_toolTipOnKeyboardFocus = show; }

    QSize sizeHint() const override;

    W_THEME_SIGNALS
Q_SIGNALS:
    void onFocusIn();
    void onFocusOut();
    void longPressed();
    void mouseEntered();
    void mouseExited();
    /// The right mouse button went down on the button.
    void rightClick();

public:
    W_THEME_SLOTS

public:
    void onThemeChanged() override;

    /// The text as it is read: without the marks of mnemonics.
    virtual QString plainText() const;
    /// True where only an icon tells what the button does.
    virtual bool showsOnlyIcon() const;
    /// True while a mark tells of something new: the badge, here. Screen readers are told, too.
    virtual bool showsNews() const { return m_badgeVisible; }

protected:
    /// Hides the one of QPushButton, which is not virtual. Painting asks this one.
    virtual void initStyleOption(QStyleOptionButton *option) const;

    // What paintEvent() draws, in this order. The option is that of initStyleOption().
    /// The box with text and icon of the option.
    virtual void paintButton(QStylePainter *painter, const QStyleOptionButton &option);
    /// What a class draws itself upon its box. Nothing here.
    virtual void paintContents(QStylePainter *painter, const QStyleOptionButton &option);
    /// Called only while the button shows that it has the keyboard focus.
    virtual void paintFocus(QStylePainter *painter, const QStyleOptionButton &option);
    /// Called only while the badge is visible.
    virtual void paintBadge(QStylePainter *painter, const QStyleOptionButton &option);

    /// The full text while it is shown elided, otherwise empty. It becomes the tooltip, as plain text.
    virtual QString elidedFullText() const;

    /// Called when the template was expanded or the theme changed: color sets are to be asked for again.
    virtual void updateColors();
    /// The set that `$textColors` of the template names, for the button's theme type; without one a default set.
    WColorSet textColorSet() const;
    /// A set by its name for the button's theme type; an empty name gives a default set.
    WColorSet colorSet(const QString &name) const;

    /// Of the focus frame. Invalid where the theme names none.
    QColor focusColor() const;
    QRect badgeRect() const;
    /// The size that the style gives a button around contents.
    QSize hintFor(const QSize &contents) const;
    /// To be called when what showsNews() answers may have changed.
    void announceNews();

    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    // A text as it is shown, and what that was made for.
    struct ShownText
    {
        QString source;
        QString text;
        QSize size;
        int iconWidth = 0;
        bool isMade = false;
    };

    void init();
    void onLongPressTimeout();
    void followCustomFocusRect();
    void warnIfUnnamed();
    bool takesReturn(const QKeyEvent *event) const;
    int badgeRoom() const;
    int iconRoom() const;
    void readColors() const;
    const QString &shownText() const;

    QString m_focusRectColorSet;
    QTimer *m_longPressTimer = nullptr;
    QRect m_customFocusRect;
    int m_elidePadding = 0;
    Qt::TextElideMode m_elideMode = Qt::ElideNone;
    bool m_longPressEnabled = false;
    bool m_badgeVisible = false;
    bool m_arrowKeysSuppressed = false;
    bool m_toolTipOnKeyboardFocus = false;
    bool m_longPressDone = false;
    bool m_focusCameWithWindow = false; // and no key was pressed since
    bool m_nameChecked = false;
    mutable bool m_colorsAreRead = false;
    mutable QColor m_badgeColor;
    mutable QColor m_focusColor;
    mutable QColor m_pageColor;
    mutable ShownText m_shownText;
};
