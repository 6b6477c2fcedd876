#pragma once

#include <UiElements/controls/WSvgPushButton.h>

/// A button with a second icon at one of its edges, which tells whether something is open: an arrow up or down.
///
/// The icon for "on" shows while the button is checked or its menu is open. Where only one of the two is given, it
/// shows in both states. The mark with which styles tell of a menu gives way to it.
class UIELEMENTS_EXPORT WSvgAnchorButton : public WSvgPushButton
{
    Q_OBJECT
    Q_PROPERTY(QString anchorSvgOn READ anchorSvgOn WRITE setAnchorSvgOn NOTIFY anchorSvgOnChanged)
    Q_PROPERTY(QString anchorSvgOff READ anchorSvgOff WRITE setAnchorSvgOff NOTIFY anchorSvgOffChanged)
    Q_PROPERTY(QSize anchorIconSize READ anchorIconSize WRITE setAnchorIconSize)
    Q_PROPERTY(QString anchorSvgColorSet READ anchorSvgColorSet WRITE setAnchorSvgColorSet)
    Q_PROPERTY(int anchorPadding READ anchorPadding WRITE setAnchorPadding)
    Q_PROPERTY(int anchorSvgOffset READ anchorSvgOffset WRITE setAnchorSvgOffset)
    Q_PROPERTY(bool isLeftAnchor READ isLeftAnchor WRITE setIsLeftAnchor)
    Q_PROPERTY(bool alignAnchorIconToText READ alignAnchorIconToText WRITE setAlignAnchorIconToText)

public:
    explicit WSvgAnchorButton(QWidget *parent = nullptr);
    explicit WSvgAnchorButton(const QString &text, QWidget *parent = nullptr);
    ~WSvgAnchorButton() override;

    QString anchorSvgOn() const;
    void setAnchorSvgOn(const QString &path);
    QString anchorSvgOff() const;
    void setAnchorSvgOff(const QString &path);
    /// 16 x 16 at first.
    QSize anchorIconSize() const { return m_anchorIconSize; }
    void setAnchorIconSize(const QSize &size);
    /// The name of a color set; empty takes the set of the text.
    QString anchorSvgColorSet() const { return m_anchorSvgColorSet; }
    void setAnchorSvgColorSet(const QString &name);
    /// Between the anchor and the edge, or the text that it stands at. 8 at first.
    int anchorPadding() const { return m_anchorPadding; }
    void setAnchorPadding(int padding);
    /// Moves the anchor down, or up.
    int anchorSvgOffset() const { return m_anchorSvgOffset; }
    void setAnchorSvgOffset(int offset);
    /// At the leading edge, not the trailing one.
    bool isLeftAnchor() const { return m_isLeftAnchor; }
    void setIsLeftAnchor(bool isLeft);
    /// Beside the text, not at the edge. Without a text it stays there.
    bool alignAnchorIconToText() const { return m_alignAnchorIconToText; }
    void setAlignAnchorIconToText(bool align);

    /// A hidden anchor takes no room.
    bool isAnchorSvgVisible() const { return m_anchorSvgVisible; }
    void setAnchorSvgVisible(bool visible);

Q_SIGNALS:
    void anchorSvgOnChanged(const QString &path);
    void anchorSvgOffChanged(const QString &path);

public Q_SLOTS:
    void onThemeChanged() override;

protected:
    QRect iconTextArea(const QRect &contents) const override;
    QMargins extraTextPadding() const override;
    QSize sizeOfIcons() const override;
    void applyColors() override;
    void initStyleOption(QStyleOptionButton *option) const override;
    void paintContents(QStylePainter *painter, const QStyleOptionButton &option) override;

private:
    const WSvgIcon *usableAnchor(bool isOn) const;
    bool standsAtText() const;
    QRect anchorRect(const QRect &contents, const QRect &text) const;

    std::unique_ptr<WSvgIcon> m_anchorOn;
    std::unique_ptr<WSvgIcon> m_anchorOff;
    QString m_anchorSvgColorSet;
    QSize m_anchorIconSize {16, 16};
    int m_anchorPadding = 8;
    int m_anchorSvgOffset = 0;
    bool m_isLeftAnchor = false;
    bool m_alignAnchorIconToText = false;
    bool m_anchorSvgVisible = true;
};
