// Whole processes from start to exit.

#include "Bench.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

#include <cmath>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QString pathOf(const char *program)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(program);
}

bench::Sample process(const char *program)
{
    return [path = QFile::encodeName(pathOf(program))]() mutable {
        char *const arguments[] = {path.data(), nullptr};
        const double start = bench::microseconds();
        pid_t process = 0;
        int status = 0;
        if (posix_spawn(&process, path.constData(), nullptr, nullptr, arguments, environ) != 0
            || waitpid(process, &status, 0) != process || status != 0)
            return std::nan("");
        return bench::microseconds() - start;
    };
}

/// The file names of the libraries that the loader maps.
QSet<QString> librariesOf(const char *program)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_TRACE_LOADED_OBJECTS"), QStringLiteral("1"));
    process.setProcessEnvironment(environment);
    process.start(pathOf(program), QStringList());
    process.waitForFinished();
    static const QRegularExpression name(QStringLiteral("^\\s*(\\S+) => "), QRegularExpression::MultilineOption);
    QSet<QString> libraries;
    auto match = name.globalMatch(QString::fromLocal8Bit(process.readAllStandardOutput()));
    while (match.hasNext())
        libraries << match.next().captured(1);
    return libraries;
}

/// Both programs load the same libraries, but for the one whose share of the start is asked for and what stands in its
/// place.
QString compareLibraries(const char *with, const char *without, const QString &allowed)
{
    const QSet<QString> ours = librariesOf(with);
    const QSet<QString> theirs = librariesOf(without);
    QStringList different;
    for (const QString &library : (ours - theirs) + (theirs - ours)) {
        if (!library.contains(QRegularExpression(allowed)))
            different << library;
    }
    if (ours.isEmpty() || theirs.isEmpty())
        return QStringLiteral("%1 and %2 do not tell their libraries").arg(QLatin1String(with), QLatin1String(without));
    if (!different.isEmpty())
        return QStringLiteral("only one of %1 and %2 loads %3")
            .arg(QLatin1String(with), QLatin1String(without), different.join(QLatin1String(", ")));
    return QString();
}

QString check(const std::vector<bench::Variant> &variants, const QString &difference)
{
    for (const bench::Variant &variant : variants) {
        if (std::isnan(variant.sample()))
            return QStringLiteral("the process \"%1\" does not run").arg(variant.name);
    }
    return difference;
}

const QLatin1String With("with the library");
const QLatin1String Without("QApplication, same Qt modules");
const QLatin1String WithBus("QApplication, the bus");
const QLatin1String WithShortcuts("QApplication, the bus, all shortcuts");
const QLatin1String WithoutBus("the same without it");

} // namespace

bench::Subject bench::startup()
{
    Subject subject;
    subject.name = QLatin1String("process start");
    subject.rounds = 201;
    subject.quickRounds = 41;
    subject.variants = {
        {With, process("startup_with")},
        {Without, process("startup_without")},
    };
    subject.prepare = [variants = subject.variants] {
        return check(variants,
                     compareLibraries("startup_with", "startup_without", QStringLiteral("^libUiElements\\.so")));
    };
    subject.rows = {{QLatin1String("process: start, empty window, exit"), With, Without, 1.05}};
    return subject;
}

bench::Subject bench::busStartup()
{
    Subject subject;
    subject.name = QLatin1String("process start with the bus");
    subject.rounds = 801; // a hundredth is asked for, and single ratios are some hundredths apart
    subject.quickRounds = 101;
    subject.variants = {
        {WithBus, process("startup_bus")},
        {WithShortcuts, process("startup_bus_shortcuts")},
        {WithoutBus, process("startup_no_bus")},
    };
    subject.prepare = [variants = subject.variants] {
        return check(
            variants,
            compareLibraries("startup_bus", "startup_no_bus", QStringLiteral("^libstartup_(no_)?bus_library\\.so")));
    };
    subject.rows = {
        {QLatin1String("process: start with the bus alone"), WithBus, WithoutBus, 1.01},
        {QLatin1String("process: start with the bus and its shortcuts"), WithShortcuts, WithoutBus, {}},
    };
    return subject;
}
