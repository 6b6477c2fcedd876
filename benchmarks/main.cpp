#include "Bench.h"

#include <UiElements/app/WApplication.h>

#include <QCommandLineParser>
#include <QFile>
#include <QTemporaryDir>

#include <cstring>

int main(int argc, char **argv)
{
    // What is drawn goes nowhere, so that no display server takes part in any figure.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    if (argc == 3 && std::strcmp(argv[1], "--theme-switch") == 0)
        return bench::runThemeSwitchProcess(argc, argv);
    // Qt complains at each start where the session has no such folder, and writing that would be measured too.
    const QTemporaryDir runtimeFolder;
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeFolder.path()));

    WApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Measures the library and prints one table. The status is 1 when a goal is missed or a check fails."));
    const QCommandLineOption rows(QStringLiteral("rows"), QStringLiteral("Only the rows that contain the text."),
                                  QStringLiteral("text"));
    const QCommandLineOption quick(QStringLiteral("quick"), QStringLiteral("Fewer rounds: less exact."));
    parser.addHelpOption();
    parser.addOptions({rows, quick});
    parser.process(app);

    std::vector<bench::Subject> subjects {bench::templates(), bench::startup(),   bench::busStartup(),
                                          bench::bus(),       bench::shortcuts(), bench::themeSwitch()};
    subjects.push_back(bench::buttons());
    subjects.push_back(bench::emojiCatalogue());
    subjects.push_back(bench::emojiText());
    for (const bench::Subject &subject : bench::icons())
        subjects.push_back(subject);
    subjects.push_back(bench::labels());
    for (const bench::Subject &subject : bench::models())
        subjects.push_back(subject);
    for (const bench::Subject &subject : bench::qml())
        subjects.push_back(subject);
    return bench::run(subjects, parser.value(rows), parser.isSet(quick)) ? 0 : 1;
}
