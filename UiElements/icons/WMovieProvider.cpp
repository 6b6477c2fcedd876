#include <UiElements/icons/WMovieProvider.h>

#include <UiElements/app/WApplication.h>
#include <UiElements/icons/IWMovieProviderSource.h>
#include <UiElements/icons/WMovie.h>

#include <QDebug>
#include <QScopeGuard>
#include <QSet>

#include <algorithm>

namespace {

QSet<const WMovieProvider *> &waitingProviders()
{
    static QSet<const WMovieProvider *> providers;
    return providers;
}

} // namespace

WMovieProvider::WMovieProvider(QObject *parent)
    : QObject(parent)
{
    followSource(WApplication::find());
}

WMovieProvider::~WMovieProvider()
{
    waitingProviders().remove(this);
    // Not at once: a provider that is asked next may have to clone it.
    WMovie::release(m_movie);
}

void WMovieProvider::followSource(WApplication *app)
{
    IWMovieProviderSource *source = app ? app->getMovieProviderSource() : nullptr;
    if (m_movieSource == source)
        return;
    if (m_movieSource)
        m_movieSource->disconnect(this);
    m_movieSource = source;
    if (!source)
        return;
    connect(source, &IWMovieProviderSource::movieFetched, this, &WMovieProvider::onMovieFetched);
    connect(source, &IWMovieProviderSource::movieFetchFailed, this, &WMovieProvider::onMovieFetchFailed);
}

void WMovieProvider::fetch(const QString &source)
{
    followSource(qobject_cast<WApplication *>(QCoreApplication::instance()));
    if (!m_movieSource)
        return;
    m_source = source;
    ++m_fetches;
    waitingProviders().insert(this);
    m_movieSource->fetch(source);
}

bool WMovieProvider::isForAnother() const
{
    const QSet<const WMovieProvider *> &waiting = waitingProviders();
    return m_movie && !waiting.contains(this)
        && std::any_of(waiting.begin(), waiting.end(), [this](const WMovieProvider *other) {
               return other->m_movieSource == m_movieSource && other->m_source == m_source;
           });
}

void WMovieProvider::stopWaiting()
{
    // Not at once: those who hear the same answer after this one must still see whom it was for.
    QMetaObject::invokeMethod(
        this,
        [this, fetches = m_fetches] {
            if (fetches == m_fetches)
                waitingProviders().remove(this);
        },
        Qt::QueuedConnection);
}

void WMovieProvider::onMovieFetched(WMovie *movie, QSize size, const QString &source)
{
    if (source != m_source || isForAnother())
        return;
    if (!movie) {
        qWarning() << "WMovieProvider::onMovieFetched - There is no movie for" << source;
        return;
    }
    if (movie == m_movie)
        return;
    QMovie *taken = movie;
    if (movie->m_isTaken) {
        taken = movie->clone(this);
        if (!taken)
            return;
    } else {
        movie->m_isTaken = true;
        movie->setParent(this);
    }
    stopWaiting();

    const QPointer<WMovieProvider> self(this); // the receivers of the signals may delete it
    const auto releasePrevious = qScopeGuard([previous = m_movie] { WMovie::release(previous); });
    m_movie = taken;
    if (size.width() > 0 && size.height() > 0) {
        m_aspectRatio = float(size.width()) / float(size.height());
        Q_EMIT aspectRatioChanged();
    }
    if (self)
        Q_EMIT movieChanged();
    if (!self)
        return;
    m_stackIndex = 1;
    Q_EMIT stackIndexChanged();
}

void WMovieProvider::onMovieFetchFailed(const QString &source, const QString &fallbackSource)
{
    if (source != m_source || isForAnother())
        return;
    stopWaiting();
    if (fallbackSource.isEmpty()) {
        qWarning("image download failed and empty fallbackImage source");
        return;
    }
    const QPointer<WMovieProvider> self(this);
    m_fallbackSource = fallbackSource;
    Q_EMIT fallbackSourceChanged();
    if (!self)
        return;
    m_stackIndex = 2;
    Q_EMIT stackIndexChanged();
}
