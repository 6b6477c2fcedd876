#pragma once

#include <QDebug>
#include <QObject>
#include <QPoint>
#include <QSize>
#include <QWidget>

/// What setters refuse, with one warning in the name of the object's class.
namespace Checks {

/// Larger ones than a widget can be would overflow where several are added up.
inline bool isLength(int length)
{
    return length >= 0 && length <= QWIDGETSIZE_MAX;
}

inline bool padding(const QObject *object, const char *function, int padding)
{
    if (isLength(padding))
        return true;
    qWarning().nospace() << object->metaObject()->className() << "::" << function << " - Invalid padding: " << padding;
    return false;
}

inline bool padding(const QObject *object, const char *function, const QPoint &paddings)
{
    return padding(object, function, isLength(paddings.x()) ? paddings.y() : paddings.x());
}

inline bool size(const QObject *object, const char *function, const QSize &size)
{
    if (isLength(size.width()) && isLength(size.height()))
        return true;
    qWarning().nospace() << object->metaObject()->className() << "::" << function << " - Invalid size: " << size;
    return false;
}

} // namespace Checks
