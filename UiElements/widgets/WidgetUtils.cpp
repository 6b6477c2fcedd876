#include "WidgetUtils.h"

#include <QDataStream>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMainWindow>
#include <QMargins>
#include <QSaveFile>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

namespace {

const QLatin1String GeometryMember("geometry");
const QLatin1String StateMember("WindowState");

// The state of a main window with many docks is a few kilobytes.
constexpr qint64 MostBytes = 1024 * 1024;

constexpr Qt::WindowStates RememberedStates = Qt::WindowMaximized | Qt::WindowFullScreen;
constexpr int KnownStates = Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowActive;

bool isUsableWindow(const QWidget *widget, const char *method)
{
    if (!widget) {
        qWarning().nospace() << "WidgetUtils::" << method << " - The window is null";
        return false;
    }
    if (!widget->isWindow()) {
        qWarning().nospace() << "WidgetUtils::" << method << " - Not a window: " << widget->metaObject()->className()
                             << " " << widget->objectName();
        return false;
    }
    return true;
}

void reportFile(const char *method, const QString &filePath, const QString &problem)
{
    qWarning().nospace().noquote() << "WidgetUtils::" << method << " - \"" << filePath << "\": " << problem;
}

struct FileContent
{
    QJsonObject members; // none where there is no file
    QString problem; // empty when the file is fine, or missing
    bool damaged = false; // of the problems, the one that replacing the file cures
};

FileContent readFile(const QString &filePath)
{
    FileContent content;
    const QFileInfo info(filePath);
    if (filePath.isEmpty()) {
        content.problem = QStringLiteral("The path is empty");
        return content;
    }
    if (!info.exists())
        return content;
    // Opening a pipe would wait for somebody to write to it.
    if (!info.isFile()) {
        content.problem = QStringLiteral("Not a file");
        return content;
    }
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly)) {
        content.problem = file.errorString();
        return content;
    }
    const QByteArray bytes = file.read(MostBytes + 1);
    if (file.error() != QFileDevice::NoError) {
        content.problem = file.errorString();
        return content;
    }
    if (bytes.size() > MostBytes) {
        content.problem = QStringLiteral("Too large for a geometry file");
        return content;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError) {
        content.problem = QStringLiteral("%1 at offset %2").arg(error.errorString()).arg(error.offset);
        content.damaged = true;
    } else if (!document.isObject()) {
        content.problem = QStringLiteral("Not a JSON object");
    }
    content.members = document.object();
    return content;
}

QString textOf(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

std::optional<QByteArray> bytesOf(const QJsonValue &text)
{
    auto result = QByteArray::fromBase64Encoding(text.toString().toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    if (!result || result.decoded.isEmpty())
        return std::nullopt;
    return std::move(result.decoded);
}

struct SavedGeometry
{
    QByteArray bytes;
    QRect normal; // invalid if the window had not been shown
    QMargins frame;
    bool maximized = false;
    bool fullScreen = false;
};

bool isPlausible(const QRect &rect)
{
    const auto fits = [](int coordinate) {
        return coordinate >= -QWIDGETSIZE_MAX && coordinate <= QWIDGETSIZE_MAX;
    };
    return fits(rect.left()) && fits(rect.top()) && fits(rect.right()) && fits(rect.bottom());
}

QMargins marginsBetween(const QRect &outer, const QRect &inner)
{
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

// QWidget::restoreGeometry() does not look whether the bytes end too early: what is missing it takes as zero. So they
// are read here first, in the layout that has been the same since Qt 4.2 but for the two additions.
std::optional<SavedGeometry> readGeometry(const QJsonValue &text)
{
    constexpr quint32 Magic = 0x1D9D0CB;
    constexpr quint16 NewestVersion = 3;
    constexpr int WidestFrame = 256;

    const std::optional<QByteArray> bytes = bytesOf(text);
    if (!bytes)
        return std::nullopt;
    QDataStream stream(*bytes);
    stream.setVersion(QDataStream::Qt_4_0);

    quint32 magic = 0;
    quint16 version = 0, minorVersion = 0;
    QRect outer, normal, inner;
    qint32 screenNumber = 0, screenWidth = 0;
    quint8 maximized = 0, fullScreen = 0;
    stream >> magic >> version >> minorVersion >> outer >> normal >> screenNumber >> maximized >> fullScreen;
    if (version >= 2)
        stream >> screenWidth;
    if (version >= 3)
        stream >> inner;
    if (stream.status() != QDataStream::Ok || magic != Magic || version < 1 || version > NewestVersion)
        return std::nullopt;
    if (!isPlausible(outer) || !isPlausible(normal) || !isPlausible(inner))
        return std::nullopt;

    SavedGeometry geometry {*bytes, normal, {}, maximized != 0, fullScreen != 0};
    if (inner.isValid() && outer.contains(inner)) {
        const QMargins frame = marginsBetween(outer, inner);
        if (std::max({frame.left(), frame.top(), frame.right(), frame.bottom()}) <= WidestFrame)
            geometry.frame = frame;
    }
    return geometry;
}

QList<QRect> availableGeometries()
{
    QList<QRect> geometries;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        geometries << screen->availableGeometry();
    return geometries;
}

QMargins frameOf(const QWidget *window)
{
    return marginsBetween(window->frameGeometry(), window->geometry());
}

void fitToScreens(QWidget *window, const QMargins &frame)
{
    if (window->isMaximized() || window->isFullScreen())
        return;
    const QRect outer = window->geometry().marginsAdded(frame);
    const QRect fitted = WidgetUtils::fittedToScreen(outer, availableGeometries());
    if (fitted != outer)
        window->setGeometry(fitted.marginsRemoved(frame));
}

void setRememberedStates(QWidget *window, Qt::WindowStates states)
{
    window->setWindowState((window->windowState() & ~RememberedStates) | (states & RememberedStates));
}

void apply(const SavedGeometry &saved, QWidget *window)
{
    if (window->restoreGeometry(saved.bytes))
        return;
    // The bytes are sound, so Qt has declined because the screen is now much wider or narrower than it was. Somebody
    // who has unplugged a monitor still wants the window where it was, as far as that is possible.
    setRememberedStates(window, Qt::WindowNoState);
    if (saved.normal.isValid()) {
        const QRect outer = saved.normal.marginsAdded(saved.frame);
        window->setGeometry(WidgetUtils::fittedToScreen(outer, availableGeometries()).marginsRemoved(saved.frame));
    }
    Qt::WindowStates states;
    states.setFlag(Qt::WindowMaximized, saved.maximized);
    states.setFlag(Qt::WindowFullScreen, saved.fullScreen);
    setRememberedStates(window, states);
}

// Walks over one dock area in the bytes of QMainWindow::saveState(). At what is not understood the stream is set to an
// error: there Qt gives up as well. False where areas are nested deeper than anybody nests them, for this is recursive.
bool skipDockArea(QDataStream &stream, int depth = 0)
{
    enum Marker : quint8 { Tabs = 0xfa, Widget = 0xfb, Sequence = 0xfc };
    constexpr int DeepestNesting = 100;
    if (depth > DeepestNesting)
        return false;

    quint8 marker = 0, orientation = 0;
    qint32 number = 0, count = 0;
    stream >> marker;
    if (marker == Tabs)
        stream >> number;
    else if (marker != Sequence)
        stream.setStatus(QDataStream::ReadCorruptData);
    stream >> orientation >> count;
    for (qint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        stream >> marker;
        if (marker == Widget) {
            QString name;
            quint8 flags = 0;
            stream >> name >> flags;
        } else if (marker != Sequence) {
            stream.setStatus(QDataStream::ReadCorruptData);
        }
        for (int value = 0; value < 4; ++value)
            stream >> number;
        if (marker == Sequence && !skipDockArea(stream, depth + 1))
            return false;
    }
    return true;
}

// QMainWindow::restoreState() refuses most of what is wrong. But it takes the numbers of the dock areas as indexes, and
// crashes on one that is none of the four; and it counts tool bars to the end also where the bytes have long run out,
// which takes minutes for two thousand million.
bool isSafeForQt(const QByteArray &state)
{
    QDataStream stream(state);
    qint32 magic = 0, version = 0, number = 0, count = 0;
    quint8 marker = 0;
    QSize size;
    stream >> magic >> version >> marker >> count;
    for (qint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        stream >> number >> size;
        if (number < 0 || number > 3 || !skipDockArea(stream))
            return false;
    }

    qint32 lines = 0;
    stream >> size;
    for (int corner = 0; corner < 4; ++corner)
        stream >> number;
    stream >> marker >> lines;
    constexpr quint8 ToolBars = 0xfc;
    if (marker != ToolBars)
        return true;
    const auto canHold = [&stream](qint32 items) {
        return items <= stream.device()->bytesAvailable();
    };
    if (!canHold(lines))
        return false;
    for (qint32 line = 0; line < lines && stream.status() == QDataStream::Ok; ++line) {
        stream >> number >> count;
        if (!canHold(count))
            return false;
        for (qint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
            QString name;
            quint8 shown = 0;
            stream >> name >> shown;
            for (int value = 0; value < 4; ++value)
                stream >> number;
        }
    }
    return true;
}

// One side of a rectangle. In 64 bits: coordinates that a caller has read from somewhere may be at the limits of an
// int.
struct Span
{
    qint64 first;
    qint64 last;

    qint64 length() const { return last - first + 1; }
    qint64 overlap(const Span &other) const
    {
        return std::max<qint64>(0, std::min(last, other.last) - std::max(first, other.first) + 1);
    }
    qint64 distance(const Span &other) const
    {
        return std::max<qint64>(0, std::max(first, other.first) - std::min(last, other.last));
    }
    Span fittedInto(const Span &room) const
    {
        const qint64 newLength = std::min(length(), room.length());
        const qint64 newFirst = std::clamp(first, room.first, room.last - newLength + 1);
        return {newFirst, newFirst + newLength - 1};
    }
};

Span horizontal(const QRect &rect)
{
    return {rect.left(), rect.right()};
}

Span vertical(const QRect &rect)
{
    return {rect.top(), rect.bottom()};
}

} // namespace

bool WidgetUtils::saveGeometry(const QWidget *window, const QString &filePath)
{
    if (!isUsableWindow(window, "saveGeometry"))
        return false;

    FileContent content = readFile(filePath);
    if (!content.problem.isEmpty()) {
        reportFile("saveGeometry", filePath, content.problem);
        if (!content.damaged)
            return false;
    }

    content.members.insert(GeometryMember, textOf(window->saveGeometry()));
    if (const auto *mainWindow = qobject_cast<const QMainWindow *>(window))
        content.members.insert(StateMember, textOf(mainWindow->saveState()));
    else
        content.members.insert(StateMember, int(window->windowState() & RememberedStates));

    // What cannot be created shows when the file is opened.
    QDir().mkpath(QFileInfo(filePath).absolutePath());
    QSaveFile file(filePath);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(content.members).toJson());
        if (file.commit())
            return true;
    }
    reportFile("saveGeometry", filePath, file.errorString());
    return false;
}

bool WidgetUtils::restoreGeometry(QWidget *window, const QString &filePath)
{
    if (!isUsableWindow(window, "restoreGeometry"))
        return false;
    const auto refuse = [&filePath](const QString &problem) {
        reportFile("restoreGeometry", filePath, problem);
        return false;
    };

    const FileContent content = readFile(filePath);
    if (!content.problem.isEmpty())
        return refuse(content.problem);
    if (!content.members.contains(GeometryMember))
        return false;
    const std::optional<SavedGeometry> geometry = readGeometry(content.members.value(GeometryMember));
    if (!geometry)
        return refuse(QStringLiteral("Invalid \"geometry\""));

    const QString invalidState = QStringLiteral("Invalid \"WindowState\"");
    const QJsonValue state = content.members.value(StateMember);
    auto *mainWindow = qobject_cast<QMainWindow *>(window);
    if (state.isUndefined()) {
        apply(*geometry, window);
    } else if (mainWindow) {
        // Once before the geometry, because only the attempt shows whether the state is sound, and a refused one
        // changes nothing. Once more behind it, because the sizes of the docks are shares of the window's size.
        const std::optional<QByteArray> bytes = bytesOf(state);
        if (!bytes || !isSafeForQt(*bytes) || !mainWindow->restoreState(*bytes))
            return refuse(invalidState);
        apply(*geometry, window);
        mainWindow->restoreState(*bytes);
    } else {
        // What is no whole number becomes -1, which has unknown bits.
        const int states = state.toInt(-1);
        if (states & ~KnownStates)
            return refuse(invalidState);
        apply(*geometry, window);
        setRememberedStates(window, Qt::WindowStates(states));
    }

    // Before its first show a window has no frame yet: it will be the one it had.
    fitToScreens(window, window->isVisible() ? frameOf(window) : geometry->frame);
    return true;
}

void WidgetUtils::keepOnScreen(QWidget *widget)
{
    if (isUsableWindow(widget, "keepOnScreen"))
        fitToScreens(widget, frameOf(widget));
}

QRect WidgetUtils::fittedToScreen(const QRect &frame, const QList<QRect> &availableGeometries)
{
    if (frame.isEmpty())
        return frame;

    const Span across = horizontal(frame);
    const Span down = vertical(frame);
    const QRect *best = nullptr;
    std::tuple<double, double, int> bestRank; // area, closeness, left edge
    for (const QRect &candidate : availableGeometries) {
        if (candidate.isEmpty())
            continue;
        // Areas and squares are beyond 64 bits at the limits.
        const double area = double(across.overlap(horizontal(candidate))) * double(down.overlap(vertical(candidate)));
        const double dx = double(across.distance(horizontal(candidate)));
        const double dy = double(down.distance(vertical(candidate)));
        const std::tuple rank(area, -(dx * dx + dy * dy), candidate.left());
        if (!best || rank > bestRank) {
            best = &candidate;
            bestRank = rank;
        }
    }
    if (!best)
        return frame;

    const Span newAcross = across.fittedInto(horizontal(*best));
    const Span newDown = down.fittedInto(vertical(*best));
    return QRect(QPoint(int(newAcross.first), int(newDown.first)), QPoint(int(newAcross.last), int(newDown.last)));
}
