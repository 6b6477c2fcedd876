#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

/// Measuring on a machine that others use too.
///
/// The variants of a subject take turns, one sample each (A B C A B C ...), so that whatever else the machine does hits
/// all of them alike. A ratio is the median of the ratios within each turn; figures are medians.
namespace bench {

/// Takes one sample: microseconds, or a count. NaN says that it could not be taken.
using Sample = std::function<double()>;

struct Variant
{
    QLatin1String name;
    Sample sample;
    enum Unit { Microseconds, Count } unit = Microseconds;
};

/// One line of the table: a variant of ours and what it is measured against.
struct Row
{
    QLatin1String measure;
    QLatin1String ours; ///< name of a variant
    QLatin1String against; ///< name of a variant; empty where our figure itself is looked at
    /// The highest ratio that is good enough, or our figure exactly where it is measured against nothing. Rows without
    /// a goal are only reported.
    std::optional<double> goal;
};

struct Subject
{
    QLatin1String name;
    int rounds;
    int quickRounds;
    /// Makes what the samples need and checks that all variants do the same work. Answers what is wrong, if anything:
    /// nothing is measured then.
    std::function<QString()> prepare;
    std::vector<Variant> variants;
    std::vector<Row> rows;
};

/// Runs the rows whose measure contains the text and prints the table. False when a goal was missed.
bool run(const std::vector<Subject> &subjects, const QString &only, bool quick);

inline double microseconds()
{
    using namespace std::chrono;
    return duration<double, std::micro>(steady_clock::now().time_since_epoch()).count();
}

/// Makes the compiler believe that somebody looks at the value.
template <typename T>
void keep(const T &value)
{
    asm volatile("" : : "g"(&value) : "memory");
}

/// A sample of something too short to be timed alone.
template <typename Function>
Sample repeated(int times, Function function)
{
    return [times, function] {
        const double start = microseconds();
        for (int i = 0; i < times; ++i)
            function();
        return (microseconds() - start) / times;
    };
}

Subject bus();
Subject busStartup();
Subject buttons();
Subject emojiCatalogue();
Subject emojiText();
std::vector<Subject> icons(); ///< one for each size and ratio
Subject labels();
std::vector<Subject> models();
std::vector<Subject> qml();
Subject shortcuts();
Subject startup();
Subject templates();
Subject themeSwitch();

/// The processes that themeSwitch() starts: answers commands on the standard input until it ends.
int runThemeSwitchProcess(int argc, char **argv);

} // namespace bench
