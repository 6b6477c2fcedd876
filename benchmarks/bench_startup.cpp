// Whole processes from start to exit.

#include "Bench.h"

#include <QCoreApplication>
#include <QFile>

#include <cmath>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QByteArray pathOf(const char *program)
{
    return QFile::encodeName(QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(program));
}

double runProcess(QByteArray path)
{
    char *const arguments[] = {path.data(), nullptr};
    const double start = bench::microseconds();
    pid_t process = 0;
    int status = 0;
    if (posix_spawn(&process, path.constData(), nullptr, nullptr, arguments, environ) != 0
        || waitpid(process, &status, 0) != process || status != 0)
        return std::nan("");
    return bench::microseconds() - start;
}

const QLatin1String With("with the library");
const QLatin1String Without("QApplication, same Qt modules");

} // namespace

bench::Subject bench::startup()
{
    Subject subject;
    subject.name = QLatin1String("process start");
    subject.rounds = 201;
    subject.quickRounds = 41;
    subject.variants = {
        {With,
         [path = pathOf("startup_with")] {
             return runProcess(path);
         }},
        {Without,
         [path = pathOf("startup_without")] {
             return runProcess(path);
         }},
    };
    subject.prepare = [variants = subject.variants] {
        for (const Variant &variant : variants) {
            if (std::isnan(variant.sample()))
                return QStringLiteral("the process \"%1\" does not run").arg(variant.name);
        }
        return QString();
    };
    subject.rows = {{QLatin1String("process: start, empty window, exit"), With, Without, 1.05}};
    return subject;
}
