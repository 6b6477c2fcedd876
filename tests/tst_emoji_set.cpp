#include "support/WarningLog.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QResource>
#include <QSet>
#include <QSvgRenderer>
#include <QTest>
#include <QTranslator>

// The file of emoji that the library ships, read without the library.
class tst_EmojiSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void catalogue();
    void everyImage();
    void everyTranslation_data();
    void everyTranslation();

private:
    QJsonObject m_emojis;
    QJsonArray m_categories;
};

namespace {

const auto catalogueFile = QStringLiteral(":/emoji-data/emoji.json");
const auto context = "EmojiLocalisation";

} // namespace

void tst_EmojiSet::initTestCase()
{
    QVERIFY(QResource::registerResource(QStringLiteral(UIELEMENTS_EMOJI_RCC)));
    QFile file(catalogueFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
    m_emojis = root.value(QLatin1String("emojis")).toObject();
    m_categories = root.value(QLatin1String("categories")).toArray();
    QVERIFY(m_emojis.size() > 1900);
    // Read where they lie, without being unpacked.
    QCOMPARE(QResource(catalogueFile).compressionAlgorithm(), QResource::NoCompression);
}

void tst_EmojiSet::catalogue()
{
    const auto named = [this](const char *name) {
        return m_emojis.value(QLatin1String(name)).toObject();
    };
    QCOMPARE(named("+1").value(QLatin1String("b")).toString(), QStringLiteral("1F44D"));
    QCOMPARE(named("+1").value(QLatin1String("a")).toString(), QStringLiteral("thumbs up"));
    QVERIFY(named("wink").value(QLatin1String("j")).toArray().contains(QStringLiteral(";)")));

    // No two emoji stand in one cell, and none stands for two categories.
    QSet<QPair<int, int>> cells;
    int tones = 0;
    for (const QJsonValue &value : qAsConst(m_emojis)) {
        const QJsonArray cell = value.toObject().value(QLatin1String("k")).toArray();
        QCOMPARE(cell.size(), 2);
        cells.insert({cell.at(0).toInt(-1), cell.at(1).toInt(-1)});
        const QJsonObject variations = value.toObject().value(QLatin1String("skin_variations")).toObject();
        for (const QJsonValue &variation : variations) {
            cells.insert(
                {variation[QLatin1String("sheet_x")].toInt(-1), variation[QLatin1String("sheet_y")].toInt(-1)});
            ++tones;
        }
    }
    QCOMPARE(cells.size(), m_emojis.size() + tones);
    QVERIFY(tones > 1500);
    for (const auto &cell : qAsConst(cells))
        QVERIFY(cell.first >= 0 && cell.second >= 0);

    QSet<QString> listed;
    QStringList toned;
    for (const QJsonValue &category : qAsConst(m_categories)) {
        QVERIFY(!category[QLatin1String("id")].toString().isEmpty());
        QVERIFY(!category[QLatin1String("name")].toString().isEmpty());
        if (category[QLatin1String("has_skin_variantions")].toBool())
            toned += category[QLatin1String("id")].toString();
        const QJsonArray names = category[QLatin1String("emojis")].toArray();
        for (const QJsonValue &name : names) {
            QVERIFY2(m_emojis.contains(name.toString()), qPrintable(name.toString()));
            QVERIFY2(!listed.contains(name.toString()), qPrintable(name.toString()));
            listed.insert(name.toString());
        }
    }
    QCOMPARE(m_categories.size(), 8);
    QCOMPARE(toned, QStringList(QStringLiteral("people")));
    QCOMPARE(listed.size(), m_emojis.size() - 5); // the bare skin tones are nothing to choose from
}

void tst_EmojiSet::everyImage()
{
    WarningLog log;
    const QStringList names = QDir(QStringLiteral(":/emojis")).entryList();
    QVERIFY(names.size() > 5000);
    for (const QString &name : names) {
        QSvgRenderer renderer(QStringLiteral(":/emojis/") + name);
        QVERIFY2(renderer.isValid(), qPrintable(name));
        QVERIFY2(renderer.viewBoxF().size() == QSizeF(36, 36), qPrintable(name)); // else it is stretched
        QImage image(12, 12, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter);
        painter.end();
        int marks = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                marks += qAlpha(image.pixel(x, y)) > 100 ? 1 : 0;
        }
        QVERIFY2(marks >= 10, qPrintable(name));
    }
    QCOMPARE(log.take(), QStringList());
}

void tst_EmojiSet::everyTranslation_data()
{
    QTest::addColumn<QString>("redHeart");
    QTest::addColumn<QString>("arrow"); // a keyword that is no name

    QTest::newRow("ar") << QStringLiteral("قلب أحمر") << QStringLiteral("سهم");
    QTest::newRow("de") << QStringLiteral("rotes Herz") << QStringLiteral("Pfeil");
    QTest::newRow("es") << QStringLiteral("corazón rojo") << QStringLiteral("flecha");
    QTest::newRow("fr") << QStringLiteral("cœur rouge") << QStringLiteral("flèche");
    QTest::newRow("he") << QStringLiteral("לב אדום") << QStringLiteral("חץ");
    QTest::newRow("it") << QStringLiteral("cuore rosso") << QStringLiteral("freccia");
    QTest::newRow("ja") << QStringLiteral("赤いハート") << QStringLiteral("矢印");
    QTest::newRow("pt") << QStringLiteral("coração vermelho") << QStringLiteral("seta");
    QTest::newRow("ru") << QStringLiteral("алое сердце") << QStringLiteral("стрелка");
}

void tst_EmojiSet::everyTranslation()
{
    QFETCH(QString, redHeart);
    QFETCH(QString, arrow);
    const QString language = QString::fromLatin1(QTest::currentDataTag());
    const QString file = QStringLiteral(":/emoji-data/emoji_%1.qm").arg(language);
    QCOMPARE(QResource(file).compressionAlgorithm(), QResource::NoCompression);

    QTranslator translator;
    QVERIFY(translator.load(QLocale(language), QStringLiteral("emoji"), QStringLiteral("_"),
                            QStringLiteral(":/emoji-data")));
    QCOMPARE(translator.filePath(), file);
    for (const QJsonValue &emoji : qAsConst(m_emojis)) {
        const QByteArray name = emoji[QLatin1String("a")].toString().toUtf8();
        QVERIFY2(!translator.translate(context, name.constData()).isEmpty(), name.constData());
    }
    QCOMPARE(translator.translate(context, "red heart"), redHeart);
    QCOMPARE(translator.translate(context, "arrow"), arrow);
    // A host's own "OK button" is none of our business.
    QCOMPARE(translator.translate("Host", "OK button"), QString());
}

QTEST_MAIN(tst_EmojiSet)
#include "tst_emoji_set.moc"
