#pragma once

#include <UiElements/controls/WLabel.h>
#include <UiElements/icons/WEnum.h>
#include <UiElements/uielements_export.h>

#include <QPoint>

#include <memory>

class QTextDocument;
class WSvgIcon;

/// A label with an SVG icon beside its text.
///
/// Icon and text are one block, placed by textHorAlign within the label and drawn in the colors of its state. In a
/// right-to-left layout left and right are exchanged, those of the paddings too. A text that can be selected, or has
/// links, is laid out by QLabel, behind an icon at its left or right.
///
/// Sizes and paddings are in device-independent pixels. Negative ones, and values outside of an enumeration, are
/// reported and change nothing.
class UIELEMENTS_EXPORT WSvgLabel : public WLabel
{
    Q_OBJECT
    Q_PROPERTY(QString svgIcon READ svgIcon WRITE setSvgIcon NOTIFY svgIconChanged)
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
    explicit WSvgLabel(QWidget *parent = nullptr);
    WSvgLabel(QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags = Qt::WindowFlags());
    explicit WSvgLabel(const QString &text, QWidget *parent = nullptr, QAccessible::Role role = QAccessible::NoRole,
                       Qt::WindowFlags flags = Qt::WindowFlags());
    ~WSvgLabel() override;

    /// A path of an SVG file or resource. A file that cannot be loaded is reported, and no icon is shown.
    QString svgIcon() const;
    void setSvgIcon(const QString &path);
    /// The name of a color set; empty takes the color of the text.
    QString svgIconColorSet() const { return m_colorSet; }
    void setSvgIconColorSet(const QString &name);
    /// 16 x 16 at first.
    QSize svgIconSize() const { return m_size; }
    void setSvgIconSize(const QSize &size);
    WEnum::Alignment svgIconAlignment() const { return m_iconAlignment; }
    void setSvgIconAlignment(WEnum::Alignment alignment);
    /// Left at first.
    WEnum::HorAlign textHorAlign() const { return m_textAlignment; }
    void setTextHorAlign(WEnum::HorAlign alignment);

    /// Beside the text, 4 at first.
    int textLeftPadding() const { return m_textLeftPadding; }
    void setTextLeftPadding(int padding);
    int textRightPadding() const { return m_textRightPadding; }
    void setTextRightPadding(int padding);
    /// Around the icon: left and top, right and bottom.
    QPoint svgIconTopLeftPadding() const { return m_iconTopLeftPadding; }
    void setSvgIconTopLeftPadding(const QPoint &padding);
    QPoint svgIconBottomRightPadding() const { return m_iconBottomRightPadding; }
    void setSvgIconBottomRightPadding(const QPoint &padding);

    /// Drawn in the middle of the icon, and only with it.
    QString innerSvgIcon() const;
    void setInnerSvgIcon(const QString &path);
    QString innerSvgIconColorSet() const { return m_innerColorSet; }
    void setInnerSvgIconColorSet(const QString &name);
    QSize innerSvgIconSize() const { return m_innerSize; }
    void setInnerSvgIconSize(const QSize &size);

    /// A hidden icon takes no room.
    bool isSvgIconVisible() const { return m_isIconVisible; }
    void setSvgIconVisible(bool visible);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    void svgIconChanged(const QString &path);
    void svgIconColorSetChanged(const WColorSet &colorSet);
    void svgIconSizeChanged(const QSize &size);

public Q_SLOTS:
    void onThemeChanged() override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void invalidateText() override;
    QRect textRect() const override;
    Qt::Alignment placedAlignment() const override;

private:
    void init();
    WSvgIcon *ensureIcon();
    bool hasIcon() const;
    bool isLaidOutByQt() const;
    bool isBeside() const;
    QSize iconBlock() const;
    int paddings() const;
    QTextDocument *document() const;
    WColorSet colorsOf(const QString &name) const;
    WColorSet namedColors(const QString &name) const; // reports an unknown one
    void changeLayout();

    std::unique_ptr<WSvgIcon> m_icon;
    mutable std::unique_ptr<QTextDocument> m_document; // for rich text
    mutable QString m_documentText;
    QString m_colorSet;
    QString m_innerColorSet;
    QSize m_size {16, 16};
    QSize m_innerSize {16, 16};
    QPoint m_iconTopLeftPadding;
    QPoint m_iconBottomRightPadding;
    int m_textLeftPadding = 4;
    int m_textRightPadding = 4;
    WEnum::Alignment m_iconAlignment = WEnum::Alignment::Left;
    WEnum::HorAlign m_textAlignment = WEnum::HorAlign::Left;
    bool m_isIconVisible = true;
    bool m_hasOwnIndent = false;
    bool m_hadOwnIndent = false;
};
