#include <UiElements/emoji/EmojiResources.h>

#include <UiElements/emoji/EmojiData.h>
#include <UiElements/emoji/EmojiImages_p.h>

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QResource>

#include <cmath>
#include <dlfcn.h>

namespace {

struct Registration
{
    QString file;
    bool isTried = false;
    bool isRegistered = false;
};

Registration &registration()
{
    static Registration state;
    return state;
}

QString fileBesideTheLibrary()
{
    static const char here = 0;
    Dl_info library;
    if (!dladdr(&here, &library) || !library.dli_fname)
        return {};
    // The link that a program is started through may lie elsewhere.
    const QDir folder = QFileInfo(QFileInfo(QFile::decodeName(library.dli_fname)).canonicalFilePath()).dir();
    QString path;
    // As seen from the library: where the build puts the file, and where it is installed.
    const QStringList candidates = QStringLiteral(UIELEMENTS_EMOJI_FILES).split(QLatin1Char(':'));
    for (const QString &candidate : candidates) {
        path = QDir::cleanPath(folder.absoluteFilePath(candidate));
        if (QFileInfo::exists(path))
            break;
    }
    return path;
}

} // namespace

QString EmojiPicker::EmojiResources::file()
{
    Registration &state = registration();
    if (state.file.isEmpty()) {
        state.file = QFile::decodeName(qgetenv("UIELEMENTS_EMOJIS"));
        if (state.file.isEmpty())
            state.file = fileBesideTheLibrary();
    }
    return state.file;
}

bool EmojiPicker::EmojiResources::setFile(const QString &path)
{
    Registration &state = registration();
    if (state.isRegistered && path == state.file)
        return true;
    if (!QResource::registerResource(path)) {
        qWarning() << "EmojiResources::setFile - No resource file" << path;
        return false;
    }
    if (state.isRegistered)
        QResource::unregisterResource(state.file);
    state = {path, true, true};
    EmojiImages::forget();
    return true;
}

bool EmojiPicker::EmojiResources::ensureRegistered()
{
    Registration &state = registration();
    if (state.isTried)
        return state.isRegistered;
    state.isTried = true;
    state.isRegistered = QResource::registerResource(file());
    if (!state.isRegistered && !QFileInfo::exists(ImageFolder))
        qWarning() << "EmojiResources - Emoji are shown as text, no images in" << file();
    return state.isRegistered;
}

QString EmojiPicker::EmojiResources::imagePath(const QString &emoji)
{
    const EmojiImage *image = EmojiImages::find(emoji);
    return image ? image->path : QString();
}

QImage EmojiPicker::EmojiResources::image(const QString &emoji, int edge, qreal devicePixelRatio)
{
    const EmojiImage *found = EmojiImages::find(emoji);
    if (!found)
        return {};
    const int pixels = int(std::lround(edge * devicePixelRatio));
    QImage image = EmojiImages::render(found->path, QSize(pixels, pixels));
    if (!image.isNull())
        image.setDevicePixelRatio(devicePixelRatio);
    return image;
}
