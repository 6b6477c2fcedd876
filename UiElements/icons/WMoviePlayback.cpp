#include <UiElements/icons/WMoviePlayback.h>

#include <UiElements/app/IWApplication.h>

#include <QEvent>
#include <QWidget>
#include <QWindow>

WMoviePlayback::WMoviePlayback(QWidget *view)
    : QObject(view)
    , m_view(view)
{
    if (!view) {
        qWarning("WMoviePlayback - There is no widget to show a movie");
        return;
    }
    m_isShown = view->isVisible();
    view->installEventFilter(this);
    watchWindow();
    if (auto *app = qobject_cast<IWApplication *>(QCoreApplication::instance()))
        connect(app, &IWApplication::animationsDisabledChanged, this, &WMoviePlayback::update);
}

WMoviePlayback::~WMoviePlayback() = default;

void WMoviePlayback::setMovie(QMovie *movie)
{
    if (m_movie == movie)
        return;
    if (m_movie)
        m_movie->disconnect(this);
    m_isWanted = false;
    m_movie = movie;
    if (!movie)
        return;
    connect(movie, &QMovie::frameChanged, this, &WMoviePlayback::onFrameChanged);
    connect(movie, &QMovie::finished, this, [this] { m_isWanted = false; });
}

void WMoviePlayback::play()
{
    m_isWanted = m_movie;
    update();
}

void WMoviePlayback::stop()
{
    m_isWanted = false;
    if (m_movie)
        m_movie->stop();
}

void WMoviePlayback::watchWindow()
{
    QWidget *window = m_view->window();
    if (m_window != window) {
        if (m_window && m_window != m_view)
            m_window->removeEventFilter(this);
        m_window = window;
        if (window != m_view)
            window->installEventFilter(this);
    }
    QWindow *handle = window->windowHandle();
    if (m_windowHandle != handle) {
        if (m_windowHandle)
            m_windowHandle->removeEventFilter(this);
        m_windowHandle = handle;
        // A window that was not exposed yet will be; only one that is no longer counts as hidden.
        m_isExposed = true;
        if (handle)
            handle->installEventFilter(this);
    }
}

bool WMoviePlayback::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (watched == m_windowHandle) {
        if (type == QEvent::Expose) {
            m_isExposed = m_windowHandle->isExposed();
            update();
        }
        return false;
    }
    if (watched == m_view) {
        switch (type) {
        case QEvent::Show:
            watchWindow();
            m_isShown = true;
            m_isExposed = true;
            m_isClipped = false;
            update();
            return false;
        case QEvent::Hide:
            m_isShown = false;
            update();
            return false;
        case QEvent::ParentChange: watchWindow(); break;
        case QEvent::Paint: // it came back into the sight of its parents
            if (m_isClipped) {
                m_isClipped = false;
                update();
            }
            return false;
        default: break;
        }
    }
    if (watched == m_window && type == QEvent::WindowStateChange)
        update();
    return false;
}

bool WMoviePlayback::isInSight() const
{
    QRect rect = m_view->rect();
    for (const QWidget *w = m_view; !w->isWindow() && w->parentWidget(); w = w->parentWidget())
        rect = rect.translated(w->pos()) & w->parentWidget()->rect();
    return !rect.isEmpty();
}

bool WMoviePlayback::canBeSeen() const
{
    return m_view && m_isShown && m_isExposed && !m_isClipped && !m_view->window()->isMinimized();
}

void WMoviePlayback::onFrameChanged()
{
    // Nobody tells a widget that it was scrolled away, so a running movie looks once for each frame.
    if (m_isWanted && m_movie->state() == QMovie::Running && !isInSight()) {
        m_isClipped = true;
        update();
    }
}

void WMoviePlayback::update()
{
    if (!m_isWanted || !m_movie)
        return;
    const auto *app = qobject_cast<IWApplication *>(QCoreApplication::instance());
    const bool isAnimated = !app || !app->animationsDisabled();
    const QMovie::MovieState state = m_movie->state();
    // What follows emits the signals of the movie, and their receivers may delete this object.
    if (canBeSeen() && isAnimated) {
        if (state == QMovie::NotRunning)
            m_movie->start();
        else
            m_movie->setPaused(false);
    } else {
        const QPointer<WMoviePlayback> self(this);
        if (state == QMovie::Running)
            m_movie->setPaused(true);
        if (self && m_movie && !isAnimated && canBeSeen())
            m_movie->jumpToFrame(0);
    }
}
