#pragma once

#include <UiElements/uielements_export.h>

#include <QLayout>
#include <QPointer>
#include <QVector>

/// What the layouts of the library share.
///
/// Items are widgets, nested layouts and spacers. The layout owns the items, not the widgets, as every QLayout does. A
/// widget or nested layout that the host hid takes no room and no spacing. A null or impossible item is one warning and
/// no change. Items may come, go and be destroyed at any time. Contents margins are kept, and the whole is mirrored in
/// the layout direction of the parent widget.
///
/// Some layouts hide items that they have no room for, and show them again. Such a widget is not visible, keeps its
/// place in the layout and is not reached by Tab. The host's own hide() and show() still count: what the host hides
/// stays hidden, and what it shows appears as soon as there is room. When the item or the layout goes, the widget
/// appears again. The new size hint of a widget that is hidden counts from the next change of the layout on.
///
/// Placing again at the same place does nothing. A change of what is shown causes one more layout pass, anything else
/// none. QLayout::replaceWidget() works for layouts of Qt only.
class UIELEMENTS_EXPORT ItemLayout : public QLayout
{
    Q_OBJECT

public:
    explicit ItemLayout(QWidget *parent = nullptr);
    ~ItemLayout() override;

    void addWidget(QWidget *widget); ///< hides QLayout's, which takes a null widget for a valid one
    void insertWidget(int index, QWidget *widget); ///< at the end when there is no such index
    void addLayout(QLayout *layout);
    void addItem(QLayoutItem *item) override;
    int count() const override { return m_entries.size(); }
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    bool isEmpty() const override;

    Qt::Orientations expandingDirections() const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    int heightForWidth(int width) const override;
    void invalidate() override;
    void setGeometry(const QRect &rect) override;

protected:
    /// An item that takes part, with what it said of itself since the layout was invalidated.
    struct Item
    {
        QLayoutItem *item;
        int index;
        QSize hint; ///< between minimum and maximum
        QSize minimum;
        QSize maximum;
        Qt::Orientations expanding;
        bool isSpacer;
        bool isOverflow;
        bool hasHeightForWidth;

        int heightAt(int width) const;
    };
    struct Place
    {
        QRect rect; ///< from left to right, the contents begin at 0, 0
        bool isShown = true;
    };
    struct Arrangement
    {
        QVector<Place> places; ///< of the items, in their order
        int height = 0;
        int overflowCount = 0; ///< items that are not shown
    };

    /// The size is without margins; a height of -1 leaves it to the layout. The overflow item is the last one.
    virtual Arrangement arrange(const QVector<Item> &items, const QSize &size) const = 0;
    virtual QSize contentHint(const QVector<Item> &items) const = 0;
    virtual QSize contentMinimum(const QVector<Item> &items) const = 0;
    /// Whether arrange() looks at the height.
    virtual bool usesHeight() const = 0;
    /// Called when the items have been placed.
    virtual void placed(const Arrangement &arrangement);

    const QVector<Item> &items() const;
    /// The widgets that are hidden for lack of room, without the overflow widget.
    QVector<QWidget *> widgetsWithoutRoom() const;
    void setOverflow(QWidget *widget);
    bool warn(const char *function, const char *text) const; ///< returns false

    /// That of QLayout::spacing() unless the layout has its own.
    int spacingOr(int own) const;
    /// How many spacings there are between the items: spacers add to a spacing, they do not have their own.
    static int spacingCount(const QVector<Item> &items);
    static QSize largestHint(const QVector<Item> &items);
    static QSize largestMinimum(const QVector<Item> &items);
    /// Adds the room to the widths in equal shares, to each at most its growth. Returns what nobody took.
    static int share(int room, QVector<int> *widths, QVector<int> growths);

private:
    struct Entry
    {
        QLayoutItem *item;
        bool isOverflow;
        QVector<QPointer<QWidget>> hidden; ///< by the layout
    };
    class AsIfShown;

    bool accepts(const char *function, const QWidget *widget) const;
    bool isInside(const QLayout *layout) const;
    const Arrangement &arrangement(const QSize &contents) const;
    QSize withMargins(const QSize &size) const;
    bool place(const QRect &rect, const Arrangement &arrangement);
    bool hideItem(int index);
    bool showItem(int index);
    static void giveBack(const Entry &entry);

    QVector<Entry> m_entries;
    int m_version = 0; ///< of the list of entries
    bool m_isPlacing = false;
    bool m_isAskedAgain = false;
    mutable bool m_isMeasured = false;
    mutable QVector<Item> m_items;
    mutable QSize m_arrangedFor;
    mutable Arrangement m_arrangement;
};
