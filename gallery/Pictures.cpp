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
#include <QProcess>

#include <cstdio>
#include <memory>
#include <vector>

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

QPixmap picture(QWidget *window)
{
    const qreal ratio = window->devicePixelRatioF();
    QPixmap pixmap(window->size() * ratio);
    pixmap.setDevicePixelRatio(ratio);
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
void visitAll(GalleryThemes *themes, const PictureOptions &options, bool withInverted, const Visit &visit)
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
        if (withInverted && wanted(options.directions, QStringLiteral("ltr"))) {
            window.setWindowThemeType(QStringLiteral("inverted"));
            visitPages(theme, QStringLiteral("ltr"), true);
            window.setWindowThemeType(QStringLiteral("global"));
        }
    }
    clock.uninstall();
}

QString textOf(int scale)
{
    return QStringLiteral("%1x").arg(scale);
}

// QML in a widget is drawn at the ratio of the screen and at no other, so each scale has a program of its own, for
// which that is the ratio of the screen.
std::unique_ptr<QProcess> startAtScale(int scale)
{
    QStringList arguments = QCoreApplication::arguments().mid(1);
    for (int i = arguments.size() - 1; i >= 0; --i) {
        if (arguments.at(i) == QLatin1String("--scale"))
            arguments.erase(arguments.begin() + i, arguments.begin() + qMin(i + 2, arguments.size()));
        else if (arguments.at(i).startsWith(QLatin1String("--scale=")))
            arguments.removeAt(i);
    }
    arguments << QStringLiteral("--scale") << textOf(scale);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QGuiApplication::platformName());
    environment.insert(QStringLiteral("QT_ENABLE_HIGHDPI_SCALING"), QStringLiteral("0"));
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(scale));
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->setProcessEnvironment(environment);
    process->start(QCoreApplication::applicationFilePath(), arguments);
    return process;
}

bool writeHere(GalleryThemes *themes, const PictureOptions &options, int scale)
{
    const QDir folder(options.folder);
    int written = 0;
    QString failed;
    visitAll(themes, options, scale == 1, [&](QWidget *window, const Shot &shot) {
        if (!failed.isEmpty())
            return;
        const QString name = shot.name() + QLatin1Char('-') + textOf(scale);
        const QString file = folder.filePath(name + QLatin1String(".png"));
        if (!picture(window).save(file)) {
            failed = file;
            return;
        }
        ++written;
        say(stdout, name);
    });
    if (!failed.isEmpty()) {
        say(stderr, QStringLiteral("The picture %1 cannot be written").arg(failed));
        return false;
    }
    say(stdout, QStringLiteral("%1 pictures at %2 in %3").arg(written).arg(textOf(scale), folder.absolutePath()));
    return true;
}

} // namespace

int Pictures::write(GalleryThemes *themes, const PictureOptions &options)
{
    const QDir folder(options.folder);
    if (!folder.mkpath(QStringLiteral(".")) || !QFileInfo(options.folder).isWritable()) {
        say(stderr, QStringLiteral("Pictures cannot be written to %1").arg(options.folder));
        return 1;
    }
    const qreal ratio = qApp->devicePixelRatio();
    bool allWritten = true;
    bool isOwnWanted = false;
    std::vector<std::unique_ptr<QProcess>> others;
    for (const int scale : {1, 2}) {
        if (!wanted(options.scales, textOf(scale)))
            continue;
        if (qFuzzyCompare(ratio, scale)) {
            isOwnWanted = true;
        } else if (qEnvironmentVariableIntValue("QT_SCALE_FACTOR") == scale) {
            say(stderr, QStringLiteral("Nothing can be drawn at %1 here").arg(textOf(scale)));
            allWritten = false;
        } else {
            others.push_back(startAtScale(scale));
        }
    }
    if (isOwnWanted)
        allWritten = writeHere(themes, options, qRound(ratio)) && allWritten;
    for (const auto &process : others) {
        const bool isDone = process->waitForFinished(-1);
        allWritten = allWritten && isDone && process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
    }
    return allWritten ? 0 : 1;
}

int Pictures::check(GalleryThemes *themes, const PictureOptions &options)
{
    int shots = 0;
    QStringList faults;
    visitAll(themes, options, true, [&](QWidget *window, const Shot &shot) {
        ++shots;
        picture(window);
        const QStringList found = LayoutCheck::faults(window);
        for (const QString &fault : found)
            faults << shot.name() + QLatin1String(": ") + fault;
    });
    for (const QString &fault : qAsConst(faults))
        say(stderr, fault);
    say(stdout, QStringLiteral("%1 pages checked, %2 faults").arg(shots).arg(faults.size()));
    return faults.isEmpty() ? 0 : 1;
}
