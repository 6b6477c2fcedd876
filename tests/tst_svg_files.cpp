#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/icons/WSvgRenderer.h>

#include <QBuffer>
#include <QPainter>
#include <QTemporaryDir>

#include <memory>
#include <random>

#include <sys/stat.h>

// Files as they may come from anywhere: whatever is in them, loading and drawing must end soon, read nothing else and
// say in one line what is wrong.
class tst_SvgFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void refused_data();
    void refused();
    void accepted_data();
    void accepted();
    void broken_data();
    void broken();
    void nodes_data();
    void nodes();
    void cutAnywhere();
    void changedAnywhere();
    void strangeFiles_data();
    void strangeFiles();

private:
    bool load(const QByteArray &document);

    QTemporaryDir m_folder;
    QString m_path;
    QString m_canary; // a picture in a color that must never be seen
    std::unique_ptr<WSvgRenderer> m_renderer;
    QStringList m_log; // of the last load()
    QImage m_picture;
    qint64 m_took = 0;
};

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int slower = 10;
#else
constexpr int slower = 1;
#endif

constexpr char namespaces[] = R"(xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" )";
const QByteArray path = R"(<path d="M0 0h9v9z"/>)"; // clazy:exclude=non-pod-global-static
const QColor canaryColor(255, 0, 255);

QByteArray svg(const QByteArray &body, const QByteArray &attributes = R"(viewBox="0 0 16 16")",
               const QByteArray &before = QByteArray())
{
    return before + "<svg " + namespaces + attributes + ">" + body + "</svg>";
}

/// Each `%` becomes the number, each `@` the one before.
QByteArray numbered(const QByteArray &text, int from, int to)
{
    QByteArray all;
    for (int i = from; i < to; ++i)
        all += QByteArray(text).replace("%", QByteArray::number(i)).replace("@", QByteArray::number(i - 1));
    return all;
}

QByteArray image(const QByteArray &references)
{
    return R"(<image width="16" height="16" )" + references + "/>";
}

QByteArray dataUrl(const QByteArray &bytes)
{
    return "data:image/png;base64," + bytes.toBase64();
}

QByteArray data(const QByteArray &bytes)
{
    return "xlink:href=\"" + dataUrl(bytes) + "\"";
}

QByteArray png(const QSize &size, const QColor &color, const QString &text = QString())
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    picture.setText(QStringLiteral("text"), text);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes;
}

/// With a chunk of 20,000 bytes behind the header.
QByteArray pngWithText(const QByteArray &kind)
{
    const QByteArray text = kind + QByteArray(20000 - kind.size() + 4, 'x');
    return png(QSize(1, 1), Qt::green).insert(33, QByteArray("\0\0\x4e\x20", 4) + text + QByteArray(4, '\0'));
}

/// Back and forth over the whole width.
QByteArray zigzag(int lines)
{
    return "M0 0" + numbered("L0 1L16 2", 0, lines / 2);
}

QByteArray animation(const QByteArray &clock)
{
    return "<g><animateTransform type='translate' values='0;1' repeatCount='indefinite' " + clock + "/>" + path + "</g>"
        + path;
}

} // namespace

void tst_SvgFiles::initTestCase()
{
    m_path = m_folder.filePath(QStringLiteral("icon.svg"));
    m_canary = m_folder.filePath(QStringLiteral("canary.png"));
    QFile file(m_canary);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(png(QSize(8, 8), canaryColor));
}

// Loads and draws in all ways. The picture is what came of it.
bool tst_SvgFiles::load(const QByteArray &document)
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(document) != document.size())
        qFatal("cannot write");
    file.close();
    m_renderer = std::make_unique<WSvgRenderer>();

    WarningLog log;
    QElapsedTimer timer;
    timer.start();
    const bool isLoaded = m_renderer->load(m_path);
    m_renderer->isAnimated();
    m_picture = QImage(64, 64, QImage::Format_ARGB32_Premultiplied);
    m_picture.fill(Qt::transparent);
    QPainter painter(&m_picture);
    m_renderer->draw(&painter, QRectF(0, 0, 64, 64), Qt::black, 0.5);
    painter.end();
    m_renderer->renderPixmap(QSize(64, 64), 2, Qt::black);
    m_took = timer.elapsed();
    m_log = log.take();
    return isLoaded;
}

void tst_SvgFiles::refused_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const QByteArray &document, const char *reason) {
        QTest::newRow(name) << document << QString::fromLatin1(reason);
    };
    const QByteArray canary = QFile::encodeName(m_canary);
    const QByteArray href = "xlink:href=\"" + canary + "\" ";
    const QByteArray green = dataUrl(png(QSize(2, 2), Qt::green));

    const char *file = "refers to another file";
    row("image", svg(image(href)), file);
    row("image before a fragment", svg(image(href + "href='#a'")), file);
    row("image behind a fragment", svg(image("href='#a' " + href)), file);
    row("image before a picture", svg(image(href + "href='" + green + "'")), file);
    row("image between prefixes", svg(image("a:href='#a' " + href + "z:href='#a'")), file);
    row("image with a prefix", svg("<x:image width='9' height='9' " + href + "/>"), file);
    row("image in a leaf", svg("<text>" + image(href) + "</text>"), file);
    row("image by URL", svg(image("xlink:href='file://" + canary + "'")), file);
    row("image that looks like data", svg(image("xlink:href='data/.." + canary + "'")), file);
    row("image in the case of data", svg(image("xlink:href='DATA:x'")), file);
    row("image that looks like a fragment", svg(image("xlink:href='#a'")), file);
    row("image through an entity", svg(image("xlink:href='&e;'"), "", "<!DOCTYPE svg [<!ENTITY e '" + canary + "'>]>"),
        file);
    row("use", svg("<use xlink:href='" + canary + "#a'/>"), file);
    row("style sheet", svg(path, "", "<?xml-stylesheet type=\"text/css\" href=\"" + canary + "\"?>"), file);
    row("style sheet at the end", svg(path) + "<?xml-stylesheet href=\"x\"?>", file);
    row("import", svg("<style>@import '" + canary + "';</style>"), file);
    row("url", svg("<path fill='url(" + canary + ")'/>"), file);
    row("url in a style", svg("<style><g>a{fill:URL( 'x')}</g></style>"), file);
    row("external entity", svg(path, "", "<!DOCTYPE svg [<!ENTITY e SYSTEM '" + canary + "'>]>"), file);
    row("svg in the svg", svg(image(data(svg(image(href))))), "an embedded picture of another kind");

    row("attribute default", svg(image(""), "", "<!DOCTYPE svg [<!ATTLIST image xlink:href CDATA '" + canary + "'>]>"),
        "declares attributes");
    row("entities in each other", svg("&b;", "", "<!DOCTYPE svg [<!ENTITY a 'x'><!ENTITY b '&a;&a;'>]>"),
        "nested entities");
    row("entities in each other, hidden", svg("&b;", "", "<!DOCTYPE svg [<!ENTITY a 'x'><!ENTITY b '&#38;a;'>]>"),
        "nested entities");
    row("long entity",
        svg(QByteArray("&a;").repeated(60), "", "<!DOCTYPE svg [<!ENTITY a '" + QByteArray(100000, 'x') + "'>]>"),
        "entities of great length");

    row("too large", svg(QByteArray(4 * 1024 * 1024, ' ')), "too large");
    row("compressed", "\x1f\x8b\x08", "compressed");
    row("compressed by name", "\x1f\x8b" + svg(path), "compressed");
    row("UTF-16", QByteArray("\xff\xfe<\0s\0v\0g\0/\0>\0", 14), "unknown encoding");
    row("UTF-7", svg("", "", "<?xml version='1.0' encoding='utf-7'?>"), "unknown encoding");
    row("deep", svg(QByteArray("<g>").repeated(256) + QByteArray("</g>").repeated(256)), "nested too deep");
    row("very deep", svg(QByteArray("<g>").repeated(300000)), "nested too deep");
    row("many elements", svg(QByteArray("<g/>").repeated(50000)), "too many elements");
    row("many attributes", svg("<g " + numbered("a%='' ", 0, 300) + "/>"), "too many attributes");

    row("use of itself", svg("<g id='a'><use xlink:href='#a'/></g>" + path), "refers to itself");
    row("use of itself behind a blank", svg("<g id='#a'><use xlink:href=' #a'/></g>" + path), "refers to itself");
    row("use of itself, twice", svg("<g id='a'><use xlink:href='#a' href='#b'/></g>" + path), "refers to itself");
    row("use of each other", svg("<g id='a'><use href='#b'/></g><g id='b'><use href='#a'/></g>"), "refers to itself");
    row("use of one of two ids", svg("<g id='a'/><g id='a'><use href='#a'/></g>"), "refers to itself");
    row("gradient from itself", svg("<linearGradient id='a' xlink:href='#a'/>"), "refers to itself");
    row("gradients from each other",
        svg("<linearGradient id='a' xlink:href='#b'/><radialGradient id='b' xlink:href='#a'/>"), "refers to itself");
    // Each of them is known before the next, so only the sum of their depths is too much.
    row("long chain of uses", svg("<path id='a0'/>" + numbered("<g id='a%'><use href='#a@'/></g>", 1, 2000)),
        "nested too deep");
    row("long chain of gradients",
        svg("<linearGradient id='a0'/>" + numbered("<linearGradient id='a%' xlink:href='#a@'/>", 1, 2000)),
        "nested too deep");
    row("multiplied by use",
        svg("<g id='a0'>" + path + "</g>"
            + numbered("<g id='a%'>" + QByteArray("<use href='#a@'/>").repeated(9) + "</g>", 1, 9)),
        "multiplies itself");
    row("long path, used often",
        svg("<path id='a' d='" + QByteArray("h1").repeated(50000) + "'/>"
            + QByteArray("<use href='#a'/>").repeated(90)),
        "multiplies itself");
    row("many with the id of many",
        svg(QByteArray("<linearGradient id='a'/>").repeated(9000)
            + QByteArray("<linearGradient xlink:href='#a'/>").repeated(9000)),
        "multiplies itself");

    const QByteArray manyStops = QByteArray("<stop/>").repeated(600);
    row("many stops", svg("<linearGradient>" + manyStops + manyStops + "</linearGradient>" + path),
        "too many gradient stops");
    row("many stops, inherited",
        svg("<linearGradient id='a'>" + manyStops + "</linearGradient><linearGradient xlink:href='#a'>" + manyStops
            + "</linearGradient>"),
        "too many gradient stops");

    const char *rules = "too many style rules";
    row("many rules",
        svg("<style>" + QByteArray("*{a:b}").repeated(2000) + "</style>" + QByteArray("<g/>").repeated(5000)), rules);
    row("many rules in an element",
        svg("<style><g>" + QByteArray("*{a:b}").repeated(2000) + "</g></style>" + QByteArray("<g/>").repeated(5000)),
        rules);
    row("many values",
        svg("<style>*{font:" + QByteArray("a ").repeated(9000) + "}</style>" + QByteArray("<g/>").repeated(5000)),
        rules);
    row("many classes",
        svg("<style>" + QByteArray(".a{b:c}").repeated(1000) + "</style>"
            + ("<g class='" + QByteArray("a ").repeated(400) + "'/>").repeated(200)),
        rules);
    row("many siblings",
        svg("<style>" + QByteArray("g+g{a:b}").repeated(30) + "</style>" + QByteArray("<g/>").repeated(30000)), rules);
    row("many style sheets",
        svg("<style>" + QByteArray("a<!---->").repeated(9000) + "</style>" + QByteArray("<g/>").repeated(3000)), rules);
    row("many escapes", svg("<path style='a:" + QByteArray("\\41 ").repeated(100000) + "'/>"), rules);
    row("many escapes in a sheet", svg("<style>" + QByteArray("\\41 ").repeated(100000) + "</style>"), rules);

    const char *text = "too much text";
    row("long text", svg("<text>" + QByteArray(11000, 'x') + "</text>"), text);
    row("many fonts", svg(numbered("<text font-family='f%'>x</text>", 0, 1000)), text);
    row("text used often",
        svg("<text id='a'>" + QByteArray(2000, 'x') + "</text>" + QByteArray("<use href='#a'/>").repeated(9)), text);
    for (const char *glyph : {"glyph unicode='x'", "missing-glyph"}) {
        row(glyph,
            svg("<defs><font id='f'><font-face font-family='f'/><" + QByteArray(glyph) + " d='"
                + QByteArray("h1").repeated(2000) + "'/></font></defs><text font-family='f'>" + QByteArray(5000, 'x')
                + "</text>"),
            text);
    }

    const char *small = "too small text";
    row("tiny span", svg("<text>x<tspan font-size='.01'>x</tspan></text>"), small);
    row("tiny span by style", svg("<text>x<tspan style='font-size : .01px'>x</tspan></text>"), small);
    row("tiny span in large text", svg("<g font-size='99'><text>x<tspan font-size='.3'>x</tspan></text></g>"), small);
    row("tiny span by rule", svg("<style>tspan{font-size:.01}</style><text>x<tspan>x</tspan></text>"), small);
    row("tiny span by escapes", svg("<text>x<tspan style='font-\\size:.01'>x</tspan></text>"), small);

    row("large picture", svg(image(data(png(QSize(5000, 5000), Qt::green)))), "embedded pictures of giant size");
    row("large pictures", svg(image(data(png(QSize(2200, 2200), Qt::green))).repeated(4)),
        "embedded pictures of giant size");
    const char *compressed = "an embedded picture that is compressed too much";
    row("picture with long text", svg(image(data(pngWithText("zTXtk")))), compressed);
    row("picture with long compressed text", svg(image(data(pngWithText(QByteArray("iTXtk\0\1", 7))))), compressed);
    row("picture with a cut text", svg(image(data(pngWithText("iTXt")))), compressed);
    row("picture of many scans", svg(image(data("\xff\xd8\xff" + QByteArray("\xff\xda").repeated(101)))), compressed);

    // These are 650 ms from a crash.
    row("animation since long ago", svg(animation("begin='-2147483s' dur='1ms'")), "began too long ago");
    row("animation of one instant", svg(animation("begin='-1000s' dur='1ms'")), "began too long ago");

    const char *bounds = "out of all bounds";
    const auto stroked = [](const QByteArray &attributes) {
        return svg("<path fill='none' stroke='red' d='M0 0h16' " + attributes + "/>");
    };
    row("giant coordinates", svg("<path d='M0 0h1e38v1e38z'/>"), bounds);
    row("giant transform",
        svg(QByteArray("<g transform='scale(1e9)'>").repeated(9) + path + QByteArray("</g>").repeated(9)), bounds);
    row("giant size", svg(path, "width='1e9' height='1e9'"), bounds);
    row("giant stroke", stroked("stroke-width='9000' transform='scale(1000)'"), bounds);
    row("tiny dashes", stroked("stroke-dasharray='1e-9'"), bounds);
    row("dashes of nothing", stroked("stroke-dasharray='0 0'"), bounds);
    row("dashes backwards", stroked("stroke-dasharray='5 -5'"), bounds);
    row("giant dash offset", stroked("stroke-dasharray='1 2' stroke-dashoffset='1e30'"), bounds);
    row("dashes of many",
        svg(QByteArray("<path stroke='red' stroke-width='.01' stroke-dasharray='.001' d='M0 0h16'/>").repeated(50)),
        bounds);
    row("long dash pattern", stroked("stroke-dasharray='" + QByteArray("1 ").repeated(1002) + "'"), bounds);
    row("long dash pattern, compared often",
        svg("<g stroke='red' style='stroke-dasharray:" + QByteArray("1 ").repeated(25000) + "'>"
            + QByteArray("<g/>").repeated(20000) + "</g>"),
        "too many dashes");
    row("dashes of a fixed width",
        svg("<path stroke='red' vector-effect='non-scaling-stroke' stroke-dasharray='1e-8' d='M0 0h1e-4'/>",
            "viewBox='0 0 1e-4 1e-4'"),
        bounds);
    row("long outline", svg("<path d='" + zigzag(20000) + "'/>"), bounds);
    row("long stroke", svg("<path fill='none' stroke='red' d='" + zigzag(5000) + "'/>"), bounds);
    row("wide bends",
        svg("<path fill='none' stroke='red' stroke-width='16' stroke-linejoin='round' d='M8 8"
            + QByteArray("l.001 0l-.001 0").repeated(8000) + "'/>"),
        bounds);
    row("picture drawn often",
        svg(image(data(png(QSize(9, 9), Qt::green)) + " id='a'") + QByteArray("<use href='#a'/>").repeated(1001)),
        bounds);
}

void tst_SvgFiles::refused()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, reason);

    QVERIFY(!load(document));
    QCOMPARE(m_log, QStringList(QStringLiteral("Unable to load SVG file: %1 (%2)").arg(m_path, reason)));
    QVERIFY(!m_renderer->isLoaded());
    QVERIFY2(m_took < 1000 * slower, qPrintable(QString::number(m_took)));
}

void tst_SvgFiles::accepted_data()
{
    QTest::addColumn<QByteArray>("document");
    const auto row = [](const char *name, const QByteArray &document) {
        QTest::newRow(name) << document;
    };

    row("another document type", svg(path, "", "<!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 1.1//EN\" \"svg11.dtd\">"));
    row("entities for namespaces",
        svg("<g id='&a;'>" + path + "</g>", "xmlns:a='&a;'", "<!DOCTYPE svg [<!ENTITY a 'http://ns.example/'>]>"));
    row("link", svg("<a xlink:href='http://example/'>" + path + "</a>"));
    row("url of a fragment", svg("<g clip-path=\"url('#c')\"><clipPath id='c'>" + path + "</clipPath></g>"));
    row("animation of what is around it", svg("<g id='a'>" + path + "<animate xlink:href='#a'/></g>"));
    row("picture", svg(image(data(png(QSize(2, 2), Qt::green)))));
    row("large picture", svg(image(data(png(QSize(4000, 4000), Qt::green)))));
    row("picture with text", svg(image(data(png(QSize(2, 2), Qt::green, QString(9000, QLatin1Char('x')))))));
    row("Latin 1", svg("<text>\xe9</text>" + path, "", "<?xml version='1.0' encoding='iso-8859-1'?>"));
    row("UTF-8 with another name", svg(path, "", "<?xml version='1.0' encoding='UTF8'?>"));
    row("deep", svg(QByteArray("<g>").repeated(250) + path + QByteArray("</g>").repeated(250)));
    row("many elements", svg(numbered("<path d='M% %h9v9z'/>", 0, 10000), "viewBox='0 0 9999 9999'"));
    row("many attributes", svg("<g " + numbered("a%='' ", 0, 250) + ">" + path + "</g>"));
    row("much use", svg("<g id='a'>" + path + "</g>" + QByteArray("<use href='#a'/>").repeated(1000)));
    row("chain of uses", svg("<g id='a0'>" + path + "</g>" + numbered("<g id='a%'><use href='#a@'/></g>", 1, 80)));
    row("style sheet",
        svg("<style>" + numbered(".c%{fill:#123;stroke:none}\n", 0, 50) + "</style>"
                + numbered("<path class='c%' d='M0 %h9v9z'/>", 0, 5000),
            "viewBox='0 0 5000 5000'"));
    row("text",
        svg("<textArea width='16' height='16' font-size='.3'>" + QByteArray("x ").repeated(2000) + "</textArea>"));
    row("small text", svg("<text font-size='.2'>x<tspan font-size='.15'>x</tspan></text>"));
    row("dashes", svg("<path fill='none' stroke='red' stroke-width='.1' stroke-dasharray='1 2' d='M0 0h16v16'/>"));
    row("spinner", svg(animation("begin='-0.75s' dur='1s'")));
    row("far out", svg("<path d='M-99999 -99999h199999v199999z'/>" + path));
    row("circle without a radius", svg("<g fill='none' stroke='red'><circle cx='8'/><path d='M0 0h9v9z'/></g>"));
    row("box without a height", svg(path + path, "viewBox='0 0 16 0'"));
}

void tst_SvgFiles::accepted()
{
    QFETCH(QByteArray, document);

    QVERIFY2(load(document), qPrintable(m_log.join(QLatin1Char('\n'))));
    QCOMPARE(m_log, QStringList());
    QVERIFY2(m_took < 1000 * slower, qPrintable(QString::number(m_took)));
    bool isDrawn = false;
    for (int at = 0; at < 64 * 64; ++at)
        isDrawn = isDrawn || qAlpha(m_picture.pixel(at % 64, at / 64)) > 0;
    QCOMPARE(isDrawn, QByteArray(QTest::currentDataTag()) != "box without a height");
}

void tst_SvgFiles::broken_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("message");

    const QString broken = QStringLiteral("Unable to load SVG file: ");
    QTest::newRow("empty") << QByteArray() << broken;
    QTest::newRow("text") << QByteArray("<svg") << broken;
    QTest::newRow("another root") << QByteArray("<html><svg/></html>") << broken;
    QTest::newRow("crossed tags") << svg("<g><path></g></path>") << broken;
    QTest::newRow("attribute twice") << svg("<path d='' d=''/>") << broken;
    QTest::newRow("unknown entity") << svg("&x;") << broken;
    QTest::newRow("entity of itself") << svg(path, "", "<!DOCTYPE svg [<!ENTITY % a '%a;'>%a;]>") << broken;
    QTest::newRow("several nodes in no box")
        << svg(path + path, "viewBox='0 0 -5 -5'") << QStringLiteral("Invalid svg file: ");
    QTest::newRow("one node in no box") << svg(path, "viewBox='0 0 -5 -5'") << broken;
}

void tst_SvgFiles::broken()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, message);

    QVERIFY(!load(document));
    QCOMPARE(m_log, QStringList(message + m_path));
    QVERIFY(!m_renderer->isLoaded());
}

// What Qt's parser makes below the root, compared with the parser itself for 21,000 documents when this was written.
void tst_SvgFiles::nodes_data()
{
    QTest::addColumn<QByteArray>("beside"); // a black path
    QTest::addColumn<bool>("isNode");
    const auto row = [](const char *beside, bool isNode) {
        QTest::newRow(beside) << QByteArray(beside) << isNode;
    };

    for (const char *leaf : {"<path/>", "<circle/>", "<ellipse/>", "<line/>", "<polygon/>", "<polyline/>", "<text/>",
                             "<textArea/>", "<use/>", "<x:path/>"})
        row(leaf, true);
    for (const char *container : {"<g/>", "<svg/>", "<defs/>", "<switch/>"})
        row(container, true);
    for (const char *other : {"<title/>", "<style/>", "<linearGradient/>", "<a/>", "<symbol/>", "<mask/>", "<tspan/>",
                              "<video/>", "<animation/>", "<font/>", "<G/>", "<Path/>", "<image/>", "<rect/>"})
        row(other, false);
    row("<clipPath><path/></clipPath>", true);
    row("<x><y><g/></y></x>", true);

    row("<rect width='1' height='1'/>", true);
    row("<rect width=' .5e1cm ' height='1%'/>", true);
    row("<rect width='1' height='0'/>", false);
    row("<rect width='1' height='-1'/>", false);
    row("<rect width='1' height='1x'/>", false);
    row("<rect width='1' height='1e'/>", false);
    row("<rect width='1' height='1e-40'/>", false);
    row("<rect width='0'><path/></rect>", true); // takes the place of what is around it
}

void tst_SvgFiles::nodes()
{
    QFETCH(QByteArray, beside);
    QFETCH(bool, isNode);

    // What is alone below the root has the color asked for.
    const auto isTinted = [this] {
        return m_renderer->renderPixmap(QSize(16, 16), 1, Qt::red).toImage()
            != m_renderer->renderPixmap(QSize(16, 16), 1, Qt::blue).toImage();
    };
    QVERIFY(load(svg(path + beside)));
    QCOMPARE(isTinted(), !isNode);
    QVERIFY(load(svg(beside + path)));
    QCOMPARE(isTinted(), !isNode);
    // In a leaf nothing is a node.
    QVERIFY(load(svg("<path d='M0 0h9v9z'>" + beside + "</path>")));
    QVERIFY(isTinted());
}

void tst_SvgFiles::cutAnywhere()
{
    const QByteArray document =
        svg("<style>.a{fill:red}</style><defs><linearGradient id='b'><stop offset='1'/></linearGradient></defs>"
            "<!-- x --><g class='a' transform='scale(2)'><path fill='url(#b)' d='M0 0c1 1 2 2 3 3a1 1 0 0 1 1 1z'/>"
            "<text>x&amp;<tspan>y</tspan></text></g>");
    QVERIFY(load(document));
    for (int size = 0; size < document.size(); ++size) {
        QVERIFY(!load(document.left(size)));
        QCOMPARE(m_log, QStringList(QStringLiteral("Unable to load SVG file: ") + m_path));
    }
}

void tst_SvgFiles::changedAnywhere()
{
    const QByteArray document =
        svg("<g id='a' stroke='red' stroke-dasharray='1 2' opacity='.5'><path d='M0 0c1 1 2 2 3 3a1 1 0 0 1 1 1z'/>"
            "<rect width='5' height='6' rx='1'/></g><use xlink:href='#a' x='2'/><g><animateTransform type='rotate' "
            "dur='1s' values='0 8 8;360 8 8'/><text font-size='3'>x</text></g>");
    std::mt19937 random(20240);
    for (int i = 0; i < 600; ++i) {
        QByteArray changed = document;
        for (int byte = 0; byte < 1 + i % 3; ++byte)
            changed[int(random() % uint(changed.size()))] = char(random() & 127);
        const bool isLoaded = load(changed);
        QVERIFY2(m_took < 500 * slower, changed.constData());
        QCOMPARE(isLoaded, m_renderer->isLoaded());
        const int own = m_log.filter(m_path).size();
        QVERIFY2(own == (isLoaded ? 0 : 1), changed.constData());
    }
}

void tst_SvgFiles::strangeFiles_data()
{
    QTest::addColumn<QString>("file");
    const QString pipe = m_folder.filePath(QStringLiteral("pipe.svg"));
    QVERIFY(mkfifo(QFile::encodeName(pipe).constData(), 0600) == 0 || errno == EEXIST);
    QTest::newRow("pipe") << pipe;
    QTest::newRow("device") << QStringLiteral("/dev/zero");
    QTest::newRow("folder") << m_folder.path();
    QTest::newRow("nothing") << m_folder.filePath(QStringLiteral("nothing.svg"));
    QTest::newRow("resource folder") << QStringLiteral(":/Resources");
}

void tst_SvgFiles::strangeFiles()
{
    QFETCH(QString, file);
    WarningLog log;
    WSvgRenderer renderer;
    QVERIFY(!renderer.load(file));
    QCOMPARE(log.take(), QStringList(QStringLiteral("Unable to load SVG file: ") + file));
}

W_TEST_MAIN(tst_SvgFiles)
#include "tst_svg_files.moc"
