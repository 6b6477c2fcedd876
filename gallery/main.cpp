#include "GalleryThemes.h"
#include "GalleryWindow.h"
#include "PageRegistry.h"
#include "Pictures.h"

#include <UiElements/app/WApplication.h>

#include <QCommandLineParser>

#include <cstdio>
#include <cstring>

namespace {

// Must be settled before there is an application object that could tell. A platform that somebody chose is theirs.
void useNoDisplayIfThereIsNone(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], "-platform", 9) == 0)
            return;
    }
    const bool display = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!display && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

// Without a display there is no OpenGL that QML could be drawn with.
void drawQmlWithoutDisplay(int argc, char **argv)
{
    QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    for (int i = 1; i + 1 < argc; ++i) {
        if (std::strcmp(argv[i], "-platform") == 0)
            platform = argv[i + 1];
    }
    if (platform.startsWith("offscreen") && !qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
}

QStringList namesOf(const GalleryThemes &themes)
{
    QStringList names;
    for (const GalleryThemes::Choice &choice : themes.allThemes())
        names << themes.nameOf(choice);
    return names;
}

QStringList pageNames()
{
    QStringList names;
    for (const PageEntry &entry : allPages())
        names << entry.name;
    return names;
}

bool allKnown(const QStringList &given, const QStringList &known, const char *what)
{
    for (const QString &name : given) {
        if (known.contains(name))
            continue;
        std::fprintf(stderr, "There is no %s \"%s\"; there are: %s\n", what, qPrintable(name),
                     qPrintable(known.join(QStringLiteral(", "))));
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    useNoDisplayIfThereIsNone(argc, argv);
    drawQmlWithoutDisplay(argc, argv);
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    WApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setApplicationName(QStringLiteral("uielements-gallery"));
    app.setPublishingInfo({QStringLiteral("UiElements gallery"), QString(), QString(), QString(), QString()});

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every element of UiElements."));
    parser.addHelpOption();
    const QCommandLineOption pictures(QStringLiteral("pictures"), QStringLiteral("Write all pages as PNG files."),
                                      QStringLiteral("folder"));
    const QCommandLineOption check(QStringLiteral("check"),
                                   QStringLiteral("Look for texts cut off and elements out of place."));
    const QCommandLineOption page(QStringLiteral("page"), QStringLiteral("Only this page, or this page first."),
                                  QStringLiteral("name"));
    const QCommandLineOption theme(QStringLiteral("theme"), QStringLiteral("Only this theme, or this theme first."),
                                   QStringLiteral("name"));
    const QCommandLineOption direction(QStringLiteral("direction"), QStringLiteral("Only this direction: ltr or rtl."),
                                       QStringLiteral("name"));
    const QCommandLineOption scale(QStringLiteral("scale"), QStringLiteral("Only this scale: 1x or 2x."),
                                   QStringLiteral("name"));
    const QCommandLineOption fontScale(QStringLiteral("font-scale"), QStringLiteral("From 0.5 to 1.5."),
                                       QStringLiteral("factor"), QStringLiteral("1"));
    parser.addOptions({pictures, check, page, theme, direction, scale, fontScale});
    parser.process(app);

    GalleryThemes themes;
    if (!themes.load(QStringLiteral(UIELEMENTS_CONFIG_DIR))) {
        std::fprintf(stderr, "There are no themes in %s\n", UIELEMENTS_CONFIG_DIR);
        return 1;
    }
    const PictureOptions options {parser.value(pictures), parser.values(page), parser.values(theme),
                                  parser.values(direction), parser.values(scale)};
    if (!allKnown(options.pages, pageNames(), "page") || !allKnown(options.themes, namesOf(themes), "theme")
        || !allKnown(options.directions, {QStringLiteral("ltr"), QStringLiteral("rtl")}, "direction")
        || !allKnown(options.scales, {QStringLiteral("1x"), QStringLiteral("2x")}, "scale"))
        return 1;
    if (parser.isSet(fontScale))
        app.setFontScaleFactor(parser.value(fontScale).toFloat());

    GalleryThemes::Choice first = themes.allThemes().first();
    for (const GalleryThemes::Choice &choice : themes.allThemes()) {
        if (options.themes.contains(themes.nameOf(choice)))
            first = choice;
    }
    themes.apply(first);
    if (parser.isSet(pictures))
        return Pictures::write(&themes, options);
    if (parser.isSet(check))
        return Pictures::check(&themes, options);

    themes.loader()->setWatching(true);
    GalleryWindow window(&themes);
    if (!options.pages.isEmpty())
        window.showPage(options.pages.first());
    if (options.directions.contains(QStringLiteral("rtl")))
        window.setDirection(Qt::RightToLeft);
    window.show();
    return app.exec();
}
