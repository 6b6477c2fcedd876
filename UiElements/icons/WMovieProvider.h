#pragma once

#include <UiElements/uielements_export.h>

#include <QMovie>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>

class IWMovieProviderSource;
class WApplication;
class WMovie;

/// Asks the application's movie source for an image and tells what to show: nothing yet, the movie, or a still image
/// in its place.
///
/// Of providers that wait for the same source the first takes the movie and each other makes a clone of it, so every
/// one has a movie of its own. An answer that another provider waits for is not for one that has its movie already: it
/// would begin anew whenever the same image is asked for elsewhere. The movie is not started: see WMoviePlayback.
class UIELEMENTS_EXPORT WMovieProvider : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int stackIndex READ stackIndex NOTIFY stackIndexChanged)
    Q_PROPERTY(QMovie *movie READ movie NOTIFY movieChanged)
    Q_PROPERTY(QString fallbackSource READ fallbackSource NOTIFY fallbackSourceChanged)
    Q_PROPERTY(float aspectRatio READ aspectRatio NOTIFY aspectRatioChanged)

public:
    /// Takes the source that the application has, and with fetch() the one that it has then. Without an application
    /// object the provider does nothing.
    explicit WMovieProvider(QObject *parent = nullptr);
    ~WMovieProvider() override;

    /// 0 while nothing is known, 1 for the movie, 2 for the fallback.
    int stackIndex() const { return m_stackIndex; }
    /// Null before the first answer. It stays until the next, also while another image is fetched.
    QMovie *movie() const { return m_movie; }
    QString fallbackSource() const { return m_fallbackSource; }
    /// Width / height of the last movie whose size was known, 1.0 before.
    float aspectRatio() const { return m_aspectRatio; }

    /// Answers for other sources are ignored from now on.
    Q_INVOKABLE void fetch(const QString &source);

Q_SIGNALS:
    // Each is emitted with every answer that it belongs to, also where the value is the same.
    void stackIndexChanged();
    void movieChanged();
    void fallbackSourceChanged();
    void aspectRatioChanged();

public Q_SLOTS:
    void onMovieFetched(WMovie *movie, QSize size, const QString &source);
    void onMovieFetchFailed(const QString &source, const QString &fallbackSource);

private:
    void followSource(WApplication *app);
    bool isForAnother() const;
    void stopWaiting();

    QString m_source;
    QString m_fallbackSource;
    QPointer<IWMovieProviderSource> m_movieSource;
    QPointer<QMovie> m_movie;
    float m_aspectRatio = 1.0f;
    int m_stackIndex = 0;
    int m_fetches = 0;
};
