#pragma once

#include <QObject>

/// What the signal bus is measured against.
class SmallBus : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void first();
    void second(bool, bool);
    void third();
};
