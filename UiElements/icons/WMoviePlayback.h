#pragma once

#include <UiElements/uielements_export.h>

#include <QMovie>
#include <QObject>
#include <QPointer>

class QWidget;
class QWindow;

/// Plays a movie only where it can be seen.
///
/// The movie is paused, and no timer runs, while the widget that shows it is hidden or scrolled out of its parents and
/// while its window is minimised or not shown by the system; then it goes on where it stood. While the animations of
/// the application are disabled it stands at its first frame.
///
///     auto *playback = new WMoviePlayback(label);
///     connect(provider, &WMovieProvider::movieChanged, label, [=] {
///         label->setMovie(provider->movie());
///         playback->setMovie(provider->movie());
///         playback->play();
///     });
class UIELEMENTS_EXPORT WMoviePlayback : public QObject
{
    Q_OBJECT

public:
    /// The view is the parent; without one nothing plays.
    explicit WMoviePlayback(QWidget *view);
    ~WMoviePlayback() override;

    QMovie *movie() const { return m_movie; }
    /// Not owned. The movie set before is left as it is; the new one waits for play().
    void setMovie(QMovie *movie);

    /// Wanted from now on: the movie runs when and as long as it can be seen.
    void play();
    /// The next play() begins at the first frame.
    void stop();
    /// From play() until stop() or the end of a movie that ends, also while the movie is paused.
    bool isWanted() const { return m_isWanted; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchWindow();
    bool isInSight() const;
    bool canBeSeen() const;
    void onFrameChanged();
    void update();

    QWidget *const m_view; // the parent
    QPointer<QWidget> m_window;
    QPointer<QWindow> m_windowHandle;
    QPointer<QMovie> m_movie;
    bool m_isWanted = false;
    bool m_isShown = false;
    bool m_isExposed = true;
    bool m_isClipped = false;
};
