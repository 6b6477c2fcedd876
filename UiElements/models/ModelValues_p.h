#pragma once

#include <QVariant>

class QObject;

/// What the list models share in dealing with values.
namespace ModelValues {

bool isSameInFull(const QVariant &a, const QVariant &b);

/// True for two values of one type that nobody can tell apart. QVariant's own comparison converts ("1" is 1) and takes
/// numbers for equal that differ in the last digits, such as times in milliseconds.
inline bool isSame(const QVariant &a, const QVariant &b)
{
    // Mostly both share one string, or hold the same number.
    const QVariant::DataPtr &first = a.data_ptr();
    const QVariant::DataPtr &second = b.data_ptr();
    if (first.type != second.type)
        return false;
    if (first.data.ull == second.data.ull && first.is_shared == second.is_shared && first.is_null == second.is_null)
        return true;
    return isSameInFull(a, b);
}

void warnOfUndefinedRole(const QObject *model, int row, int role);

} // namespace ModelValues
