#pragma once

#include <QObject>
#include <QVector>

#include <map>

class LazyRows;

/// What a list too long to be held gets its pages from: it answers late, and not at all while it is offline. Pages that
/// have left the range before it answers are forgotten.
class LazyServer : public QObject
{
    Q_OBJECT

public:
    explicit LazyServer(LazyRows *rows);

    int delay() const { return m_delay; }
    void setDelay(int milliseconds); ///< for what is requested from now on
    /// What was requested in the meantime is answered after it comes back.
    void setOnline(bool online);

    /// In range and without an answer, in ascending order.
    QVector<int> waitingPages() const;
    void answer(int page); ///< at once

Q_SIGNALS:
    void changed();

private:
    void onPagesRequested(const QVector<int> &pages);
    void answerLater(int page);
    void forgetLeftPages();

    LazyRows *const m_rows;
    std::map<int, int> m_waiting; // page and number of the request
    int m_requests = 0;
    int m_delay = 600;
    bool m_isOnline = true;
};
