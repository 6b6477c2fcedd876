#include <UiElements/widgets/WListWidget.h>

#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

WListWidget::WListWidget(QWidget *parent)
    : Themed(parent)
{
    initTheme();
}

void WListWidget::keyPressEvent(QKeyEvent *event)
{
    const QPointer<WListWidget> self(this);
    Q_EMIT keyPressed(event);
    if (self)
        QListWidget::keyPressEvent(event);
}

void WListWidget::resizeEvent(QResizeEvent *event)
{
    QListWidget::resizeEvent(event);
    const int width = viewport()->width();
    if (m_itemWidth != width) {
        m_itemWidth = width;
        Q_EMIT updateItemSize();
    }
    scheduleVisibleUpdate();
}

void WListWidget::showEvent(QShowEvent *event)
{
    QListWidget::showEvent(event);
    scheduleVisibleUpdate();
}

void WListWidget::scrollContentsBy(int dx, int dy)
{
    QListWidget::scrollContentsBy(dx, dy);
    scheduleVisibleUpdate();
}

// Called after every change of the rows, their sizes or the scroll range.
void WListWidget::updateGeometries()
{
    QListWidget::updateGeometries();
    scheduleVisibleUpdate();
}

void WListWidget::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles)
{
    QListWidget::dataChanged(topLeft, bottomRight, roles);
    // More rows than fit on any screen: every visible item is as good as changed.
    if (bottomRight.row() - topLeft.row() > 1000) {
        m_visible.clear();
    } else {
        for (int row = topLeft.row(); row <= bottomRight.row(); ++row)
            m_visible.removeOne(item(row));
    }
    scheduleVisibleUpdate();
}

// The address of an item that goes may be that of an item that comes.
void WListWidget::rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end)
{
    for (int i = m_visible.size() - 1; i >= 0; --i) {
        const int at = row(m_visible.at(i));
        if (at >= start && at <= end) {
            m_visible.remove(i);
            m_removed = true;
        }
    }
    QListWidget::rowsAboutToBeRemoved(parent, start, end);
    scheduleVisibleUpdate();
}

void WListWidget::reset()
{
    m_removed = m_removed || !m_visible.isEmpty();
    m_visible.clear();
    QListWidget::reset();
    scheduleVisibleUpdate();
}

// One scroll step or one insertion of a thousand rows comes as many notices; the hosts hear of them once.
void WListWidget::scheduleVisibleUpdate()
{
    if (m_scheduled)
        return;
    m_scheduled = true;
    QTimer::singleShot(0, this, [this] { updateVisible(); });
}

void WListWidget::updateVisible()
{
    m_scheduled = false;
    QVector<QListWidgetItem *> visible;
    const QRect area = viewport()->rect();
    if (isVisible() && !area.isEmpty()) {
        const QModelIndex first = indexAt(QPoint(area.width() / 2, 0));
        for (int row = qMax(0, first.row()); row < count(); ++row) {
            if (isRowHidden(row))
                continue;
            const QRect rect = visualItemRect(item(row));
            if (rect.top() > area.bottom())
                break;
            if (rect.intersects(area))
                visible << item(row);
        }
    }
    if (visible == m_visible && !m_removed)
        return;
    QVector<QPersistentModelIndex> appeared;
    for (QListWidgetItem *candidate : qAsConst(visible)) {
        if (!m_visible.contains(candidate))
            appeared << indexFromItem(candidate);
    }
    m_visible = visible;
    m_removed = false;
    const QPointer<WListWidget> self(this);
    for (const QPersistentModelIndex &index : qAsConst(appeared)) {
        if (index.isValid()) // a slot may have removed items, or the list
            Q_EMIT updateItemWidget(item(index.row()));
        if (!self)
            return;
    }
    Q_EMIT visibleUpdated();
}
