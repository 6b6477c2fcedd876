#pragma once

#include <UiElements/layouts/ItemLayout.h>

#include <QHash>

/// One row of items that decides by itself what to show in the width it has: tool bars, the controls of a call, the
/// header of a conversation.
///
/// As the width shrinks, first all items shrink together from their size hints to their minimums. Then items are
/// hidden: those of the lowest priority first, of the same priority the last in the row first, never one before a less
/// important one. They come back in the opposite order. What is shown depends on the width alone, so nothing flickers
/// at any width. The host learns from hiddenWidgetsChanged() what to offer elsewhere, and may give an overflow widget
/// ("...") that stands at the end of the row exactly while something is hidden for lack of room.
///
/// Room that is left goes to the items that expand horizontally, up to their maximum; without any the row begins at the
/// start. Spacers add to the spacing and are not hidden, nested layouts are hidden as a whole. All items have the
/// height of the row, which does not change with what is hidden; where an item has a height for its width, so has the
/// row.
///
/// The minimum width is that of what is never hidden and of the overflow widget, the minimum height that of the highest
/// item. The size hint shows everything.
class UIELEMENTS_EXPORT SmartLayout : public ItemLayout
{
    Q_OBJECT

public:
    static constexpr int NeverHidden = 0x7fffffff; ///< a priority

    explicit SmartLayout(QWidget *parent = nullptr);

    void addWidget(QWidget *widget, int priority = 0); ///< hides ItemLayout's
    void addLayout(QLayout *layout, int priority = 0); ///< hides ItemLayout's
    int priority(const QWidget *widget) const; ///< 0 for what is not in the layout
    void setPriority(const QWidget *widget, int priority);
    int priority(const QLayout *layout) const;
    void setPriority(const QLayout *layout, int priority);

    /// Adds the widget that is shown while others are hidden. To have another one, remove it first.
    void setOverflowWidget(QWidget *widget) { setOverflow(widget); }
    /// The widgets that are hidden for lack of room, in the order of the row.
    QVector<QWidget *> hiddenWidgets() const { return widgetsWithoutRoom(); }

    QLayoutItem *takeAt(int index) override;
    bool hasHeightForWidth() const override;

Q_SIGNALS:
    /// Emitted when all items are in their places.
    void hiddenWidgetsChanged();

protected:
    Arrangement arrange(const QVector<Item> &items, const QSize &size) const override;
    QSize contentHint(const QVector<Item> &items) const override;
    QSize contentMinimum(const QVector<Item> &items) const override;
    bool usesHeight() const override { return true; }
    void placed(const Arrangement &arrangement) override;

private:
    QLayoutItem *find(const QWidget *widget) const;
    QLayoutItem *find(const QLayout *layout) const;
    void setItemPriority(const QLayoutItem *item, int priority);
    bool isHideable(const Item &item) const;
    int itemSpacing() const { return spacingOr(-1); }
    QVector<bool> choose(const QVector<Item> &items, int width) const;

    QHash<const QLayoutItem *, int> m_priorities; ///< where they are not 0
    QVector<QPointer<QWidget>> m_toldHidden;
};
