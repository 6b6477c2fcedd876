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

// The first row that reaches into the area, by halving; the rows stand in order in one line.
int WListWidget::firstRowInView(const QRect &area) const
{
    const auto isBefore = [&](int row) {
        const QRect rect = visualItemRect(item(row));
        if (flow() == TopToBottom)
            return rect.bottom() < area.top();
        return isRightToLeft() ? rect.left() > area.right() : rect.right() < area.left();
    };
    int low = 0;
    int high = count();
    while (low < high) {
        const int middle = low + (high - low) / 2;
        int shown = middle; // a hidden row has no place
        while (shown < high && isRowHidden(shown))
            ++shown;
        if (shown < high && isBefore(shown))
            low = shown + 1;
        else
            high = middle;
    }
    return low;
}

void WListWidget::updateVisible()
{
    m_scheduled = false;
    QVector<QListWidgetItem *> visible;
    const QRect area = viewport()->rect();
    if (isVisible() && !area.isEmpty()) {
        // In one line of items, upright or lying, those behind the edge need not be looked at.
        const bool oneLine = viewMode() == ListMode && !isWrapping();
        for (int row = oneLine ? firstRowInView(area) : 0; row < count(); ++row) {
            if (isRowHidden(row))
                continue;
            const QRect rect = visualItemRect(item(row));
            if (rect.intersects(area))
                visible << item(row);
            else if (oneLine)
                break;
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
