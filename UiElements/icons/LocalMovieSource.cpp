#include <UiElements/icons/LocalMovieSource.h>

#include <UiElements/icons/WMovie.h>

#include <QBuffer>
#include <QDebug>
#include <QFileInfo>
#include <QImageReader>
#include <QUrl>
#include <QtEndian>

namespace {

/// What was found, or why nothing was.
struct Found
{
    QByteArray bytes;
    QString fault;
};

Found faulty(const char *fault)
{
    return {QByteArray(), QString::fromLatin1(fault)};
}

bool isTooLarge(qint64 bytes)
{
    return bytes > LocalMovieSource::MaximumBytes;
}

Found readDataUrl(const QString &url)
{
    const int comma = url.indexOf(QLatin1Char(','));
    if (comma < 0)
        return faulty("not a data URL");
    // No encoding takes more than three characters for a byte.
    if (url.size() - comma > 3 * qint64(LocalMovieSource::MaximumBytes))
        return faulty("too large");
    const QByteArray data = QByteArray::fromPercentEncoding(url.mid(comma + 1).toUtf8());
    if (!url.leftRef(comma).endsWith(QLatin1String(";base64"), Qt::CaseInsensitive))
        return {data, QString()};
    const auto decoded = QByteArray::fromBase64Encoding(data, QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? Found {*decoded, QString()} : faulty("not in base64");
}

Found readFile(const QString &path)
{
    // Asked before it is opened: to open a pipe may wait for ever.
    const QFileInfo info(path);
    if (!info.exists())
        return faulty("not found");
    if (!info.isFile())
        return faulty("not an ordinary file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {QByteArray(), file.errorString()};
    // Not only by what the size is said to be.
    return isTooLarge(file.size()) ? faulty("too large")
                                   : Found {file.read(qint64(LocalMovieSource::MaximumBytes) + 1), QString()};
}

Found read(const QString &source)
{
    const int colon = source.indexOf(QLatin1Char(':'));
    const int slash = source.indexOf(QLatin1Char('/'));
    const bool hasScheme = colon > 0 && (slash < 0 || colon < slash);
    const QString scheme = hasScheme ? source.left(colon).toLower() : QString();
    if (scheme == QLatin1String("data"))
        return readDataUrl(source);
    if (!hasScheme)
        return readFile(source);
    const QUrl url(source);
    if (scheme == QLatin1String("qrc"))
        return readFile(QLatin1Char(':') + url.path());
    if (scheme == QLatin1String("file") && url.host().isEmpty())
        return readFile(url.toLocalFile());
    return faulty("not a local source");
}

/// What a frame takes in memory. Qt believes no screen of a GIF file that is much larger than its frames when it is
/// asked for the size, but makes the frames as large as the screen.
QSize frameSize(const QByteArray &bytes, const QImageReader &reader)
{
    QSize size = reader.size();
    if (bytes.startsWith("GIF8") && bytes.size() > 10)
        size = size.expandedTo(QSize(qFromLittleEndian<quint16>(bytes.constData() + 6),
                                     qFromLittleEndian<quint16>(bytes.constData() + 8)));
    return size;
}

/// The size of the picture, or an empty one and the reason why it should not be shown.
QSize check(const QByteArray &bytes, QString *fault)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    if (format != "png" && format != "jpeg" && !QMovie::supportedFormats().contains(format)) {
        *fault = QStringLiteral("not a picture");
        return QSize();
    }
    const QSize size = frameSize(bytes, reader);
    if (qint64(size.width()) * size.height() > LocalMovieSource::MaximumPixels) {
        *fault = QStringLiteral("a picture of %1 x %2").arg(size.width()).arg(size.height());
        return QSize();
    }
    const QImage first = size.isEmpty() ? QImage() : reader.read();
    if (first.isNull())
        *fault = QStringLiteral("a damaged picture");
    return first.size();
}

} // namespace

LocalMovieSource::LocalMovieSource(QObject *parent)
    : IWMovieProviderSource(parent)
{
}

LocalMovieSource::~LocalMovieSource() = default;

void LocalMovieSource::fetch(const QString &source)
{
    if (m_waiting.contains(source))
        return;
    m_waiting.insert(source);
    QMetaObject::invokeMethod(
        this, [this, source] { answer(source); }, Qt::QueuedConnection);
}

void LocalMovieSource::answer(const QString &source)
{
    m_waiting.remove(source);
    Found found = read(source);
    if (found.fault.isEmpty() && isTooLarge(found.bytes.size()))
        found.fault = QStringLiteral("too large");
    const QSize size = found.fault.isEmpty() ? check(found.bytes, &found.fault) : QSize();
    if (!found.fault.isEmpty()) {
        const QString name = source.size() > 100 ? source.left(100) + QStringLiteral("...") : source;
        qWarning().nospace() << "LocalMovieSource - Unable to load " << name << ": " << qUtf8Printable(found.fault);
        Q_EMIT movieFetchFailed(source, m_fallbackSource);
        return;
    }
    const QPointer<WMovie> movie = new WMovie(nullptr, found.bytes.constData(), found.bytes.size(), true);
    Q_EMIT movieFetched(movie, size, source);
    if (movie && !movie->parent())
        WMovie::release(movie);
}
