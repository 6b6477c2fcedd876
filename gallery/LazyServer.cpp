#include "LazyServer.h"

#include "ConversationModel.h"
#include "LazyRows.h"

#include <QLocale>
#include <QStandardItem>
#include <QTimer>

namespace {

QStandardItem *makeItem(int row)
{
    static const char *const people[] = {"Ada Novak",    "Boris Petrov",  "Chen Xu",    "Dolores García",
                                         "Emeka Okafor", "Fatima Rahman", "Grace Walsh"};
    static const char *const texts[] = {"Morning, everybody", "The build is through",
                                        "I have one more question about the plan for next week, when you find the time",
                                        "Agreed", "Here are the pictures from yesterday"};
    // Numbers that look as if there was no order.
    const quint32 mixed = quint32(row) * 2654435761u;
    const QString number = QLocale().toString(row + 1);
    const QString name = QString::fromUtf8(people[(mixed >> 8) % 7]);
    const QString text = QString::fromUtf8(texts[(mixed >> 16) % 5]);
    auto *item = new QStandardItem(name);
    item->setData(name, ConversationModel::NameRole);
    item->setData(text, ConversationModel::MessageRole);
    item->setData(number, ConversationModel::TimeTextRole);
    item->setData(LazyServer::tr("Message %1, %2: %3").arg(number, name, text), Qt::AccessibleTextRole);
    return item;
}

} // namespace

LazyServer::LazyServer(LazyRows *rows)
    : QObject(rows)
    , m_rows(rows)
{
    connect(rows, &LazyLoadedListModel::loadPages, this, &LazyServer::onPagesRequested);
}

void LazyServer::setDelay(int milliseconds)
{
    m_delay = qMax(0, milliseconds);
}

void LazyServer::setOnline(bool online)
{
    if (m_isOnline == online)
        return;
    m_isOnline = online;
    if (!online)
        return;
    const QVector<int> pages = waitingPages();
    for (const int page : pages)
        answerLater(page);
}

QVector<int> LazyServer::waitingPages() const
{
    QVector<int> pages;
    const QPair<int, int> range = m_rows->range();
    for (const auto &request : m_waiting) {
        if (request.first >= range.first && request.first < range.second)
            pages.append(request.first);
    }
    return pages;
}

void LazyServer::answer(int page)
{
    if (m_waiting.erase(page) == 0)
        return;
    const int first = m_rows->pageToIndex(page);
    const int end = qMin(first + int(m_rows->pageSize()), m_rows->size());
    QVector<QStandardItem *> items;
    items.reserve(end - first);
    for (int row = first; row < end; ++row)
        items.append(makeItem(row));
    m_rows->setItemsAtPage(page, items);
    Q_EMIT changed();
}

void LazyServer::onPagesRequested(const QVector<int> &pages)
{
    forgetLeftPages();
    for (const int page : pages) {
        if (!m_waiting.count(page))
            answerLater(page);
    }
    Q_EMIT changed();
}

void LazyServer::answerLater(int page)
{
    const int request = ++m_requests;
    m_waiting[page] = request;
    if (!m_isOnline)
        return;
    QTimer::singleShot(m_delay, this, [this, page, request] {
        const auto waiting = m_waiting.find(page);
        if (m_isOnline && waiting != m_waiting.end() && waiting->second == request)
            answer(page);
    });
}

void LazyServer::forgetLeftPages()
{
    const QPair<int, int> range = m_rows->range();
    m_waiting.erase(m_waiting.begin(), m_waiting.lower_bound(range.first));
    m_waiting.erase(m_waiting.lower_bound(range.second), m_waiting.end());
}
