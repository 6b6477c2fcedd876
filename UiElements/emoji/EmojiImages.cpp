#include <UiElements/emoji/EmojiImages_p.h>

#include <UiElements/emoji/EmojiData.h>
#include <UiElements/emoji/EmojiResources.h>
#include <UiElements/icons/SvgScan_p.h>

#include <QCache>
#include <QFile>
#include <QPainter>
#include <QPair>
#include <QSvgRenderer>

#include <cstring>
#include <deque>
#include <memory>
#include <vector>

namespace {

constexpr int LongestRemembered = 32; // code units; the longest emoji take 15
constexpr std::size_t RemembersWithoutImage = 4096; // what strangers write must not fill the memory
constexpr int PictureBytes = 4 * 1024 * 1024;
constexpr int LargestEdge = 2048;

struct Entry
{
    quint64 hash;
    QString text;
    std::unique_ptr<EmojiImage> image;
};

// The sequences of characters that were asked about. Made for being asked again: that is most of what a conversion
// does.
class Table
{
public:
    QCache<QPair<QString, qint64>, QImage> pictures {PictureBytes};
    std::size_t withoutImage = 0;

    static quint64 hash(QStringView text)
    {
        const char *bytes = reinterpret_cast<const char *>(text.data());
        std::size_t left = std::size_t(text.size()) * sizeof(QChar);
        quint64 hash = left;
        while (left > 0) {
            quint64 part = 0;
            const std::size_t taken = qMin(left, sizeof(part));
            std::memcpy(&part, bytes, taken);
            hash = (hash ^ part) * Q_UINT64_C(0x9e3779b97f4a7c15);
            hash ^= hash >> 32;
            bytes += taken;
            left -= taken;
        }
        return hash;
    }

    const Entry *find(quint64 hash, QStringView text) const
    {
        for (std::size_t i = hash & m_mask; m_slots[i]; i = (i + 1) & m_mask) {
            if (m_slots[i]->hash == hash && m_slots[i]->text == text)
                return m_slots[i];
        }
        return nullptr;
    }

    const Entry *add(Entry entry)
    {
        m_entries.push_back(std::move(entry));
        if (m_entries.size() * 2 > m_slots.size())
            resize(m_slots.size() * 2);
        else
            place(&m_entries.back());
        return &m_entries.back();
    }

    // What a converter still names is kept.
    void forget()
    {
        for (Entry &entry : m_entries) {
            if (entry.image)
                m_retired.push_back(std::move(entry.image));
        }
        m_entries.clear();
        withoutImage = 0;
        resize(m_slots.size());
        pictures.clear();
    }

private:
    void resize(std::size_t size)
    {
        m_slots.assign(size, nullptr);
        m_mask = size - 1;
        for (const Entry &entry : m_entries)
            place(&entry);
    }
    void place(const Entry *entry)
    {
        std::size_t i = entry->hash & m_mask;
        while (m_slots[i])
            i = (i + 1) & m_mask;
        m_slots[i] = entry;
    }

    std::deque<Entry> m_entries;
    std::vector<const Entry *> m_slots = std::vector<const Entry *>(1024);
    std::size_t m_mask = 1023;
    std::vector<std::unique_ptr<EmojiImage>> m_retired;
};

Table &table()
{
    static Table instance;
    return instance;
}

// A host may take its images from anywhere, and Qt's parser reads other files where a document asks for them.
bool isValid(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray document = file.readAll();
    return scanSvg(document).verdict == SvgScan::Fine && QSvgRenderer(document).isValid();
}

std::unique_ptr<EmojiImage> look(const QString &text)
{
    EmojiPicker::EmojiResources::ensureRegistered();
    const QString path = EmojiPicker::ImageFolder + EmojiImages::code(text) + QLatin1String(".svg");
    if (!QFile::exists(path) || !isValid(path))
        return nullptr;
    return std::make_unique<EmojiImage>(
        EmojiImage {text, path, QLatin1String("<img src=\"qrc") + path, text + QLatin1String("\">")});
}

} // namespace

QString EmojiImages::code(QStringView text)
{
    QString code;
    for (qsizetype i = 0; i < text.size(); ++i) {
        uint point = text[i].unicode();
        if (QChar::isHighSurrogate(point) && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            point = QChar::surrogateToUcs4(ushort(point), text[++i].unicode());
        if (!code.isEmpty())
            code += QLatin1Char('-');
        if (point >= 0x10 && point <= 0xff)
            code += QLatin1String("00");
        code += QString::number(point, 16);
    }
    return code;
}

const EmojiImage *EmojiImages::find(QStringView text)
{
    if (text.isEmpty() || text.size() > LongestRemembered)
        return nullptr;
    Table &known = table();
    const quint64 hash = Table::hash(text);
    const Entry *entry = known.find(hash, text);
    if (!entry) {
        Entry added {hash, text.toString(), nullptr};
        added.image = look(added.text);
        if (!added.image && ++known.withoutImage > RemembersWithoutImage)
            return nullptr;
        entry = known.add(std::move(added));
    }
    return entry->image.get();
}

QImage EmojiImages::render(const QString &path, const QSize &pixels)
{
    if (pixels.isEmpty() || pixels.width() > LargestEdge || pixels.height() > LargestEdge)
        return {};
    auto &pictures = table().pictures;
    const QPair<QString, qint64> wanted(path, (qint64(pixels.width()) << 32) | pixels.height());
    if (const QImage *picture = pictures.object(wanted))
        return *picture;
    QSvgRenderer renderer(path);
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QRectF target(QPointF(), renderer.viewBoxF().size().scaled(pixels, Qt::KeepAspectRatio));
    target.moveCenter(QRectF(QPointF(), pixels).center());
    renderer.render(&painter, target);
    painter.end();
    pictures.insert(wanted, new QImage(image), int(image.sizeInBytes()));
    return image;
}

void EmojiImages::forget()
{
    table().forget();
}
