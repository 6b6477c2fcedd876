#include "MovieView.h"

#include "BusMonitor.h"
#include "Controls.h"

#include <UiElements/icons/WMoviePlayback.h>

#include <QMovie>
#include <QPainter>

namespace {

constexpr int PictureFrame = 4;

} // namespace

MovieView::MovieView(const QSize &size, QWidget *parent)
    : QWidget(parent)
    , m_playback(new WMoviePlayback(this))
{
    setFixedSize(size);
}

void MovieView::setMovie(QMovie *movie)
{
    if (m_movie)
        m_movie->disconnect(this);
    m_movie = movie;
    m_playback->setMovie(movie);
    if (!movie)
        return;
    connect(movie, &QMovie::frameChanged, this, [this] { update(); });
    if (BusMonitor::get()->timesShown())
        m_playback->play();
    else
        standStill(movie, PictureFrame);
}

void MovieView::paintEvent(QPaintEvent *)
{
    const QPixmap frame = m_movie ? m_movie->currentPixmap() : QPixmap();
    if (frame.isNull())
        return;
    QPainter painter(this);
    const qreal ratio = painter.device()->devicePixelRatioF();
    QPixmap shown = frame.scaled(size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(ratio);
    const QSizeF room = (QSizeF(size()) - QSizeF(shown.size()) / ratio) / 2;
    painter.drawPixmap(QPointF(room.width(), room.height()), shown);
}
