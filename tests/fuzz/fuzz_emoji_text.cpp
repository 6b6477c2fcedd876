// Texts of strangers: to rich text, into a document, and back.
//
// The first byte chooses the format of the tags; the rest is UTF-16, so that halves of surrogates occur. There are no
// images but the ones made here: what is an emoji is decided as in the library.

#include <UiElements/emoji/EmojiConverter.h>
#include <UiElements/emoji/EmojiImages_p.h>
#include <UiElements/emoji/EmojiResources.h>

#include <QGuiApplication>
#include <QTextDocument>

#include <cstdint>
#include <cstdlib>
#include <cstring>

using EmojiPicker::EmojiConverter;

// Without emojis.rcc: nothing to register.
bool EmojiPicker::EmojiResources::ensureRegistered()
{
    return true;
}

namespace {

void check(bool holds)
{
    if (!holds)
        abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QGuiApplication *app = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        static int argc = 1;
        static char name[] = "fuzz_emoji_text";
        static char *argv[] = {name, nullptr};
        return new QGuiApplication(argc, argv); // never deleted, as there is no end to delete it at
    }();
    Q_UNUSED(app)
    if (size < 1)
        return 0;

    QString text(int((size - 1) / 2), Qt::Uninitialized);
    std::memcpy(text.data(), data + 1, size_t(text.size()) * sizeof(QChar));
    EmojiConverter converter(20, data[0] % 2);
    const QString rich = converter.toRichText(text);
    check(EmojiConverter::toPlainText(rich) == text);
    const int tags =
        converter.usedFiles().size() + rich.count(QStringLiteral("<br>")) + 2 * rich.count(QStringLiteral("</span>"));
    check(rich.count(QLatin1Char('<')) == tags && rich.count(QLatin1Char('>')) == tags);

    // Read as if it were ours already.
    const QString converted = converter.convert(text);
    if (!text.contains(QLatin1Char('<')))
        check(EmojiConverter::htmlToPlainText(converted) == text);
    check(EmojiConverter::htmlToPlainText(text).size() <= text.size());
    check(EmojiConverter::toPlainText(text).size() <= text.size());
    check(EmojiConverter::imageTagToText(text).size() <= text.size());

    QTextDocument document;
    document.setHtml(rich);
    EmojiConverter::insertEmojiImages(&document, 0, 2);
    document.setPlainText(text);
    EmojiConverter::insertEmojiImages(&document, 20, 1);
    return 0;
}
