#include "Bench.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>

namespace {

using Samples = std::vector<double>;

double quantile(Samples samples, double part)
{
    // One sample that could not be taken spoils the figure: the others may be of something else.
    if (samples.empty()
        || std::any_of(samples.begin(), samples.end(), [](double sample) { return std::isnan(sample); }))
        return std::nan("");
    std::sort(samples.begin(), samples.end());
    const double at = part * double(samples.size() - 1);
    const auto below = std::size_t(at);
    const auto above = std::min(below + 1, samples.size() - 1);
    return samples[below] + (at - double(below)) * (samples[above] - samples[below]);
}

double median(const Samples &samples)
{
    return quantile(samples, 0.5);
}

// Enough digits to see on which side of a goal a ratio lies.
QString number(double value)
{
    return QString::number(value, 'g', 4);
}

QString figure(double value, bench::Variant::Unit unit)
{
    if (std::isnan(value))
        return QStringLiteral("failed");
    if (unit == bench::Variant::Count)
        return QString::number(value, 'f', value == std::floor(value) ? 0 : 1);
    if (value < 1000)
        return number(value) + QLatin1String(" us");
    return number(value / 1000) + QLatin1String(" ms");
}

void printTable(const std::vector<QStringList> &lines)
{
    std::vector<int> widths(std::size_t(lines.front().size()));
    for (const QStringList &line : lines) {
        for (int i = 0; i < line.size(); ++i)
            widths[std::size_t(i)] = std::max(widths[std::size_t(i)], line.at(i).size());
    }
    for (std::size_t row = 0; row < lines.size(); ++row) {
        QString text;
        for (int i = 0; i < lines[row].size(); ++i)
            text += lines[row].at(i).leftJustified(widths[std::size_t(i)] + 2);
        std::printf("%s\n", qPrintable(text.trimmed()));
        if (row == 0)
            std::printf("%s\n", qPrintable(QString(text.size() - 2, QLatin1Char('-'))));
    }
}

class Measurement
{
public:
    Measurement(const bench::Subject &subject, const std::vector<bench::Row> &rows)
        : m_subject(subject)
        , m_rows(rows)
    {
    }

    void run(int rounds)
    {
        std::vector<const bench::Variant *> needed;
        for (const bench::Variant &variant : m_subject.variants) {
            const auto uses = [&variant](const bench::Row &row) {
                return row.ours == variant.name || row.against == variant.name;
            };
            if (std::any_of(m_rows.begin(), m_rows.end(), uses))
                needed.push_back(&variant);
        }
        for (const bench::Variant *variant : needed)
            variant->sample(); // to warm up
        for (int i = 0; i < rounds; ++i) {
            for (const bench::Variant *variant : needed)
                m_samples[variant->name].push_back(variant->sample());
        }
    }

    // The line of the table, and whether a goal was missed.
    bool report(const bench::Row &row, std::vector<QStringList> *lines) const
    {
        const Samples &ours = m_samples.at(row.ours);
        const double value = median(ours);
        QStringList line {QString(row.measure), figure(value, unitOf(row.ours))};
        double judged = value;
        if (row.against.isEmpty()) {
            line << QStringLiteral("-") << QStringLiteral("-") << QStringLiteral("-") << QStringLiteral("-");
        } else {
            const Samples &against = m_samples.at(row.against);
            Samples ratios;
            for (std::size_t i = 0; i < ours.size(); ++i)
                ratios.push_back(ours[i] / against[i]);
            judged = median(ratios);
            line << QString(row.against) << figure(median(against), unitOf(row.against)) << number(judged)
                 << number(quantile(ratios, 0.25)) + QLatin1String(" to ") + number(quantile(ratios, 0.75));
        }
        if (!row.goal) {
            lines->push_back(line + QStringList {QStringLiteral("reported"), QStringLiteral("-")});
            return !std::isnan(judged);
        }
        // Written so that a figure which could not be taken misses its goal.
        const bool met = row.against.isEmpty() ? judged == *row.goal : judged <= *row.goal;
        lines->push_back(
            line
            + QStringList {(row.against.isEmpty() ? QStringLiteral("= ") : QStringLiteral("<= ")) + number(*row.goal),
                           met ? QStringLiteral("yes") : QStringLiteral("NO")});
        return met;
    }

private:
    bench::Variant::Unit unitOf(QLatin1String name) const
    {
        for (const bench::Variant &variant : m_subject.variants) {
            if (variant.name == name)
                return variant.unit;
        }
        return bench::Variant::Microseconds;
    }

    const bench::Subject &m_subject;
    const std::vector<bench::Row> &m_rows;
    std::map<QString, Samples> m_samples;
};

} // namespace

bool bench::run(const std::vector<Subject> &subjects, const QString &only, bool quick)
{
    std::vector<QStringList> lines {{QStringLiteral("measure"), QStringLiteral("ours"), QStringLiteral("against"),
                                     QStringLiteral("theirs"), QStringLiteral("ratio"), QStringLiteral("middle half"),
                                     QStringLiteral("goal"), QStringLiteral("met")}};
    bool good = true;
    bool any = false;
    for (const Subject &subject : subjects) {
        std::vector<Row> rows;
        std::copy_if(subject.rows.begin(), subject.rows.end(), std::back_inserter(rows),
                     [&only](const Row &row) { return row.measure.contains(only, Qt::CaseInsensitive); });
        if (rows.empty())
            continue;
        any = true;
        std::fprintf(stderr, "Measuring: %s\n", subject.name.data());
        const QString trouble = subject.prepare ? subject.prepare() : QString();
        if (!trouble.isEmpty()) {
            std::fprintf(stderr, "%s: %s\n", subject.name.data(), qPrintable(trouble));
            good = false;
            continue;
        }
        Measurement measurement(subject, rows);
        measurement.run(quick ? subject.quickRounds : subject.rounds);
        for (const Row &row : rows)
            good = measurement.report(row, &lines) && good;
    }
    if (!any)
        std::fprintf(stderr, "No row contains \"%s\".\n", qPrintable(only));
    if (lines.size() > 1)
        printTable(lines);
    return good && any;
}
