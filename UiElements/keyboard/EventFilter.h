#pragma once

#include <UiElements/uielements_export.h>

#include <QEvent>
#include <QObject>
#include <QVector>

#include <functional>
#include <memory>

namespace VisualUtils {

/// Shows a function the events of some types before the object they are sent to gets them.
///
/// The handler is called with the object and the event, for each event once. When it returns true the event ends there:
/// neither the object nor an older filter sees it. Of several filters of one object the newest is asked first.
///
/// A handler may delete its filter, which ends after this event, and any other filter, which is asked no more. It may
/// install filters: those start with the next event. It may send events, also to the same object, and is then called
/// from within itself. When it deletes the object, the event ends there whatever it returns. A handler that calls
/// QObject::installEventFilter() of the object itself makes Qt repeat the event for the filters asked so far; install()
/// does not.
///
/// Filter and object live in the same thread.
class UIELEMENTS_EXPORT EventFilter : public QObject
{
    Q_OBJECT

public:
    using Handler = std::function<bool(QObject *watched, QEvent *event)>;

    /// The filter is a child of the object and ends with it, or when it is deleted. A null object, no types or an empty
    /// handler is one warning, and null is returned.
    static EventFilter *install(QObject *watched, const QVector<QEvent::Type> &types, Handler handler);

    /// Adds an object to those watched; one that is watched already stays where it is in the order. The filter still
    /// ends with the object that it was installed on.
    void watch(QObject *watched);

private:
    class Hub;
    EventFilter(QObject *watched, const QVector<QEvent::Type> &types, Handler handler);

    const QVector<QEvent::Type> m_types;
    const std::shared_ptr<const Handler> m_handler;
};

} // namespace VisualUtils
