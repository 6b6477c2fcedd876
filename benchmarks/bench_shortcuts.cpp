// Keys while the shortcuts of the main window are registered.

#include "Bench.h"

#include <UiElements/app/WAppSignals.h>

#include <QApplication>
#include <QLineEdit>
#include <QMetaEnum>
#include <QTest>

#include <cmath>
#include <memory>

namespace {

enum class Shortcuts { None, Bare, WholeTable };

/// The window of all samples.
struct Window
{
    QWidget window;
    QLineEdit edit {&window}; // without a layout: the platform complains of its size hints
};

/// Lets the heap have free blocks of every size at hand. Whether it has those that a key press takes depends on what
/// was allocated before, and makes more of a difference than any shortcut.
void settleHeap()
{
    std::vector<std::unique_ptr<char[]>> blocks;
    for (std::size_t size = 16; size <= 1024; size += 16) {
        for (int i = 0; i < 16; ++i)
            blocks.push_back(std::make_unique<char[]>(size));
    }
}

/// The shortcuts of one sample.
///
/// Qt looks up keys in one map for the whole process. So they are made and destroyed for each sample, outside the time
/// that is taken: the map never holds more than what the sample is about.
class Keys
{
public:
    Keys(Window &window, Shortcuts shortcuts)
        : m_window(window)
    {
        const auto count = [this] {
            ++m_signals;
        };
        if (shortcuts == Shortcuts::WholeTable) {
            m_bus.registerShortcuts(&window.window,
                                    WShortcut::General | WShortcut::Messaging | WShortcut::CallingAndMeeting
                                        | WShortcut::Tool);
            QObject::connect(&m_bus, &WAppSignals::addGif, &m_bus, count);
        } else if (shortcuts == Shortcuts::Bare) {
            auto *shortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_G), &window.window);
            QObject::connect(shortcut, &QShortcut::activated, &m_bus, count);
        }
        window.window.show();
        QApplication::setActiveWindow(&window.window);
        window.edit.clear();
        window.edit.setFocus();
        QApplication::processEvents();
        settleHeap();
    }
    ~Keys() { qDeleteAll(m_window.window.findChildren<QShortcut *>()); }
    Q_DISABLE_COPY(Keys)

    // One event: QTest::keyPress() would press Ctrl too.
    void press() { QTest::simulateEvent(&m_window.edit, true, Qt::Key_G, Qt::ControlModifier, QString(), false); }
    void type() { QTest::keyClick(&m_window.edit, Qt::Key_B); }
    void clear() { m_window.edit.clear(); }

    int takeSignals() { return std::exchange(m_signals, 0); }
    QString text() const { return m_window.edit.text(); }
    int shortcuts() const { return m_window.window.findChildren<QShortcut *>().size(); }

private:
    Window &m_window;
    WAppSignals m_bus; // one that has registered nothing yet
    int m_signals = 0;
};

constexpr int WarmUp = 200;

double keyPress(Window &window, Shortcuts shortcuts)
{
    constexpr int Times = 1000;
    Keys keys(window, shortcuts);
    for (int i = 0; i < WarmUp; ++i)
        keys.press();
    keys.takeSignals();
    const double start = bench::microseconds();
    for (int i = 0; i < Times; ++i)
        keys.press();
    const double time = bench::microseconds() - start;
    return keys.takeSignals() == Times ? time / Times : std::nan("");
}

double letter(Window &window, Shortcuts shortcuts)
{
    constexpr int Words = 60, Letters = 8;
    Keys keys(window, shortcuts);
    for (int i = 0; i < WarmUp; ++i)
        keys.type();
    double time = 0;
    // A line edit lays out its whole text for each letter, so in a long one that is all there would be to see.
    for (int i = 0; i < Words; ++i) {
        keys.clear();
        const double start = bench::microseconds();
        for (int j = 0; j < Letters; ++j)
            keys.type();
        time += bench::microseconds() - start;
    }
    return keys.text() == QString(Letters, QLatin1Char('b')) ? time / (Words * Letters) : std::nan("");
}

QString check(Window &window)
{
    const std::pair<Shortcuts, int> expected[] = {
        {Shortcuts::None, 0},
        {Shortcuts::Bare, 1},
        {Shortcuts::WholeTable, QMetaEnum::fromType<WAppSignals::Shortcut>().keyCount()},
    };
    for (const auto &[shortcuts, count] : expected) {
        Keys keys(window, shortcuts);
        if (keys.shortcuts() != count)
            return QStringLiteral("%1 shortcuts instead of %2").arg(keys.shortcuts()).arg(count);
        keys.press();
        if (keys.takeSignals() != (count > 0 ? 1 : 0))
            return QStringLiteral("the key has the wrong number of signals with %1 shortcuts").arg(count);
        keys.type();
        if (keys.text() != QLatin1String("b") || keys.takeSignals() != 0)
            return QStringLiteral("the letter is not typed with %1 shortcuts").arg(count);
    }
    return QString();
}

const QLatin1String Key("whole table");
const QLatin1String KeyOfBare("bare QShortcut, no other");
const QLatin1String Letter("whole table, typing");
const QLatin1String LetterWithBare("bare QShortcut, typing");
const QLatin1String LetterWithNone("no shortcut, typing");

} // namespace

bench::Subject bench::shortcuts()
{
    const auto window = std::make_shared<Window>();

    Subject subject;
    subject.name = QLatin1String("shortcuts");
    subject.rounds = 101;
    subject.quickRounds = 21;
    subject.prepare = [window] {
        return check(*window);
    };
    const auto sample = [window](double (*take)(Window &, Shortcuts), Shortcuts shortcuts) {
        return [window, take, shortcuts] {
            return take(*window, shortcuts);
        };
    };
    subject.variants = {
        {Key, sample(keyPress, Shortcuts::WholeTable)},    {KeyOfBare, sample(keyPress, Shortcuts::Bare)},
        {Letter, sample(letter, Shortcuts::WholeTable)},   {LetterWithBare, sample(letter, Shortcuts::Bare)},
        {LetterWithNone, sample(letter, Shortcuts::None)},
    };
    subject.rows = {
        {QLatin1String("shortcuts: key press to its signal"), Key, KeyOfBare, 1.05},
        {QLatin1String("shortcuts: letter typed"), Letter, LetterWithNone, 1.02},
        {QLatin1String("shortcuts: letter typed"), Letter, LetterWithBare, {}},
    };
    return subject;
}
