#pragma once

#include <UiElements/uielements_export.h>

#include <QMovie>
#include <QPointer>

class QBuffer;

/// A QMovie that can play from memory.
///
/// A movie whose first frame cannot be read ends at once, which is logged once for each file. One that is damaged or
/// cut off further on plays as far as it goes. As any QMovie it runs a timer also where nobody sees it: see
/// WMoviePlayback.
class UIELEMENTS_EXPORT WMovie : public QMovie
{
    Q_OBJECT

public:
    explicit WMovie(QObject *parent = nullptr);
    explicit WMovie(const QString &fileName, const QByteArray &format = QByteArray(), QObject *parent = nullptr);
    /// Plays the bytes. Without a copy they must outlive the movie and its clones, unchanged: nothing can tell that
    /// they are gone. No bytes, or a size that is not positive, is reported and leaves the movie empty.
    WMovie(QObject *parent, const char *data, int size, bool copy);
    ~WMovie() override;

    /// A movie of its own on the same file or bytes, which are not copied, at rest before its first frame. Null, which
    /// is reported, for one that plays from a device set with setDevice().
    WMovie *clone(QObject *parent) const;

    /// The last try to play it found nothing that can be read.
    bool hasFailed() const { return m_hasFailed; }

    /// Stops the movie and deletes it once the control is back in the event loop, so that it may be called from within
    /// the movie's own signals. Null is allowed.
    static void release(QMovie *movie);

private:
    friend class WMovieProvider;
    WMovie(const QByteArray &bytes, QObject *parent);
    static void destroy(QMovie *movie, QByteArray *bytes, QBuffer *buffer);
    void init();
    void playBytes();
    void onFinished();

    QByteArray *m_bytes = nullptr;
    QPointer<QBuffer> m_buffer;
    QString m_reported;
    bool m_hasFailed = false;
    bool m_isTaken = false; // by a provider, once and for all
};
