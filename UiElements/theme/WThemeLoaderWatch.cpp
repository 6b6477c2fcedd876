#include "WThemeLoaderWatch_p.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr int MostLinks = 40; // as the kernel has it

// All that must be watched for the file: itself, the folders on the way to it and those that hold a link on that way.
// Where the way ends early, the last folder that is there tells when it goes on.
void addPlaces(const QString &file, QStringList *places)
{
    QStringList parts = file.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    QString at = QStringLiteral("/");
    int links = 0;
    *places << at;
    while (!parts.isEmpty()) {
        const QString part = parts.takeFirst();
        if (part == QLatin1String("."))
            continue;
        if (part == QLatin1String("..")) {
            at = QFileInfo(at).path();
            continue;
        }
        const QString next = QDir(at).filePath(part);
        const QFileInfo info(next);
        if (info.isSymLink()) {
            if (++links > MostLinks)
                return;
            const QString target = QFile::symLinkTarget(next); // made absolute by Qt
            parts = target.split(QLatin1Char('/'), Qt::SkipEmptyParts) + parts;
            at = QStringLiteral("/");
            continue;
        }
        if (!info.exists())
            return;
        at = next;
        // Nobody can watch what he may not read, and the log would say so every time.
        if (info.isReadable())
            *places << at;
    }
}

} // namespace

ThemeFileWatch::ThemeFileWatch(QObject *parent)
    : QObject(parent)
{
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &ThemeFileWatch::onRest);
}

void ThemeFileWatch::setFiles(const QStringList &files)
{
    if (m_files == files)
        return;
    m_files = files;
    if (files.isEmpty()) {
        m_rest.stop();
        m_sinceFirst.invalidate();
        m_watcher.reset();
        return;
    }
    if (!m_watcher) {
        m_watcher = std::make_unique<QFileSystemWatcher>();
        connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, this, &ThemeFileWatch::onTouched);
        connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, this, &ThemeFileWatch::onTouched);
    }
    rearm();
    onTouched(); // since somebody read them
}

void ThemeFileWatch::onTouched()
{
    if (!m_sinceFirst.isValid())
        m_sinceFirst.start();
    m_rest.start(int(qBound<qint64>(0, MostMilliseconds - m_sinceFirst.elapsed(), RestMilliseconds)));
}

void ThemeFileWatch::onRest()
{
    m_sinceFirst.invalidate();
    rearm();
    Q_EMIT changed();
}

// From nothing: what is watched is a file or folder, not its name, and an old one may still be known by that.
void ThemeFileWatch::rearm()
{
    QStringList wanted = places();
    for (int attempt = 0; attempt < 5; ++attempt) {
        const QStringList watched = m_watcher->files() + m_watcher->directories();
        if (!watched.isEmpty())
            m_watcher->removePaths(watched);
        if (wanted.isEmpty())
            return;
        m_watcher->addPaths(wanted);
        // What came in between nobody would tell.
        const QStringList now = places();
        if (now == wanted)
            return;
        wanted = now;
    }
}

// Folders before what is in them: from then on it is noticed if that is replaced.
QStringList ThemeFileWatch::places() const
{
    QStringList places;
    for (const QString &file : m_files) {
        if (!file.startsWith(QLatin1Char(':')))
            addPlaces(file, &places);
    }
    places.removeDuplicates();
    return places;
}
