#include "Pictures.h"

#include "GalleryWindow.h"
#include "LayoutCheck.h"
#include "Page.h"
#include "PageRegistry.h"
#include "QmlSurface.h"

#include <QAnimationDriver>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QPixmap>

#include <cstdio>

namespace {

// Animations take their time from here, and here no time passes.
class StandingClock : public QAnimationDriver
{
public:
    qint64 elapsed() const override { return 0; }
};

bool wanted(const QStringList &list, const QString &name)
{
    return list.isEmpty() || list.contains(name);
}

void say(FILE *stream, const QString &line)
{
    std::fprintf(stream, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stream);
}

void settle()
{
    // Layouts ask for each other, and states that depend on places come after them.
    for (int i = 0; i < 4; ++i)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

QPixmap picture(QWidget *window, int scale)
{
    QPixmap pixmap(window->size() * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    window->render(&pixmap);
    return pixmap;
}

struct Shot
{
    QString page;
    QString theme;
    QString direction;
    bool inverted;

    QString name() const
    {
        return page + QLatin1Char('-') + theme + (inverted ? QLatin1String("-inverted-") : QLatin1String("-"))
            + direction;
    }
};

// Visits each page in each theme and direction. Themes change outermost: that is what takes longest.
template <typename Visit>
void visitAll(GalleryThemes *themes, const PictureOptions &options, const Visit &visit)
{
    StandingClock clock;
    clock.install();
    QApplication::setCursorFlashTime(0);
    GalleryWindow window(themes);
    window.setTimesShown(false);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    const auto visitPages = [&](const QString &theme, const QString &direction, bool inverted) {
        for (const PageEntry &entry : allPages()) {
            if (!wanted(options.pages, entry.name))
                continue;
            window.showPage(entry.name);
            settle();
            QmlSurface::showFrames(&window); // what QML lays out is as high as it needs to be then
            window.fitToPage();
            settle();
            QmlSurface::showFrames(&window);
            visit(&window, Shot {entry.name, theme, direction, inverted});
        }
    };
    for (const GalleryThemes::Choice &choice : themes->allThemes()) {
        const QString theme = themes->nameOf(choice);
        if (!wanted(options.themes, theme))
            continue;
        window.setTheme(choice);
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            const QString name = direction == Qt::LeftToRight ? QStringLiteral("ltr") : QStringLiteral("rtl");
            if (!wanted(options.directions, name))
                continue;
            window.setDirection(direction);
            visitPages(theme, name, false);
        }
        window.setDirection(Qt::LeftToRight);
        if (wanted(options.directions, QStringLiteral("ltr"))) {
            window.setWindowThemeType(QStringLiteral("inverted"));
            visitPages(theme, QStringLiteral("ltr"), true);
            window.setWindowThemeType(QStringLiteral("global"));
        }
    }
    clock.uninstall();
}

} // namespace

int Pictures::write(GalleryThemes *themes, const PictureOptions &options)
{
    const QDir folder(options.folder);
    if (!folder.mkpath(QStringLiteral(".")) || !QFileInfo(options.folder).isWritable()) {
        say(stderr, QStringLiteral("Pictures cannot be written to %1").arg(options.folder));
        return 1;
    }
    int written = 0;
    QString failed;
    visitAll(themes, options, [&](QWidget *window, const Shot &shot) {
        for (const int scale : {1, 2}) {
            const QString suffix = QStringLiteral("%1x").arg(scale);
            if (!wanted(options.scales, suffix) || (shot.inverted && scale > 1) || !failed.isEmpty())
                continue;
            const QString file = folder.filePath(shot.name() + QLatin1Char('-') + suffix + QLatin1String(".png"));
            if (!picture(window, scale).save(file)) {
                failed = file;
                continue;
            }
            ++written;
        }
        if (failed.isEmpty())
            say(stdout, shot.name());
    });
    if (!failed.isEmpty()) {
        say(stderr, QStringLiteral("The picture %1 cannot be written").arg(failed));
        return 1;
    }
    say(stdout, QStringLiteral("%1 pictures in %2").arg(written).arg(folder.absolutePath()));
    return 0;
}

int Pictures::check(GalleryThemes *themes, const PictureOptions &options)
{
    int shots = 0;
    QStringList faults;
    visitAll(themes, options, [&](QWidget *window, const Shot &shot) {
        ++shots;
        picture(window, 1);
        const QStringList found = LayoutCheck::faults(window);
        for (const QString &fault : found)
            faults << shot.name() + QLatin1String(": ") + fault;
    });
    for (const QString &fault : qAsConst(faults))
        say(stderr, fault);
    say(stdout, QStringLiteral("%1 pages checked, %2 faults").arg(shots).arg(faults.size()));
    return faults.isEmpty() ? 0 : 1;
}
