#include <UiElements/controls/WGifButton.h>

#include <UiElements/icons/WMovie.h>
#include <UiElements/icons/WMoviePlayback.h>

#include <QDebug>
#include <QImageReader>
#include <QLabel>
#include <QPainter>
#include <QStyleOption>

namespace {

const int Margin = 6; // between the picture and the edge of the button: the focus frame is there

QString localPath(const QString &path)
{
    return path.startsWith(QLatin1String("qrc:/")) ? path.mid(3) : path;
}

} // namespace

/// The picture, which leaves the badge below it free.
class WGifButton::Picture : public QLabel
{
public:
    explicit Picture(WGifButton *button)
        : QLabel(button)
        , m_button(button)
    {
        setAlignment(Qt::AlignCenter);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPixmap shown = pixmap(Qt::ReturnByValue);
        if (shown.isNull())
            return;
        if (!isEnabled()) {
            QStyleOption option;
            option.initFrom(this);
            shown = style()->generatedIconPixmap(QIcon::Disabled, shown, &option);
        }
        QPainter painter(this);
        if (m_button->badgeVisible())
            painter.setClipRegion(QRegion(rect())
                                  - QRegion(m_button->badgeRect().translated(-pos()), QRegion::Ellipse));
        // In the middle to the pixel of the screen.
        const qreal ratio = shown.devicePixelRatioF();
        const QSizeF room = (QSizeF(size()) * ratio - QSizeF(shown.size())) / 2;
        painter.drawPixmap(QPointF(qRound(room.width()), qRound(room.height())) / ratio, shown);
    }

private:
    const WGifButton *const m_button;
};

WGifButton::WGifButton(QWidget *parent, const QString &stillPath, const QSize &stillSize, const QString &animationPath,
                       const QSize &animationSize)
    : WPushButton(parent)
    , m_stillPath(stillPath)
    , m_stillSize(stillSize)
    , m_animationPath(animationPath)
    , m_animationSize(animationSize)
    , m_playback(new WMoviePlayback(this))
    , m_innerLabel(new Picture(this))
{
    setAccessibleRole(QAccessible::Button);
    showStill();
}

WGifButton::~WGifButton()
{
    WMovie::release(m_movie);
}

void WGifButton::setGif()
{
    if (m_movie || m_isUnreadable || m_animationPath.isEmpty())
        return;
    m_movie = new WMovie(localPath(m_animationPath), QByteArray(), this);
    m_movie->setCacheMode(QMovie::CacheAll);
    connect(m_movie, &QMovie::frameChanged, this, &WGifButton::setButtonIcon);
    m_playback->setMovie(m_movie);
}

void WGifButton::startGif()
{
    setGif();
    m_playback->play();
}

void WGifButton::stopGif()
{
    if (!m_movie)
        return;
    m_isUnreadable = m_movie->hasFailed();
    m_playback->setMovie(nullptr);
    WMovie::release(m_movie);
    m_movie = nullptr;
    showStill();
}

void WGifButton::setButtonIcon()
{
    if (m_movie)
        setPixmapForInnerLabel(m_movie->currentPixmap(), m_animationSize);
}

void WGifButton::showStill()
{
    if (m_stillPath.isEmpty()) {
        setPixmapForInnerLabel(QPixmap(), m_stillSize);
        return;
    }
    QImageReader reader(localPath(m_stillPath));
    const QSize size = reader.size();
    const QSize wanted = size.scaled(m_stillSize * devicePixelRatioF(), Qt::KeepAspectRatio);
    if (wanted.width() > size.width()) // a vector image is drawn sharp
        reader.setScaledSize(wanted);
    const QPixmap still = QPixmap::fromImage(reader.read());
    if (still.isNull() && !m_isStillReported) {
        m_isStillReported = true;
        qWarning() << "WGifButton - Unable to load the still image" << m_stillPath << reader.errorString();
    }
    setPixmapForInnerLabel(still, m_stillSize);
}

void WGifButton::setPixmapForInnerLabel(const QPixmap &pixmap, const QSize &size)
{
    m_ratio = devicePixelRatioF();
    QPixmap shown;
    if (!pixmap.isNull() && !size.isEmpty()) {
        shown = pixmap.scaled(size * m_ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        shown.setDevicePixelRatio(m_ratio);
    }
    m_innerLabel->resize(size.expandedTo(QSize(0, 0)));
    m_innerLabel->setPixmap(shown);
    placeInnerLabel();
}

void WGifButton::placeInnerLabel()
{
    m_innerLabel->move((width() - m_innerLabel->width()) / 2, (height() - m_innerLabel->height()) / 2);
}

QSize WGifButton::sizeHint() const
{
    const QSize picture = m_stillSize.expandedTo(m_animationSize);
    return WPushButton::sizeHint().expandedTo(picture + 2 * QSize(Margin, Margin));
}

bool WGifButton::showsOnlyIcon() const
{
    return plainText().isEmpty();
}

void WGifButton::enterEvent(QEvent *event)
{
    if (isEnabled())
        startGif();
    WPushButton::enterEvent(event);
}

void WGifButton::leaveEvent(QEvent *event)
{
    stopGif();
    WPushButton::leaveEvent(event);
}

void WGifButton::focusInEvent(QFocusEvent *event)
{
    startGif();
    WPushButton::focusInEvent(event);
}

void WGifButton::focusOutEvent(QFocusEvent *event)
{
    stopGif();
    WPushButton::focusOutEvent(event);
}

void WGifButton::hideEvent(QHideEvent *event)
{
    // The mouse does not always leave what is hidden below it. Minimizing, which is spontaneous, only pauses.
    if (!event->spontaneous())
        stopGif();
    WPushButton::hideEvent(event);
}

void WGifButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange) {
        if (!isEnabled())
            stopGif();
        else if (underMouse())
            startGif();
    }
    WPushButton::changeEvent(event);
}

void WGifButton::resizeEvent(QResizeEvent *event)
{
    WPushButton::resizeEvent(event);
    placeInnerLabel();
}

void WGifButton::paintContents(QStylePainter *painter, const QStyleOptionButton &option)
{
    WPushButton::paintContents(painter, option);
    if (!qFuzzyCompare(m_ratio, devicePixelRatioF()) && !m_movie) {
        m_ratio = devicePixelRatioF(); // once for each change
        QMetaObject::invokeMethod(this, &WGifButton::showStill, Qt::QueuedConnection);
    }
}
