#include "support/Colors.h"
#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/controls/WGifButton.h>
#include <UiElements/controls/WGifLabel.h>
#include <UiElements/icons/LocalMovieSource.h>
#include <UiElements/icons/WMovie.h>
#include <UiElements/icons/WMoviePlayback.h>
#include <UiElements/icons/WMovieProvider.h>

#include <QBuffer>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QWindow>

#include <memory>

#include <cstring>

#include <sys/stat.h>

class tst_Movies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void fromMemory_data();
    void fromMemory();
    void clones_data();
    void clones();
    void roundsFromMemory();
    void deviceTakenAway();
    void answers_data();
    void answers();
    void answersForOlderFetches();
    void aspectRatio();
    void providersThatWaitForTheSame();
    void shownMovieIsNotDisturbed();
    void deletedInTheMiddleOfAnAnswer_data();
    void deletedInTheMiddleOfAnAnswer();
    void unclonableMovie();
    void sourceOfTheApplication();
    void localSources_data();
    void localSources();
    void localAnswers();
    void localMovieOutlivesItsFile();
    void whereItPlays_data();
    void whereItPlays();
    void hundredHidden();
    void animationsDisabled();
    void endOfAMovie();
    void labelFrames_data();
    void labelFrames();
    void labelKeepsItsSize();
    void labelRounds();
    void labelGoneWhenFinished();
    void labelTakesAnotherFile();
    void damagedFiles_data();
    void damagedFiles();
    void buttonPlays_data();
    void buttonPlays();
    void buttonPictures_data();
    void buttonPictures();
    void buttonAtRest_data();
    void buttonAtRest();
    void buttonBadge();
    void accessibility();

private:
    QString file(const char *name) const { return m_dir.filePath(QString::fromLatin1(name)); }
    void write(const char *name, const QByteArray &bytes) const
    {
        QFile f(file(name));
        QVERIFY(f.open(QIODevice::WriteOnly));
        QCOMPARE(f.write(bytes), qint64(bytes.size()));
    }
    QTemporaryDir m_dir;
};

namespace {

WApplication *app()
{
    return static_cast<WApplication *>(QCoreApplication::instance());
}

QByteArray word(int number)
{
    return QByteArray(1, char(number & 255)) + char(number >> 8);
}

/// An animation with a frame in one color for each letter of "rgbw". The delay is in hundredths of a second; 0 rounds
/// are endless. The screen of the file may be given a size of its own.
QByteArray gif(const char *colors, const QSize &size = QSize(8, 8), int delay = 2, int rounds = 0, QSize screen = {})
{
    if (screen.isEmpty())
        screen = size;
    QByteArray bytes = "GIF89a" + word(screen.width()) + word(screen.height()) + QByteArray("\x81\0\0", 3);
    bytes += QByteArray("\xff\0\0\0\xff\0\0\0\xff\xff\xff\xff", 12);
    if (rounds != 1)
        bytes += QByteArray("\x21\xff\x0bNETSCAPE2.0\x03\x01", 16) + word(qMax(0, rounds - 1)) + '\0';
    for (const char *color = colors; *color; ++color) {
        bytes += QByteArray("\x21\xf9\x04\x04", 4) + word(delay) + QByteArray(2, '\0');
        bytes += ',' + QByteArray(4, '\0') + word(size.width()) + word(size.height()) + QByteArray("\0\x02", 2);
        // Codes of three bits. The table is cleared so often that they never get longer.
        const int index = int(qstrlen("rgbw") - qstrlen(std::strchr("rgbw", *color)));
        QByteArray data;
        int bits = 0;
        int count = 0;
        const auto put = [&](int code) {
            bits |= code << count;
            for (count += 3; count >= 8; count -= 8, bits >>= 8)
                data += char(bits & 255);
        };
        for (int i = 0; i < size.width() * size.height(); ++i) {
            if (i % 2 == 0)
                put(4);
            put(index);
        }
        put(5);
        data += char(bits & 255);
        for (int at = 0; at < data.size(); at += 255)
            bytes += char(qMin(255, data.size() - at)) + data.mid(at, 255);
        bytes += '\0';
    }
    return bytes + ';';
}

/// With an impossible size of codes in a frame.
QByteArray withDamage(QByteArray bytes, int frame)
{
    int at = 0;
    for (int i = 0; i <= frame; ++i)
        at = bytes.indexOf("\x21\xf9", at + 1);
    bytes[at + 18] = 32;
    return bytes;
}

WMovie *movieOf(const QByteArray &bytes, QObject *parent = nullptr)
{
    return new WMovie(parent, bytes.constData(), bytes.size(), true);
}

char letter(const QColor &color)
{
    for (const auto &[name, value] : {std::pair('r', QColor(255, 0, 0)),
                                      {'g', QColor(0, 255, 0)},
                                      {'b', QColor(0, 0, 255)},
                                      {'w', QColor(Qt::white)}}) {
        if (color == value)
            return name;
    }
    return '?';
}

char letter(const QImage &image)
{
    return image.isNull() ? '-' : letter(image.pixelColor(image.rect().center()));
}

// A short frame is waited for with qWaitFor(): QTRY_COMPARE looks so rarely that it can miss the frame every time.

/// The colors of all frames, as a reader sees them from the first on.
QByteArray frames(QMovie *movie)
{
    QByteArray seen;
    for (int i = 0; i < movie->frameCount() && movie->jumpToFrame(i); ++i)
        seen += letter(movie->currentImage());
    return seen;
}

QByteArray framesOf(QMovie *movie)
{
    return movie ? frames(movie) : QByteArray("none");
}

/// Answers when the test says so.
class Source : public IWMovieProviderSource
{
    Q_OBJECT

public:
    void fetch(const QString &source) override { fetched << source; }
    void answer(const char *source, const QByteArray &bytes, QSize size = QSize(8, 8))
    {
        Q_EMIT movieFetched(movieOf(bytes, this), size, QString::fromLatin1(source));
    }
    void fail(const char *source, const char *fallback)
    {
        Q_EMIT movieFetchFailed(QString::fromLatin1(source), QString::fromLatin1(fallback));
    }
    QStringList fetched;
};

class Killer : public QObject
{
    Q_OBJECT

public:
    QPointer<QObject> victim;

public Q_SLOTS:
    void kill() { delete victim; }
};

/// Counts the timers that fire while it lives.
class TimerEvents : public QObject
{
public:
    TimerEvents() { qApp->installEventFilter(this); }
    int count() const { return m_count; }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_count += event->type() == QEvent::Timer;
        return false;
    }

private:
    int m_count = 0;
};

QString signalsOf(WMovieProvider *provider, const std::function<void()> &change)
{
    const auto names = std::make_shared<QStringList>();
    QObject context;
    QObject::connect(provider, &WMovieProvider::stackIndexChanged, &context,
                     [provider, names] { *names << QStringLiteral("index%1").arg(provider->stackIndex()); });
    QObject::connect(provider, &WMovieProvider::movieChanged, &context, [names] { *names << QStringLiteral("movie"); });
    QObject::connect(provider, &WMovieProvider::fallbackSourceChanged, &context,
                     [names] { *names << QStringLiteral("fallback"); });
    QObject::connect(provider, &WMovieProvider::aspectRatioChanged, &context,
                     [names] { *names << QStringLiteral("ratio"); });
    change();
    return names->join(QLatin1Char(' '));
}

void processDeletions()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

void tst_Movies::initTestCase()
{
    write("two.gif", gif("rg"));
    write("wide.gif", gif("rg", QSize(40, 20)));
    write("once.gif", gif("rgb", QSize(8, 8), 2, 1));
    write("still.gif", gif("b", QSize(20, 20)));
}

void tst_Movies::init()
{
    app()->setAnimationsDisabled(false);
}

void tst_Movies::cleanup()
{
    app()->setMovieProviderSource(nullptr);
}

void tst_Movies::fromMemory_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isNull");
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("copy");
    QTest::addColumn<QByteArray>("seen"); // after the caller's bytes were overwritten with another animation
    QTest::addColumn<int>("warnings");
    const QByteArray bytes = gif("rg");
    QTest::newRow("copied") << bytes << false << bytes.size() << true << QByteArray("rg") << 0;
    QTest::newRow("referred to") << bytes << false << bytes.size() << false << QByteArray("bw") << 0;
    QTest::newRow("no data") << bytes << true << 10 << true << QByteArray() << 1;
    QTest::newRow("no data, referred to") << bytes << true << 10 << false << QByteArray() << 1;
    QTest::newRow("no size") << bytes << false << 0 << true << QByteArray() << 1;
    QTest::newRow("negative size") << bytes << false << -1 << false << QByteArray() << 1;
}

void tst_Movies::fromMemory()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isNull);
    QFETCH(int, size);
    QFETCH(bool, copy);
    QFETCH(int, warnings);
    WarningLog log;
    const QByteArray other = gif("bw");
    QCOMPARE(other.size(), bytes.size());
    WMovie movie(nullptr, isNull ? nullptr : bytes.data(), size, copy);
    std::copy(other.begin(), other.end(), bytes.begin());
    const QStringList messages = log.take();
    QCOMPARE(messages.size(), warnings);
    QVERIFY(!warnings || messages.first().startsWith(QStringLiteral("WMovie - There are no bytes to play")));
    QCOMPARE(movie.isValid(), warnings == 0);
    QTEST(warnings ? QByteArray() : frames(&movie), "seen");
}

void tst_Movies::clones_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("seen");
    QTest::addColumn<QStringList>("warnings");
    QTest::newRow("memory") << QStringLiteral("memory") << QByteArray("rgb") << QStringList();
    QTest::newRow("file") << QStringLiteral("file") << QByteArray("rg") << QStringList();
    QTest::newRow("device") << QStringLiteral("device") << QByteArray("none")
                            << QStringList(
                                   QStringLiteral("WMovie::clone - A movie on a device of its own cannot be cloned"));
}

void tst_Movies::clones()
{
    QFETCH(QString, kind);
    WarningLog log;
    QByteArray bytes = gif("rgb");
    QBuffer device(&bytes);
    QPointer<WMovie> movie = kind == QLatin1String("memory") ? movieOf(bytes) : new WMovie;
    if (kind == QLatin1String("file"))
        movie->setFileName(file("two.gif"));
    else if (kind == QLatin1String("device"))
        movie->setDevice(&device);
    movie->setSpeed(50);
    movie->setCacheMode(QMovie::CacheAll);
    QVERIFY(movie->jumpToFrame(1));
    QObject parent;
    WMovie *clone = movie->clone(&parent);
    delete movie;
    QTEST(log.take(), "warnings");
    if (clone) {
        QCOMPARE(clone->parent(), &parent);
        QCOMPARE(clone->speed(), 50);
        QCOMPARE(clone->cacheMode(), QMovie::CacheAll);
        QCOMPARE(clone->currentFrameNumber(), -1);
    }
    QTEST(framesOf(clone), "seen");
}

void tst_Movies::roundsFromMemory()
{
    WarningLog log;
    const std::unique_ptr<WMovie> movie(movieOf(gif("rg")));
    int first = 0;
    connect(movie.get(), &QMovie::frameChanged, this, [&](int frame) { first += frame == 0; });
    movie->start();
    QTRY_VERIFY(first >= 3);
    QVERIFY(!movie->hasFailed());
    QCOMPARE(log.take(), QStringList());
}

void tst_Movies::deviceTakenAway()
{
    WarningLog log;
    const QByteArray bytes = gif("rg");
    WMovie movie(nullptr, bytes.constData(), bytes.size(), true);
    movie.start();
    delete movie.findChild<QBuffer *>();
    QCOMPARE(movie.state(), QMovie::NotRunning);
    movie.start();
    QCOMPARE(movie.state(), QMovie::NotRunning);
    QCOMPARE(log.take().size(), 1);
}

// One letter for each thing that happens: f fetch, m answer, t answer with another movie, 0 answer without a movie,
// F failure with a fallback, e failure without, o answer for another source.
void tst_Movies::answers_data()
{
    QTest::addColumn<QByteArray>("events");
    QTest::addColumn<QString>("last"); // what the last one leads to
    QTest::addColumn<int>("stackIndex");
    QTest::addColumn<QByteArray>("seen");
    QTest::addColumn<int>("warnings");
    const QString shown = QStringLiteral("ratio movie index1");
    QTest::newRow("never") << QByteArray("f") << QString() << 0 << QByteArray("none") << 0;
    QTest::newRow("movie") << QByteArray("fm") << shown << 1 << QByteArray("rg") << 0;
    QTest::newRow("twice") << QByteArray("fmt") << shown << 1 << QByteArray("bw") << 0;
    QTest::newRow("without being asked") << QByteArray("m") << QString() << 0 << QByteArray("none") << 0;
    QTest::newRow("for another source") << QByteArray("fo") << QString() << 0 << QByteArray("none") << 0;
    QTest::newRow("no movie") << QByteArray("f0") << QString() << 0 << QByteArray("none") << 1;
    QTest::newRow("no movie after one") << QByteArray("fm0") << QString() << 1 << QByteArray("rg") << 1;
    QTest::newRow("fallback") << QByteArray("fF") << QStringLiteral("fallback index2") << 2 << QByteArray("none") << 0;
    QTest::newRow("fallback, then the movie") << QByteArray("fFm") << shown << 1 << QByteArray("rg") << 0;
    QTest::newRow("movie, then fallback")
        << QByteArray("fmF") << QStringLiteral("fallback index2") << 2 << QByteArray("rg") << 0;
    QTest::newRow("no fallback") << QByteArray("fe") << QString() << 0 << QByteArray("none") << 1;
    QTest::newRow("no fallback after a movie") << QByteArray("fme") << QString() << 1 << QByteArray("rg") << 1;
}

void tst_Movies::answers()
{
    QFETCH(QByteArray, events);
    WarningLog log;
    Source source;
    app()->setMovieProviderSource(&source);
    WMovieProvider provider;
    QString last;
    for (const char event : qAsConst(events)) {
        QPointer<QMovie> before = provider.movie();
        last = signalsOf(&provider, [&] {
            switch (event) {
            case 'f': provider.fetch(QStringLiteral("a")); break;
            case 'm': source.answer("a", gif("rg")); break;
            case 't': source.answer("a", gif("bw")); break;
            case 'o': source.answer("b", gif("bw")); break;
            case '0': Q_EMIT source.movieFetched(nullptr, QSize(), QStringLiteral("a")); break;
            case 'F': source.fail("a", "still.png"); break;
            case 'e': source.fail("a", ""); break;
            }
        });
        processDeletions();
        QCOMPARE(before.isNull(), provider.movie() != before || !provider.movie());
    }
    QTEST(last, "last");
    QTEST(provider.stackIndex(), "stackIndex");
    QTEST(framesOf(provider.movie()), "seen");
    QVERIFY(!provider.movie() || provider.movie()->parent() == &provider);
    QTEST(log.take().size(), "warnings");
}

void tst_Movies::answersForOlderFetches()
{
    Source source;
    app()->setMovieProviderSource(&source);
    WMovieProvider provider;
    provider.fetch(QStringLiteral("a"));
    provider.fetch(QStringLiteral("b"));
    QCOMPARE(source.fetched, QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(signalsOf(&provider, [&] { source.answer("a", gif("rg")); }), QString());
    QCOMPARE(signalsOf(&provider, [&] { source.fail("a", "still.png"); }), QString());
    source.answer("b", gif("bw"));
    QCOMPARE(framesOf(provider.movie()), QByteArray("bw"));

    auto *late = new WMovieProvider;
    late->fetch(QStringLiteral("c"));
    delete late;
    source.answer("c", gif("rg")); // nobody takes it
    QCOMPARE(source.findChildren<WMovie *>().size(), 2);
}

void tst_Movies::aspectRatio()
{
    Source source;
    app()->setMovieProviderSource(&source);
    WMovieProvider provider;
    provider.fetch(QStringLiteral("a"));
    QCOMPARE(provider.aspectRatio(), 1.0f);
    source.answer("a", gif("r"), QSize(3, 7));
    QCOMPARE(provider.aspectRatio(), 3.0f / 7.0f);
    for (const QSize size : {QSize(0, 0), QSize(-1, 5), QSize(5, 0), QSize()}) {
        QCOMPARE(signalsOf(&provider, [&] { source.answer("a", gif("r"), size); }), QStringLiteral("movie index1"));
        QCOMPARE(provider.aspectRatio(), 3.0f / 7.0f);
    }
}

void tst_Movies::providersThatWaitForTheSame()
{
    Source source;
    app()->setMovieProviderSource(&source);
    std::vector<std::unique_ptr<WMovieProvider>> providers;
    for (int i = 0; i < 3; ++i) {
        providers.push_back(std::make_unique<WMovieProvider>());
        providers.back()->fetch(QStringLiteral("a"));
    }
    for (const char *seen : {"rg", "bw"}) { // the second time nobody waits any more
        source.answer("a", gif(seen));
        QSet<QMovie *> movies;
        for (const auto &provider : providers) {
            QCOMPARE(framesOf(provider->movie()), QByteArray(seen));
            QCOMPARE(provider->movie()->parent(), provider.get());
            QCOMPARE(provider->stackIndex(), 1);
            movies << provider->movie();
        }
        QCOMPARE(movies.size(), 3);
        processDeletions();
    }
    providers.erase(providers.begin()); // the one whose movie was cloned
    processDeletions();
    QCOMPARE(framesOf(providers.back()->movie()), QByteArray("bw"));
}

void tst_Movies::shownMovieIsNotDisturbed()
{
    Source source;
    app()->setMovieProviderSource(&source);
    WMovieProvider first; // hears the answers before the second does
    WMovieProvider second;
    second.fetch(QStringLiteral("a"));
    source.answer("a", gif("rg"));
    processDeletions();
    first.fetch(QStringLiteral("a"));
    QCOMPARE(signalsOf(&second, [&] { source.answer("a", gif("bw")); }), QString());
    processDeletions();
    QCOMPARE(framesOf(first.movie()), QByteArray("bw"));
    QCOMPARE(framesOf(second.movie()), QByteArray("rg"));

    second.fetch(QStringLiteral("a"));
    QCOMPARE(signalsOf(&first, [&] { source.fail("a", "still.png"); }), QString());
    QCOMPARE(second.stackIndex(), 2);
}

void tst_Movies::deletedInTheMiddleOfAnAnswer_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<int>("victim");
    for (const char *signal : {SIGNAL(aspectRatioChanged()), SIGNAL(movieChanged()), SIGNAL(stackIndexChanged())}) {
        for (int victim = 0; victim < 2; ++victim)
            QTest::addRow("%s, provider %d", signal + 1, victim) << QByteArray(signal) << victim;
    }
}

void tst_Movies::deletedInTheMiddleOfAnAnswer()
{
    QFETCH(QByteArray, signal);
    QFETCH(int, victim);
    Source source;
    app()->setMovieProviderSource(&source);
    const QPointer<WMovieProvider> providers[] = {new WMovieProvider, new WMovieProvider};
    for (const auto &provider : providers)
        provider->fetch(QStringLiteral("a"));
    source.answer("a", gif("rg")); // so that there is one before
    processDeletions();
    const QPointer<QMovie> before = providers[victim]->movie();
    // The first one's signal: the second either survives it or is not there any more to take its movie.
    Killer killer;
    QVERIFY(connect(providers[0], signal.constData(), &killer, SLOT(kill())));
    killer.victim = providers[victim];
    source.answer("a", gif("bw"));
    QVERIFY(!providers[victim]);
    QCOMPARE(framesOf(providers[1 - victim]->movie()), QByteArray("bw"));
    processDeletions();
    QVERIFY(!before);
    QCOMPARE(framesOf(providers[1 - victim]->movie()), QByteArray("bw"));
    delete providers[1 - victim];
}

void tst_Movies::unclonableMovie()
{
    WarningLog log;
    Source source;
    app()->setMovieProviderSource(&source);
    WMovieProvider first;
    WMovieProvider second;
    first.fetch(QStringLiteral("a"));
    second.fetch(QStringLiteral("a"));
    QByteArray bytes = gif("rg");
    QBuffer device(&bytes);
    auto *movie = new WMovie;
    movie->setDevice(&device);
    const QString heard =
        signalsOf(&second, [&] { Q_EMIT source.movieFetched(movie, QSize(8, 8), QStringLiteral("a")); });
    QCOMPARE(heard, QString());
    QCOMPARE(first.movie(), movie);
    QCOMPARE(second.stackIndex(), 0);
    QCOMPARE(log.take().size(), 1);
    delete first.movie(); // before its device
    QCOMPARE(first.movie(), nullptr);
}

void tst_Movies::sourceOfTheApplication()
{
    IWMovieProviderSource *shipped = app()->getMovieProviderSource();
    QVERIFY(qobject_cast<LocalMovieSource *>(shipped));
    QCOMPARE(shipped->parent(), app());
    WMovieProvider early;
    auto source = std::make_unique<Source>();
    app()->setMovieProviderSource(source.get());
    QCOMPARE(app()->getMovieProviderSource(), source.get());
    early.fetch(QStringLiteral("a"));
    QCOMPARE(source->fetched, QStringList(QStringLiteral("a")));
    source->answer("a", gif("rg"));
    QCOMPARE(framesOf(early.movie()), QByteArray("rg"));
    source.reset();
    QCOMPARE(app()->getMovieProviderSource(), shipped);
    early.fetch(file("once.gif"));
    QTRY_COMPARE(framesOf(early.movie()), QByteArray("rgb"));
}

void tst_Movies::localSources_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("fault");
    const QString path = file("two.gif");
    const QString none;
    const auto data = [](const char *header, const QByteArray &bytes) {
        return QLatin1String("data:") + QLatin1String(header) + QLatin1Char(',') + QString::fromLatin1(bytes);
    };
    const QByteArray base64 = gif("rg").toBase64();
    QTest::newRow("path") << path << none;
    QTest::newRow("relative path") << QDir::current().relativeFilePath(path) << none;
    QTest::newRow("file URL") << QUrl::fromLocalFile(path).toString() << none;
    QTest::newRow("data, base64") << data("image/gif;base64", base64) << none;
    QTest::newRow("data, base64, percent") << data("image/gif;BASE64", base64.toPercentEncoding()) << none;
    QTest::newRow("data, percent") << data("", gif("rg").toPercentEncoding()) << none;
    write("a:b.gif", gif("rg"));
    QTest::newRow("colon in the path") << file("a:b.gif") << none;
    write("renamed.txt", gif("rg"));
    QTest::newRow("format by content") << file("renamed.txt") << none;

    QTest::newRow("http") << QStringLiteral("http://localhost/x.gif") << QStringLiteral("not a local source");
    QTest::newRow("https in capitals") << QStringLiteral("HTTPS://localhost/x.gif")
                                       << QStringLiteral("not a local source");
    QTest::newRow("ftp") << QStringLiteral("ftp://localhost/x.gif") << QStringLiteral("not a local source");
    QTest::newRow("file of another host")
        << QStringLiteral("file://elsewhere") + path << QStringLiteral("not a local source");
    QTest::newRow("empty") << QString() << QStringLiteral("not found");
    QTest::newRow("missing") << file("missing.gif") << QStringLiteral("not found");
    QTest::newRow("missing resource") << QStringLiteral("qrc:/missing.gif") << QStringLiteral("not found");
    QTest::newRow("directory") << m_dir.path() << QStringLiteral("not an ordinary file");
    QTest::newRow("device") << QStringLiteral("/dev/zero") << QStringLiteral("not an ordinary file");
    QCOMPARE(mkfifo(QFile::encodeName(file("pipe.gif")).constData(), 0600), 0);
    QTest::newRow("pipe") << file("pipe.gif") << QStringLiteral("not an ordinary file");
    QTest::newRow("file without a size") << QStringLiteral("/proc/self/status") << QStringLiteral("not a picture");
    QFile large(file("large.gif"));
    QVERIFY(large.open(QIODevice::WriteOnly));
    large.write(gif("rg"));
    QVERIFY(large.resize(LocalMovieSource::MaximumBytes + 1));
    QTest::newRow("large file") << large.fileName() << QStringLiteral("too large");
    QTest::newRow("large data") << data("", QByteArray(LocalMovieSource::MaximumBytes + 1, 'x'))
                                << QStringLiteral("too large");
    QTest::newRow("larger data") << data("", QByteArray(LocalMovieSource::MaximumBytes * 3 + 1, 'x'))
                                 << QStringLiteral("too large");
    QTest::newRow("data without a comma") << QStringLiteral("data:image/gif") << QStringLiteral("not a data URL");
    QTest::newRow("not base64") << data("image/gif;base64", "R0lGOD*") << QStringLiteral("not in base64");
    QTest::newRow("text") << data("", "hello") << QStringLiteral("not a picture");
    QTest::newRow("drawing") << data("", "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'/>")
                             << QStringLiteral("not a picture");
    // The first as all tell it, the second as only its decoder finds out.
    write("honest.gif", gif("r", QSize(5000, 1), 2, 0, QSize(5000, 5000)));
    QTest::newRow("large frames") << file("honest.gif") << QStringLiteral("a picture of 5000 x 5000");
    write("screen.gif", gif("rg", QSize(8, 8), 2, 0, QSize(16000, 16000)));
    QTest::newRow("large screen") << file("screen.gif") << QStringLiteral("a picture of 16000 x 16000");
    QTest::newRow("damaged") << data("", gif("rg").left(40).toPercentEncoding()) << QStringLiteral("a damaged picture");
    QTest::newRow("first frame damaged") << data("", withDamage(gif("rg"), 0).toPercentEncoding())
                                         << QStringLiteral("a damaged picture");
}

void tst_Movies::localSources()
{
    QFETCH(QString, source);
    QFETCH(QString, fault);
    WarningLog log;
    LocalMovieSource local;
    local.setFallbackSource(QStringLiteral("still.png"));
    QStringList heard;
    QByteArray seen;
    connect(&local, &IWMovieProviderSource::movieFetched, this, [&](WMovie *movie, QSize size, const QString &of) {
        heard << of;
        QCOMPARE(size, QSize(8, 8));
        seen = frames(movie);
    });
    connect(&local, &IWMovieProviderSource::movieFetchFailed, this,
            [&](const QString &of, const QString &fallback) { heard << of << fallback; });
    local.fetch(source);
    QVERIFY(heard.isEmpty());
    QTRY_VERIFY(!heard.isEmpty());
    const QStringList messages = log.take();
    if (fault.isEmpty()) {
        QCOMPARE(heard, QStringList(source));
        QCOMPARE(seen, QByteArray("rg"));
        QCOMPARE(messages, QStringList());
    } else {
        QCOMPARE(heard, QStringList({source, QStringLiteral("still.png")}));
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages.first().endsWith(fault), qUtf8Printable(messages.first()));
        QVERIFY(messages.first().size() < 300);
    }
}

void tst_Movies::localAnswers()
{
    LocalMovieSource local;
    QVector<QPointer<WMovie>> movies;
    connect(&local, &IWMovieProviderSource::movieFetched, this, [&](WMovie *movie) { movies << movie; });
    for (int i = 0; i < 3; ++i)
        local.fetch(file("two.gif"));
    local.fetch(file("once.gif"));
    QTRY_COMPARE(movies.size(), 2);
    processDeletions();
    QVERIFY(!movies.at(0) && !movies.at(1)); // nobody took them
    local.fetch(file("two.gif"));
    QTRY_COMPARE(movies.size(), 3);

    auto *dying = new LocalMovieSource;
    const QSignalSpy late(dying, &IWMovieProviderSource::movieFetched);
    dying->fetch(file("two.gif"));
    delete dying;
    QCoreApplication::processEvents();
    QCOMPARE(late.size(), 0);
}

void tst_Movies::localMovieOutlivesItsFile()
{
    write("going.gif", gif("rg"));
    WMovieProvider provider;
    provider.fetch(file("going.gif"));
    QTRY_COMPARE(provider.stackIndex(), 1);
    QVERIFY(QFile::remove(file("going.gif")));
    QCOMPARE(framesOf(provider.movie()), QByteArray("rg"));
}

void tst_Movies::whereItPlays_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"hide", "hide parent", "minimize", "scroll away", "hide system window", "leave window"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

void tst_Movies::whereItPlays()
{
    QFETCH(QString, how);
    QScrollArea window;
    auto *content = new QWidget;
    auto *parent = new QWidget(content);
    auto *label = new WGifLabel(parent);
    content->resize(100, 2000);
    parent->resize(100, 50);
    label->resize(50, 50);
    window.setWidget(content);
    window.resize(120, 100);
    label->setGifPath(file("two.gif"));
    label->startPlaying();
    QVERIFY(!label->isGifPlaying());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(label->isGifPlaying());
    {
        TimerEvents timers;
        QTRY_VERIFY(timers.count() >= 3);
    }
    if (how == QLatin1String("hide"))
        label->hide();
    else if (how == QLatin1String("hide parent"))
        parent->hide();
    else if (how == QLatin1String("minimize"))
        window.showMinimized();
    else if (how == QLatin1String("scroll away"))
        window.verticalScrollBar()->setValue(1000);
    else if (how == QLatin1String("hide system window"))
        window.windowHandle()->setVisible(false);
    else
        label->setParent(nullptr);
    QTRY_VERIFY(!label->isGifPlaying());
    QMovie *movie = label->findChild<QMovie *>();
    const int frame = movie->currentFrameNumber();
    {
        TimerEvents timers;
        QTest::qWait(100);
        QCOMPARE(timers.count(), 0);
    }
    QCOMPARE(movie->currentFrameNumber(), frame);
    QCOMPARE(movie->state(), QMovie::Paused);

    if (how == QLatin1String("hide"))
        label->show();
    else if (how == QLatin1String("hide parent"))
        parent->show();
    else if (how == QLatin1String("minimize"))
        window.showNormal();
    else if (how == QLatin1String("scroll away"))
        window.verticalScrollBar()->setValue(0);
    else if (how == QLatin1String("hide system window"))
        window.windowHandle()->setVisible(true);
    else {
        label->setParent(parent);
        label->show();
    }
    QTRY_VERIFY(label->isGifPlaying());
    label->stopPlaying();
    label->hide();
    label->show();
    QVERIFY(!label->isGifPlaying());
}

void tst_Movies::hundredHidden()
{
    WMovieProvider provider;
    provider.fetch(file("two.gif"));
    QTRY_COMPARE(provider.stackIndex(), 1);
    QWidget window;
    QWidget page(&window);
    for (int i = 0; i < 100; ++i) {
        if (i % 2) {
            auto *label = new WGifLabel(&page);
            label->setGifPath(file("two.gif"));
            label->startPlaying();
        } else {
            auto *button = new WGifButton(&page, QString(), QSize(), file("two.gif"), QSize(8, 8));
            button->setAccessibleName(QString::number(i));
            button->startGif();
        }
    }
    QLabel plain(&page);
    plain.setMovie(provider.movie());
    WMoviePlayback playback(&plain);
    playback.setMovie(provider.movie());
    playback.play();
    const auto timersOfAWhile = [] {
        TimerEvents timers;
        QTest::qWait(150);
        return timers.count();
    };
    QCOMPARE(timersOfAWhile(), 0); // never shown
    window.resize(50, 50);
    page.resize(50, 50);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(timersOfAWhile() > 100);
    page.hide();
    QCOMPARE(timersOfAWhile(), 0);
    int running = 0;
    const QList<QMovie *> played = page.findChildren<QMovie *>();
    for (const QMovie *movie : played)
        running += movie->state() == QMovie::Running;
    QCOMPARE(running, 0);
}

void tst_Movies::animationsDisabled()
{
    WGifLabel label;
    label.resize(30, 30);
    label.setGifPath(file("two.gif"));
    app()->setAnimationsDisabled(true);
    label.show();
    label.startPlaying();
    TimerEvents timers;
    QTest::qWait(60);
    QCOMPARE(timers.count(), 0);
    QVERIFY(!label.isGifPlaying());
    QCOMPARE(letter(label.pixmap(Qt::ReturnByValue).toImage()), 'r');

    app()->setAnimationsDisabled(false);
    QVERIFY(label.isGifPlaying());
    QVERIFY(QTest::qWaitFor([&] { return letter(label.pixmap(Qt::ReturnByValue).toImage()) == 'g'; }));
    app()->setAnimationsDisabled(true);
    QVERIFY(!label.isGifPlaying());
    QCOMPARE(letter(label.pixmap(Qt::ReturnByValue).toImage()), 'r');
    label.hide();
    app()->setAnimationsDisabled(false);
    QVERIFY(!label.isGifPlaying());
    label.show();
    QVERIFY(label.isGifPlaying());
}

void tst_Movies::endOfAMovie()
{
    WGifLabel label;
    label.resize(30, 30);
    label.setGifPath(file("once.gif"));
    label.show();
    label.startPlaying();
    QTRY_VERIFY(!label.isGifPlaying());
    QCOMPARE(letter(label.pixmap(Qt::ReturnByValue).toImage()), 'b');
    label.hide();
    label.show();
    QVERIFY(!label.isGifPlaying()); // it does not begin anew by itself
    label.startPlaying();
    QVERIFY(label.isGifPlaying());
    QCOMPARE(letter(label.pixmap(Qt::ReturnByValue).toImage()), 'r');
}

void tst_Movies::labelFrames_data()
{
    QTest::addColumn<QSize>("label");
    QTest::addColumn<QSizeF>("shown"); // of an image of 40 x 20, in device-independent pixels
    QTest::newRow("width decides") << QSize(50, 90) << QSizeF(40, 20);
    QTest::newRow("height decides") << QSize(200, 30) << QSizeF(40, 20);
    QTest::newRow("enlarged") << QSize(90, 50) << QSizeF(80, 40);
    QTest::newRow("reduced") << QSize(20, 15) << QSizeF(10, 5);
    QTest::newRow("no room") << QSize(10, 90) << QSizeF();
}

void tst_Movies::labelFrames()
{
    QFETCH(QSize, label);
    QFETCH(QSizeF, shown);
    WGifLabel gifLabel;
    gifLabel.resize(label);
    gifLabel.setGifPath(file("wide.gif"));
    gifLabel.show();
    gifLabel.startPlaying();
    const qreal ratio = gifLabel.devicePixelRatioF();
    const QPixmap pixmap = gifLabel.pixmap(Qt::ReturnByValue);
    QCOMPARE(pixmap.isNull(), shown.isEmpty());
    if (shown.isEmpty())
        return;
    QCOMPARE(QSizeF(pixmap.size()), shown * ratio);
    QCOMPARE(pixmap.devicePixelRatioF(), ratio);
    gifLabel.stopPlaying();
    gifLabel.resize(30, 90);
    QCOMPARE(QSizeF(gifLabel.pixmap(Qt::ReturnByValue).size()), QSizeF(20, 10) * ratio);
}

void tst_Movies::labelKeepsItsSize()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    auto *label = new WGifLabel;
    layout->addWidget(label);
    layout->addStretch();
    label->setGifPath(file("wide.gif"));
    QCOMPARE(label->sizeHint(), QSize(50, 30));
    label->startPlaying();
    window.show();
    for (int rounds = 0; rounds < 3; ++rounds) {
        QSignalSpy finished(label, &WGifLabel::finishedPlaying);
        QTRY_VERIFY(finished.count());
        QCOMPARE(label->width(), 50);
    }
    QVERIFY(label->minimumSizeHint().width() < 50);
}

void tst_Movies::labelRounds()
{
    WGifLabel label;
    label.resize(30, 30);
    label.setGifPath(file("two.gif"));
    QByteArray told;
    connect(label.findChild<QMovie *>(), &QMovie::frameChanged, this, [&](int frame) { told += char('0' + frame); });
    connect(&label, &WGifLabel::finishedPlaying, this, [&] { told += 'f'; });
    label.show();
    label.startPlaying();
    QTRY_VERIFY(told.size() >= 8);
    // The label heard of the frame before this test did.
    QVERIFY2(told.startsWith("0f10f10"), told.constData());
}

void tst_Movies::labelGoneWhenFinished()
{
    QPointer<WGifLabel> label = new WGifLabel;
    label->resize(30, 30);
    label->setGifPath(file("two.gif"));
    label->show();
    connect(label, &WGifLabel::finishedPlaying, this, [&] { delete label; });
    label->startPlaying();
    QTRY_VERIFY(!label);
}

void tst_Movies::labelTakesAnotherFile()
{
    WGifLabel label;
    label.resize(30, 30);
    label.setGifPath(file("two.gif"));
    label.show();
    QVERIFY(!label.isGifPlaying());
    label.startPlaying();
    QVERIFY(label.isGifPlaying());
    label.setGifPath(file("still.gif"));
    QCOMPARE(label.getGifPath(), file("still.gif"));
    QCOMPARE(letter(label.pixmap(Qt::ReturnByValue).toImage()), 'b');
    label.setGifPath(QString());
    QVERIFY(!label.isGifPlaying());
    QVERIFY(label.pixmap(Qt::ReturnByValue).isNull());
    label.setGifPath(file("two.gif"));
    QVERIFY(!label.isGifPlaying());
    label.startPlaying();
    QVERIFY(QTest::qWaitFor([&] { return letter(label.pixmap(Qt::ReturnByValue).toImage()) == 'g'; }));
}

void tst_Movies::damagedFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("shown"); // one of them
    QTest::addColumn<int>("warnings");
    const QByteArray whole = gif("rg", QSize(30, 30));
    const int second = whole.lastIndexOf("\x21\xf9");
    const QByteArray empty("-");
    QTest::newRow("missing") << empty << empty << 1;
    QTest::newRow("empty") << QByteArray() << empty << 1;
    QTest::newRow("text") << QByteArray("no picture") << empty << 1;
    QTest::newRow("header") << whole.left(13) << empty << 1;
    QTest::newRow("first frame damaged") << withDamage(whole, 0) << empty << 1;
    QTest::newRow("second frame damaged") << withDamage(whole, 1) << QByteArray("r") << 0;
    QTest::newRow("cut in the second frame") << whole.left(second + 60) << QByteArray("rg") << 0;
    QTest::newRow("rubbish after the first") << whole.left(second) + QByteArray(100, '\x55') << QByteArray("r") << 0;
}

void tst_Movies::damagedFiles()
{
    QFETCH(QByteArray, bytes);
    WarningLog log;
    QFile::remove(file("damaged.gif"));
    if (bytes != "-")
        write("damaged.gif", bytes);
    WGifLabel label;
    label.resize(30, 30);
    label.show();
    label.setGifPath(file("damaged.gif"));
    label.startPlaying();
    QTest::qWait(150);
    label.startPlaying();
    QTest::qWait(50);
    QFETCH(QByteArray, shown);
    QVERIFY(shown.contains(letter(label.pixmap(Qt::ReturnByValue).toImage())));
    const QStringList messages = log.take();
    QTEST(messages.size(), "warnings");
    for (const QString &message : messages)
        QVERIFY2(message.startsWith(QStringLiteral("WMovie - Unable to play")), qUtf8Printable(message));
}

void tst_Movies::buttonPlays_data()
{
    QTest::addColumn<QEvent::Type>("start");
    QTest::addColumn<QEvent::Type>("stop");
    QTest::newRow("mouse") << QEvent::Enter << QEvent::Leave;
    QTest::newRow("focus") << QEvent::FocusIn << QEvent::FocusOut;
}

void tst_Movies::buttonPlays()
{
    QFETCH(QEvent::Type, start);
    QFETCH(QEvent::Type, stop);
    WGifButton button(nullptr, file("still.gif"), QSize(20, 20), file("two.gif"), QSize(16, 16));
    button.setAccessibleName(QStringLiteral("wave"));
    button.move(300, 300); // away from the mouse
    button.show();
    const auto send = [&](QEvent::Type type) {
        if (type == QEvent::FocusIn || type == QEvent::FocusOut) {
            QFocusEvent event(type, Qt::TabFocusReason);
            QCoreApplication::sendEvent(&button, &event);
        } else {
            QEvent event(type);
            QCoreApplication::sendEvent(&button, &event);
        }
    };
    const auto shown = [&] {
        return letter(button.findChild<QLabel *>()->pixmap(Qt::ReturnByValue).toImage());
    };
    send(stop);
    QCOMPARE(shown(), 'b');
    for (int i = 0; i < 2; ++i) {
        send(start);
        QCOMPARE(shown(), 'r');
        QVERIFY(QTest::qWaitFor([&] { return shown() == 'g'; }));
        QPointer<QMovie> movie = button.findChild<QMovie *>();
        send(start);
        QCOMPARE(button.findChild<QMovie *>(), movie.data());
        send(stop);
        QCOMPARE(shown(), 'b');
        QVERIFY(!button.findChild<QMovie *>());
        processDeletions();
        QVERIFY(!movie);
    }
    // What is hidden is not always left by the mouse.
    button.setFocusPolicy(Qt::NoFocus);
    button.startGif();
    QCOMPARE(shown(), 'r');
    button.hide();
    button.show();
    QCOMPARE(shown(), 'b');
    // A button that is disabled rests.
    send(start);
    button.setEnabled(false);
    QCOMPARE(shown(), 'b');
    send(QEvent::Enter);
    QCOMPARE(shown(), 'b');
    button.setEnabled(true);
    app()->setAnimationsDisabled(true);
    send(start);
    QCOMPARE(shown(), 'r');
    QVERIFY(button.findChild<QMovie *>()->state() != QMovie::Running);
}

void tst_Movies::buttonPictures_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_Movies::buttonPictures()
{
    QFETCH(Qt::LayoutDirection, direction);
    WGifButton button(nullptr, file("still.gif"), QSize(20, 20), file("wide.gif"), QSize(30, 30));
    button.setLayoutDirection(direction);
    button.setAccessibleName(QStringLiteral("wave"));
    QVERIFY(button.sizeHint().width() >= 42 && button.sizeHint().height() >= 42);
    button.resize(61, 50);
    const int ratio = qRound(button.devicePixelRatioF());
    const auto extent = [&](char color) {
        const QImage image = button.grab().toImage();
        QRect found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (letter(image.pixelColor(x, y)) == color)
                    found |= QRect(x, y, 1, 1);
            }
        }
        return found;
    };
    QCOMPARE(extent('b'), QRect(20 * ratio, 15 * ratio, 20 * ratio, 20 * ratio));
    app()->setAnimationsDisabled(true);
    button.show();
    button.startGif();
    QCOMPARE(extent('r'), QRect(15 * ratio, ratio == 1 ? 18 : 35, 30 * ratio, 15 * ratio));
}

void tst_Movies::buttonAtRest_data()
{
    QTest::addColumn<QString>("still");
    QTest::addColumn<QString>("animation");
    QTest::addColumn<char>("shown");
    QTest::addColumn<int>("warnings");
    QTest::newRow("no paths") << QString() << QString() << '-' << 0;
    QTest::newRow("no animation") << file("still.gif") << QString() << 'b' << 0;
    QTest::newRow("no still") << QString() << file("two.gif") << '-' << 0;
    QTest::newRow("missing still") << file("missing") << file("two.gif") << '-' << 1;
    QTest::newRow("missing animation") << file("still.gif") << file("missing") << 'b' << 1;
}

void tst_Movies::buttonAtRest()
{
    QFETCH(QString, still);
    QFETCH(QString, animation);
    WarningLog log;
    QPointer<WGifButton> button = new WGifButton(nullptr, still, QSize(20, 20), animation, QSize(20, 20));
    button->setAccessibleName(QStringLiteral("wave"));
    button->show();
    for (int i = 0; i < 3; ++i) {
        button->startGif();
        QTest::qWait(10);
        button->stopGif();
    }
    QTEST(letter(button->findChild<QLabel *>()->pixmap(Qt::ReturnByValue).toImage()), "shown");
    QTEST(log.take().size(), "warnings");
    button->startGif();
    delete button;
    processDeletions();
}

void tst_Movies::buttonBadge()
{
    WGifButton button(nullptr, file("still.gif"), QSize(40, 40), file("two.gif"), QSize(40, 40));
    button.setAccessibleName(QStringLiteral("wave"));
    button.resize(40, 40);
    const auto corner = [&] {
        return button.grab().toImage().pixelColor(qRound(35 * button.devicePixelRatioF()), 5);
    };
    QCOMPARE(letter(corner()), 'b');
    app()->setColorSets({{"badge-background", plainSet("badge-background", Qt::green)}});
    button.setBadgeVisible(true);
    QCOMPARE(letter(corner()), 'g');
    app()->setColorSets({});
}

void tst_Movies::accessibility()
{
    WarningLog log;
    WGifLabel label;
    label.setAccessibleName(QStringLiteral("dancing bear"));
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&label);
    QCOMPARE(interface->role(), QAccessible::Animation);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("dancing bear"));
    WGifButton button(nullptr, file("still.gif"), QSize(20, 20));
    button.setToolTip(QStringLiteral("wave"));
    interface = QAccessible::queryAccessibleInterface(&button);
    QCOMPARE(interface->role(), QAccessible::Button);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("wave"));
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(clicked.count(), 1);
    button.show();
    QCOMPARE(log.take(), QStringList());
#ifndef QT_NO_DEBUG
    WGifButton unnamed(nullptr, file("still.gif"), QSize(20, 20));
    unnamed.show();
    QCOMPARE(log.take().size(), 1);
#endif
}

W_TEST_MAIN(tst_Movies)
#include "tst_movies.moc"
