#include <UiElements/icons/WMovie.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QDebug>

WMovie::WMovie(QObject *parent)
    : QMovie(parent)
{
    init();
}

WMovie::WMovie(const QString &fileName, const QByteArray &format, QObject *parent)
    : QMovie(fileName, format, parent)
{
    init();
}

WMovie::WMovie(QObject *parent, const char *data, int size, bool copy)
    : QMovie(parent)
{
    init();
    if (!data || size <= 0) {
        qWarning() << "WMovie - There are no bytes to play: data" << static_cast<const void *>(data) << "size" << size;
        return;
    }
    m_bytes = new QByteArray(copy ? QByteArray(data, size) : QByteArray::fromRawData(data, size));
    playBytes();
}

WMovie::WMovie(const QByteArray &bytes, QObject *parent)
    : QMovie(parent)
    , m_bytes(new QByteArray(bytes))
{
    init();
    playBytes();
}

WMovie::~WMovie()
{
    destroy(this, m_bytes, m_buffer);
}

void WMovie::destroy(QMovie *movie, QByteArray *bytes, QBuffer *buffer)
{
    movie->stop();
    if (buffer) {
        buffer->disconnect(movie);
        movie->setDevice(nullptr);
        buffer->close();
        delete buffer;
    }
    delete bytes;
}

void WMovie::init()
{
    // QMovie tells an error also whenever a movie on a device begins its next round. Only one without a frame counts.
    connect(this, &QMovie::error, this, [this] { m_hasFailed = true; });
    connect(this, &QMovie::frameChanged, this, [this] { m_hasFailed = false; });
    connect(this, &QMovie::finished, this, &WMovie::onFinished);
}

void WMovie::playBytes()
{
    m_buffer = new QBuffer(m_bytes, this);
    m_buffer->open(QIODevice::ReadOnly);
    setDevice(m_buffer);
    // The reader keeps a plain pointer to it.
    connect(m_buffer, &QObject::destroyed, this, [this] {
        stop();
        setDevice(nullptr);
    });
}

WMovie *WMovie::clone(QObject *parent) const
{
    WMovie *copy = nullptr;
    if (m_buffer && device() == m_buffer)
        copy = new WMovie(*m_bytes, parent);
    else if (!fileName().isEmpty())
        copy = new WMovie(fileName(), format(), parent);
    else if (!device())
        copy = new WMovie(parent);
    if (!copy) {
        qWarning("WMovie::clone - A movie on a device of its own cannot be cloned");
        return nullptr;
    }
    copy->setCacheMode(cacheMode());
    copy->setSpeed(speed());
    copy->setScaledSize(const_cast<WMovie *>(this)->scaledSize()); // a getter that is not const
    copy->setBackgroundColor(backgroundColor());
    return copy;
}

void WMovie::release(QMovie *movie)
{
    if (!movie)
        return;
    movie->stop();
    // With the application as parent it does not outlive the program where no event loop runs any more.
    movie->setParent(QCoreApplication::instance());
    if (movie->parent())
        movie->deleteLater();
    else
        delete movie;
}

void WMovie::onFinished()
{
    if (!m_hasFailed)
        return;
    const QString what = m_bytes ? QStringLiteral("%1 bytes in memory").arg(m_bytes->size()) : fileName();
    if (!m_reported.isNull() && m_reported == what)
        return;
    m_reported = what.isNull() ? QString::fromLatin1("") : what;
    qWarning() << "WMovie - Unable to play" << what << lastErrorString();
}
