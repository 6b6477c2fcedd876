#pragma once

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <memory>

/// Tells when one of some files may be another now: written to, replaced, removed, there again, or reached in another
/// way because a folder or a symbolic link on its path was replaced.
///
/// Several changes at once are told once, when they have come to rest; those that never do, from time to time.
class ThemeFileWatch : public QObject
{
    Q_OBJECT

public:
    static constexpr int RestMilliseconds = 100;
    static constexpr int MostMilliseconds = 1000;

    explicit ThemeFileWatch(QObject *parent);

    /// An empty list ends it. Resources of the program do not change and are passed over.
    void setFiles(const QStringList &files);

Q_SIGNALS:
    void changed();

private:
    void onTouched();
    void onRest();
    void rearm();
    QStringList places() const;

    std::unique_ptr<QFileSystemWatcher> m_watcher; // while there is something to watch
    QTimer m_rest;
    QElapsedTimer m_sinceFirst; // of the changes that are not told yet
    QStringList m_files;
};
