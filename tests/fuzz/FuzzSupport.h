#pragma once

#include <UiElements/theme/WColorSet.h>

#include <QMessageLogContext>

#include <cstdlib>

inline void check(bool holds)
{
    if (!holds)
        abort();
}

/// Counts what is logged instead of writing it.
inline int &warnings()
{
    static int count = [] {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++warnings(); });
        return 0;
    }();
    return count;
}

/// How many messages `work` logs.
template <typename Work>
int warningsOf(const Work &work)
{
    const int before = warnings();
    work();
    return warnings() - before;
}
