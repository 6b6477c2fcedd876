#include "RowCount.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QHeaderView>
#include <QTreeView>

namespace {

class RowCount : public QObject
{
public:
    RowCount(QAbstractItemView *view, int rows)
        : QObject(view)
        , m_view(view)
        , m_rows(rows)
    {
        view->installEventFilter(this);
        update();
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::FontChange:
        case QEvent::Polish:
        case QEvent::Show:
        case QEvent::StyleChange:
            QMetaObject::invokeMethod(
                this, [this] { update(); }, Qt::QueuedConnection);
            break;
        default: break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void update()
    {
        const auto *tree = qobject_cast<QTreeView *>(m_view);
        const int header = tree ? tree->header()->sizeHint().height() : 0;
        // Border and padding of a view in the look of the gallery.
        const int around = 8;
        const int height = m_rows * qMax(1, m_view->sizeHintForRow(0)) + header + around;
        if (m_view->minimumHeight() != height)
            m_view->setFixedHeight(height);
    }

    QAbstractItemView *const m_view;
    const int m_rows;
};

} // namespace

void keepRowsShown(QAbstractItemView *view, int rows)
{
    new RowCount(view, rows);
}
