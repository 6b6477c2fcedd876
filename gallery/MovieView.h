#pragma once

#include <QPointer>
#include <QWidget>

class QMovie;
class WMoviePlayback;

/// Shows a movie of somebody else's, fitted into it, while it can be seen.
class MovieView : public QWidget
{
    Q_OBJECT

public:
    explicit MovieView(const QSize &size, QWidget *parent = nullptr);

    void setMovie(QMovie *movie);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<QMovie> m_movie;
    WMoviePlayback *const m_playback;
};
