// What a signal costs for being one of the many of the bus. Its share of the process start is in bench_startup.cpp.

#include "Bench.h"
#include "SmallBus.h"

#include <UiElements/app/WAppSignals.h>

#include <memory>

namespace {

/// A bus and a small class in the same state: the bus of the application has connections already.
struct State
{
    WAppSignals bus;
    WAppSignals heardBus;
    SmallBus small;
    SmallBus heardSmall;
    int heard = 0;

    State()
    {
        const auto count = [this] {
            ++heard;
        };
        QObject::connect(&heardBus, &WAppSignals::openMeetingReactionsPanel, &heardBus, count);
        QObject::connect(&heardSmall, &SmallBus::third, &heardSmall, count);
    }
};

const QLatin1String Bus("bus");
const QLatin1String Small("class of 3 signals");
const QLatin1String BusHeard("bus, one receiver");
const QLatin1String SmallHeard("class of 3 signals, one receiver");

} // namespace

bench::Subject bench::bus()
{
    const auto s = std::make_shared<State>();

    Subject subject;
    subject.name = QLatin1String("signal bus");
    subject.rounds = 101;
    subject.quickRounds = 21;
    subject.prepare = [s] {
        s->heard = 0;
        Q_EMIT s->bus.openMeetingReactionsPanel();
        Q_EMIT s->small.third();
        if (s->heard != 0)
            return QStringLiteral("somebody hears what nobody is connected to");
        Q_EMIT s->heardBus.openMeetingReactionsPanel();
        Q_EMIT s->heardSmall.third();
        return s->heard == 2 ? QString() : QStringLiteral("the receivers do not hear the signals");
    };
    const auto times = [](auto function) {
        return repeated(100000, function);
    };
    // The last of the bus's signals that have no argument, and that of the small class.
    subject.variants = {
        {Bus, times([s] { Q_EMIT s->bus.openMeetingReactionsPanel(); })},
        {Small, times([s] { Q_EMIT s->small.third(); })},
        {BusHeard, times([s] { Q_EMIT s->heardBus.openMeetingReactionsPanel(); })},
        {SmallHeard, times([s] { Q_EMIT s->heardSmall.third(); })},
    };
    subject.rows = {
        {QLatin1String("bus: emit, no receiver"), Bus, Small, 1.1},
        {QLatin1String("bus: emit, one receiver"), BusHeard, SmallHeard, {}},
    };
    return subject;
}
