#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QListWidget>
#include <QVector>

/// A themeable list widget that tells a host which items are in view, so that costly item widgets are made and kept up
/// to date only for those.
class UIELEMENTS_EXPORT WListWidget : public Themed<WListWidget, QListWidget>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WListWidget(QWidget *parent = nullptr);

    void reset() override;

    W_THEME_SIGNALS
Q_SIGNALS:
    /// The item has come into view, or was changed while in view. Never for an item out of view.
    void updateItemWidget(QListWidgetItem *item);
    /// The width for items changed: item widgets whose height depends on it are to be measured again.
    void updateItemSize();
    /// The set of items in view changed; comes after updateItemWidget() for the new ones.
    void visibleUpdated();
    /// A key was pressed in the list; the list handles it afterwards. The event is valid only during the call.
    void keyPressed(QKeyEvent *keyEvent);

    W_THEME_SLOTS

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    void rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = {}) override;

private:
    void scheduleVisibleUpdate();
    void updateVisible();
    int firstRowInView(const QRect &area) const;

    QVector<QListWidgetItem *> m_visible; // none of a removed item: see rowsAboutToBeRemoved()
    int m_itemWidth = -1;
    bool m_removed = false; // of the items in view since the last visibleUpdated()
    bool m_scheduled = false;
};
