#pragma once

#include <UiElements/layouts/ItemLayout.h>

/// Items one after another in lines, as text flows: chips, recipients, reactions, the buttons of a bar.
///
/// Each item has the width of its size hint. One that does not fit begins the next line; one that is wider than a whole
/// line gets what there is, but at least its minimum. Items that expand horizontally, spacers too, share what is left
/// of their line up to their maximum. A spacer adds to the spacing and never begins a line but the first. A line is as
/// high as its highest item.
///
/// The height follows from the width: heightForWidth() is exactly where the last line ends. What a widget has below
/// that stays empty. The size hint is all items in one line. The minimum is that of the widest and of the highest item:
/// a host whose lines must always be seen puts the layout into something that asks for the height at a width, as box
/// layouts, grids and scroll areas do.
///
/// With a maximum number of lines the items behind it are hidden. How many that are is the overflowCount(), and an
/// overflow widget ("+3") is then shown behind the last item of the last line.
class UIELEMENTS_EXPORT FlowLayout : public ItemLayout
{
    Q_OBJECT
    Q_PROPERTY(int horizontalSpacing READ horizontalSpacing WRITE setHorizontalSpacing)
    Q_PROPERTY(int verticalSpacing READ verticalSpacing WRITE setVerticalSpacing)
    Q_PROPERTY(LineAlignment lineAlignment READ lineAlignment WRITE setLineAlignment)
    Q_PROPERTY(ItemAlignment itemAlignment READ itemAlignment WRITE setItemAlignment)
    Q_PROPERTY(int maximumLineCount READ maximumLineCount WRITE setMaximumLineCount)
    Q_PROPERTY(int overflowCount READ overflowCount NOTIFY overflowCountChanged)

public:
    /// Where the items of a line are that nobody stretches. Justified: the spacings of all lines but the last one are
    /// widened until the line is full.
    enum class LineAlignment { Start, Center, End, Justified };
    Q_ENUM(LineAlignment)
    /// Where a lower item is in its line. Stretch: it is made as high as the line, as far as its maximum goes.
    enum class ItemAlignment { Top, Center, Bottom, Stretch };
    Q_ENUM(ItemAlignment)

    explicit FlowLayout(QWidget *parent = nullptr);
    FlowLayout(int horizontalSpacing, int verticalSpacing, QWidget *parent = nullptr);

    int horizontalSpacing() const; ///< in pixels; that of QLayout::spacing() until it is set
    void setHorizontalSpacing(int spacing); ///< -1 for that of QLayout::spacing()
    int verticalSpacing() const; ///< in pixels; that of QLayout::spacing() until it is set
    void setVerticalSpacing(int spacing); ///< -1 for that of QLayout::spacing()
    LineAlignment lineAlignment() const { return m_lineAlignment; }
    void setLineAlignment(LineAlignment alignment);
    ItemAlignment itemAlignment() const { return m_itemAlignment; }
    void setItemAlignment(ItemAlignment alignment);
    int maximumLineCount() const { return m_maximumLineCount; } ///< 0: no limit
    void setMaximumLineCount(int count);
    int overflowCount() const { return m_overflowCount; } ///< of the last placing

    /// Adds the widget that is shown when items are hidden. To have another one, remove it first.
    void setOverflowWidget(QWidget *widget) { setOverflow(widget); }

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override { return true; }

Q_SIGNALS:
    void overflowCountChanged(int count);

protected:
    Arrangement arrange(const QVector<Item> &items, const QSize &size) const override;
    QSize contentHint(const QVector<Item> &items) const override;
    QSize contentMinimum(const QVector<Item> &items) const override;
    bool usesHeight() const override { return false; }
    void placed(const Arrangement &arrangement) override;

private:
    int lineEnd(const QVector<Item> &items, int first, int count, int width) const;
    int placeLine(const QVector<Item> &line, int top, int width, bool isLast, QVector<QRect> *rects) const;

    int m_horizontalSpacing = -1;
    int m_verticalSpacing = -1;
    LineAlignment m_lineAlignment = LineAlignment::Start;
    ItemAlignment m_itemAlignment = ItemAlignment::Top;
    int m_maximumLineCount = 0;
    int m_overflowCount = 0;
};
