#pragma once

#include <UiElements/controls/WPushButton.h>

#include <QIcon>
#include <QSize>

#include <memory>

class WSvgIcon;

/// A tab button: checked it is underlined. It draws itself from color sets; a template does not change its look.
///
/// From the leading edge on: the dot for something unread, the left icon (an image in its own colors), the text, the
/// anchor icon (an SVG file in the color of the text). In a right-to-left layout all of it is mirrored.
class UIELEMENTS_EXPORT WUnderlineButton : public WPushButton
{
    Q_OBJECT
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth)
    Q_PROPERTY(int bottomPadding READ bottomPadding WRITE setBottomPadding)
    Q_PROPERTY(bool showUnreadIndicator READ showUnreadIndicator WRITE setShowUnreadIndicator)
    Q_PROPERTY(QString leftIcon READ leftIcon WRITE setLeftIcon)
    Q_PROPERTY(QString anchorIcon READ anchorIcon WRITE setAnchorIcon)

public:
    explicit WUnderlineButton(QWidget *parent = nullptr);
    explicit WUnderlineButton(const QString &text, QWidget *parent = nullptr);
    ~WUnderlineButton() override;

    /// How thick the underline is, and how far from the bottom edge; in pixels. Negative ones are reported and ignored.
    int borderWidth() const { return m_borderWidth; }
    void setBorderWidth(int width);
    int bottomPadding() const { return m_bottomPadding; }
    void setBottomPadding(int padding);

    bool showUnreadIndicator() const { return m_showUnreadIndicator; }
    void setShowUnreadIndicator(bool show);
    QSize unreadIndicatorSize() const { return m_unreadIndicatorSize; }
    /// 10 x 10 at first. An empty size is reported and ignored.
    void setUnreadIndicatorSize(const QSize &size);

    /// Paths of files; empty for none. One that cannot be read is reported and ignored.
    QString leftIcon() const { return m_leftIconPath; }
    void setLeftIcon(const QString &path);
    QString anchorIcon() const;
    void setAnchorIcon(const QString &path);

    QString textColorSetName() const { return m_textSet; }
    void setTextColorSet(const QString &name);
    QString backgroundColorSetName() const { return m_backgroundSet; }
    void setBackgroundColorSet(const QString &name);
    /// Empty, the default, is that of the text.
    QString underlineColorSetName() const { return m_underlineSet; }
    void setUnderlineColorSet(const QString &name);

    QSize sizeHint() const override;
    bool showsOnlyIcon() const override;
    bool showsNews() const override;

public Q_SLOTS:
    void onThemeChanged() override;

protected:
    void paintButton(QStylePainter *painter, const QStyleOptionButton &option) override;
    void paintFocus(QStylePainter *painter, const QStyleOptionButton &option) override;
    void initStyleOption(QStyleOptionButton *option) const override;
    QString elidedFullText() const override;
    void updateColors() override;

private:
    struct Colors
    {
        WColorSet text;
        WColorSet background;
        WColorSet underline;
        WColorSet unread;
    };

    void init();
    void setName(QString *name, const QString &value);
    void setLength(int *length, int value, const char *what);
    const Colors &colors() const;
    int leadingRoom() const;
    int trailingRoom() const;
    QString fitting(const QString &text) const;
    void paintUnderline(QPainter *painter, const QStyleOptionButton &option);
    void paintText(QPainter *painter, const QStyleOptionButton &option);

    QString m_textSet;
    QString m_backgroundSet;
    QString m_underlineSet;
    QString m_leftIconPath;
    QIcon m_leftIcon;
    std::unique_ptr<WSvgIcon> m_anchorIcon;
    QSize m_unreadIndicatorSize;
    int m_borderWidth = 2;
    int m_bottomPadding = 2;
    bool m_showUnreadIndicator = false;
    mutable std::unique_ptr<Colors> m_colors;
};
