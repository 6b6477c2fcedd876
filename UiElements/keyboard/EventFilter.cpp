#include <UiElements/keyboard/EventFilter.h>

#include <QPointer>

namespace VisualUtils {

/// The one event filter that Qt knows of an object. Qt puts a new filter in front while it counts through the list, so
/// that a filter which installs another one is called again, and without end if it does so each time.
class EventFilter::Hub : public QObject
{
public:
    static Hub *of(QObject *watched)
    {
        for (QObject *child : watched->children()) {
            if (auto *hub = dynamic_cast<Hub *>(child))
                return hub;
        }
        return new Hub(watched);
    }

    void add(EventFilter *filter)
    {
        m_filters.removeAll(nullptr); // those that were deleted
        if (!m_filters.contains(filter))
            m_filters.prepend(filter);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QPointer<Hub> self(this);
        const QVector<QPointer<EventFilter>> filters = m_filters;
        const QEvent::Type type = event->type(); // the event may die with the object
        for (const QPointer<EventFilter> &filter : filters) {
            if (!filter || !filter->m_types.contains(type))
                continue;
            const std::shared_ptr<const Handler> handler = filter->m_handler; // outlives a filter deleted by it
            if ((*handler)(watched, event) || !self)
                return true;
        }
        return false;
    }

private:
    explicit Hub(QObject *watched)
        : QObject(watched)
    {
        watched->installEventFilter(this);
    }

    QVector<QPointer<EventFilter>> m_filters;
};

EventFilter::EventFilter(QObject *watched, const QVector<QEvent::Type> &types, Handler handler)
    : QObject(watched)
    , m_types(types)
    , m_handler(std::make_shared<const Handler>(std::move(handler)))
{
}

EventFilter *EventFilter::install(QObject *watched, const QVector<QEvent::Type> &types, Handler handler)
{
    if (!watched || types.isEmpty() || !handler) {
        qWarning("EventFilter::install - An object, event types and a handler are needed");
        return nullptr;
    }
    auto *filter = new EventFilter(watched, types, std::move(handler));
    filter->watch(watched);
    return filter;
}

void EventFilter::watch(QObject *watched)
{
    if (watched)
        Hub::of(watched)->add(this);
    else
        qWarning("EventFilter::watch - The object must not be null");
}

} // namespace VisualUtils
