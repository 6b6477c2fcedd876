#include <UiElements/controls/WGifLabel.h>

#include <UiElements/icons/WMovie.h>
#include <UiElements/icons/WMoviePlayback.h>

#include <QImageReader>

namespace {

const int Margins = 10; // of both sides together

} // namespace

WGifLabel::WGifLabel(QWidget *parent)
    : WLabel(parent, QAccessible::Animation)
    , m_movie(new WMovie(this))
    , m_playback(new WMoviePlayback(this))
{
    setAlignment(Qt::AlignCenter);
    connect(m_movie, &QMovie::frameChanged, this, &WGifLabel::frameChanged);
    m_playback->setMovie(m_movie);
}

WGifLabel::~WGifLabel()
{
    // It may be the one whose signal led here.
    WMovie::release(m_movie);
}

void WGifLabel::setGifPath(const QString &path)
{
    const bool wasWanted = m_playback->isWanted();
    m_playback->stop();
    m_gifPath = path;
    const QString file = path.startsWith(QLatin1String("qrc:/")) ? path.mid(3) : path;
    m_movie->setFileName(file);
    m_imageSize = file.isEmpty() ? QSize() : QImageReader(file).size();
    clear();
    updateGeometry();
    if (wasWanted && !path.isEmpty())
        startPlaying();
}

void WGifLabel::startPlaying()
{
    if (!m_gifPath.isEmpty())
        m_playback->play();
}

void WGifLabel::stopPlaying()
{
    m_playback->stop();
}

bool WGifLabel::isGifPlaying() const
{
    return m_movie->state() == QMovie::Running;
}

QSize WGifLabel::sizeHint() const
{
    // Not that of the pixmap: it depends on the size of the label, which would shrink with every frame.
    return m_imageSize.isEmpty() ? WLabel::sizeHint() : m_imageSize + QSize(Margins, Margins);
}

QSize WGifLabel::minimumSizeHint() const
{
    return m_imageSize.isEmpty() ? WLabel::minimumSizeHint()
                                 : sizeHint().boundedTo(QSize(16, 16) + QSize(Margins, Margins));
}

void WGifLabel::frameChanged(int frame)
{
    const QPointer<WGifLabel> self(this);
    if (frame == m_movie->frameCount() - 1)
        Q_EMIT finishedPlaying();
    if (self)
        showFrame();
}

void WGifLabel::showFrame()
{
    m_isFrameDue = false;
    const QPixmap frame = m_movie->currentPixmap();
    const qreal ratio = devicePixelRatioF();
    const QSize room(qRound((width() - Margins) * ratio), qRound((height() - Margins) * ratio));
    if (!m_movie->isValid() || frame.isNull() || room.isEmpty())
        return;
    QPixmap shown = frame.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(ratio);
    setPixmap(shown);
}

void WGifLabel::paintEvent(QPaintEvent *event)
{
    WLabel::paintEvent(event);
    // On a screen of another ratio the picture is one for the old until the next frame, which may never come.
    const QPixmap shown = pixmap(Qt::ReturnByValue);
    if (!shown.isNull() && !m_isFrameDue && !qFuzzyCompare(shown.devicePixelRatioF(), devicePixelRatioF())) {
        m_isFrameDue = true;
        QMetaObject::invokeMethod(this, &WGifLabel::showFrame, Qt::QueuedConnection);
    }
}

void WGifLabel::resizeEvent(QResizeEvent *event)
{
    WLabel::resizeEvent(event);
    if (!pixmap(Qt::ReturnByValue).isNull())
        showFrame();
}
