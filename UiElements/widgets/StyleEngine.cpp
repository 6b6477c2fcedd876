#include "StyleEngine_p.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QPointer>
#include <QStyle>

#include <utility>

namespace {

int reads = 0;

// Qt's style sheet style refuses, and hands over to its base style, every call made while another instance of it is at
// work. So a widget with a border that no base style draws tells whether one is; and what the widget does while its own
// instance polishes it, others are refused.
class Probe : public QFrame
{
public:
    static Probe &get()
    {
        static QPointer<Probe> probe;
        if (!probe) {
            probe = new Probe;
            probe->setObjectName(QStringLiteral("uielements_engine_probe"));
            probe->setStyleSheet(QStringLiteral("QFrame { border: 77px solid black; color: red; }"));
            qAddPostRoutine([] { delete probe; });
        }
        return *probe;
    }

    std::function<void()> whilePolished;

protected:
    // Polishing takes the palette back and gives it anew.
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::PaletteChange && whilePolished)
            std::exchange(whilePolished, {})();
        QFrame::changeEvent(event);
    }
};

} // namespace

void StyleEngine::beginReads()
{
    ++reads;
}

void StyleEngine::endReads()
{
    --reads;
}

bool StyleEngine::isReading()
{
    return reads > 0;
}

quint64 &StyleEngine::textsRead()
{
    static quint64 count = 0;
    return count;
}

bool StyleEngine::isAtWork()
{
    const Probe &probe = Probe::get();
    return probe.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, &probe) != 77;
}

bool StyleEngine::whileAtWork(const std::function<void()> &function)
{
    Probe &probe = Probe::get();
    probe.whilePolished = function;
    probe.style()->polish(&probe);
    return !std::exchange(probe.whilePolished, {});
}
