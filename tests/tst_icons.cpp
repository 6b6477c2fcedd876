#include "support/Colors.h"
#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/icons/DrawUtils.h>
#include <UiElements/icons/WSvgIcon.h>
#include <UiElements/icons/WSvgIconEngine.h>
#include <UiElements/icons/WSvgRenderer.h>

#include <QListWidget>
#include <QPainter>
#include <QPicture>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QToolButton>

#include <cmath>

class tst_Icons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void loading();
    void sameFileTwice();
    void failedLoads();
    void split_data();
    void split();
    void drawing_data();
    void drawing();
    void transparentShapesOnEachOther();
    void scalingHeight();
    void pixmaps();
    void iconOfTwoStates();
    void animation();
    void states_data();
    void states();
    void recordsAndGetters();
    void hiddenIcons();
    void innerIcons_data();
    void innerIcons();
    void sharpAtEveryRatio_data();
    void sharpAtEveryRatio();
    void placesAndTransforms();
    void stems();
    void picturesAreMadeWhenPainted();
    void mirroring();
    void themedIconFollows();
    void themedIconOnAScreenOfRatioTwo();
    void themedIconInAnUnknownColor();
    void fitRectangle();
    void focusFrame();
    void iconAndText_data();
    void iconAndText();
    void iconAndTextPainted();

private:
    QString file(const char *name) const { return m_dir.filePath(QString::fromLatin1(name)); }
    void write(const char *name, const QByteArray &document) const
    {
        QFile f(file(name));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(document);
    }
    QTemporaryDir m_dir;
};

namespace {

const QStyle::State Enabled = QStyle::State_Enabled;

QByteArray svg(const QByteArray &body, int width = 16, int height = 16)
{
    const QByteArray size = QByteArray::number(width) + ' ' + QByteArray::number(height);
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' viewBox='0 0 " + size
        + "'>" + body + "</svg>";
}

QByteArray box()
{
    return "<path fill='none' d='M0 0h16v16H0z'/>";
}
/// Fills its left half: it shows where it is drawn, and whether it is mirrored.
QByteArray leftHalf()
{
    return svg("<g>" + box() + "<path d='M0 0h8v16H0z'/></g>");
}

QImage image(double ratio, int side = 16)
{
    QImage img(int(std::ceil(side * ratio)), int(std::ceil(side * ratio)), QImage::Format_ARGB32_Premultiplied);
    img.setDevicePixelRatio(ratio);
    img.fill(Qt::transparent);
    return img;
}

/// One letter for each color seen at the four quarters of the image: left to right, top to bottom.
QString quarters(const QImage &image)
{
    QString text;
    for (const QPointF &at : {QPointF(.25, .25), QPointF(.75, .25), QPointF(.25, .75), QPointF(.75, .75)}) {
        const QColor c = image.pixelColor(int(at.x() * image.width()), int(at.y() * image.height()));
        text += c.alpha() == 0         ? QLatin1Char('.')
            : c == QColor(Qt::red)     ? QLatin1Char('r')
            : c == QColor(Qt::blue)    ? QLatin1Char('b')
            : c == QColor(0, 128, 0)   ? QLatin1Char('g')
            : c == QColor(255, 255, 0) ? QLatin1Char('y')
                                       : QLatin1Char('?');
    }
    return text;
}

QImage drawn(const WSvgRenderer &renderer, const QRectF &rect, const QColor &color, double opacity = 1)
{
    QImage img = image(1);
    QPainter painter(&img);
    renderer.draw(&painter, rect, color, opacity);
    return img;
}

QImage drawn(const WSvgIcon &icon, QStyle::State state = Enabled, double ratio = 1,
             Qt::LayoutDirection direction = Qt::LeftToRight)
{
    QImage img = image(ratio);
    QPainter painter(&img);
    painter.setLayoutDirection(direction);
    icon.draw(&painter, state);
    return img;
}

} // namespace

void tst_Icons::initTestCase()
{
    write("left.svg", leftHalf());
    write("blue.svg", svg("<path fill='blue' d='M0 0h16v16H0z'/>"));
    write("two.svg", svg("<path fill='red' d='M0 0h8v16H0z'/><path fill='blue' d='M8 0h8v16H8z'/>"));
    write("wide.svg", svg("<rect width='16' height='8' fill='red'/><rect width='1' height='1' fill='red'/>", 16, 8));
    write("broken.svg", "<svg xmlns='http://www.w3.org/2000/svg'><path");
    write("moving.svg",
          svg("<rect width='8' height='8' fill='red'><animateTransform attributeName='transform' type='translate' "
              "from='0' to='8' dur='1s' repeatCount='indefinite'/></rect><rect x='8' width='8' height='8'/>"));
}

void tst_Icons::loading()
{
    WarningLog log;
    WSvgRenderer renderer;
    QVERIFY(!renderer.isLoaded());
    QVERIFY(!renderer.getSvgNode());
    QCOMPARE(log.take(), QStringList(QStringLiteral("SVG node does not exist!")));
    QVERIFY(renderer.load(QString())); // it is what is loaded: nothing
    QVERIFY(!renderer.isLoaded());
    QVERIFY(!renderer.updateIconResource(QString()));

    QVERIFY(renderer.load(file("left.svg")));
    QVERIFY(renderer.isLoaded());
    QVERIFY(renderer.getSvgNode());
    renderer.clear();
    QCOMPARE(renderer.getLoadedPath(), file("left.svg"));
    QVERIFY(renderer.load(file("left.svg"))); // nothing is read: the path did not change
    QCOMPARE(quarters(drawn(renderer, QRectF(0, 0, 16, 16), Qt::red)), QStringLiteral("...."));
    QCOMPARE(log.take(), QStringList());

    const QString resource = WSvgRenderer::resourcePath(QStringLiteral("info_16"));
    QCOMPARE(resource, QStringLiteral(":/Resources/info_16.svg"));
    WSvgRenderer first(QStringLiteral("qrc") + resource), second(resource);
    QCOMPARE(first.getLoadedPath(), QStringLiteral("qrc:/Resources/info_16.svg"));
    QCOMPARE(second.getLoadedPath(), resource);
    QCOMPARE(first.getSvgNode(), second.getSvgNode()); // a drawing of the resources is kept once
    QVERIFY(first.getSvgNode());

    QVERIFY(!QScopedPointer<WSvgRenderer>(WSvgRenderer::loadIconResource(QString(), nullptr))->isLoaded());
    QCOMPARE(log.take(),
             QStringList(QStringLiteral("WSvgRenderer::loadIconResource - the parent object should not be null")));
    QObject parent;
    QCOMPARE(WSvgRenderer::loadIconResource(QStringLiteral("info_16"), &parent)->parent(), &parent);
    QCOMPARE(log.take(), QStringList());
}

void tst_Icons::sameFileTwice()
{
    write("changing.svg", leftHalf());
    WSvgRenderer renderer(file("changing.svg"));
    write("changing.svg", "nothing that could be drawn");
    QVERIFY(renderer.load(file("changing.svg")));
    QCOMPARE(quarters(drawn(renderer, QRectF(0, 0, 16, 16), Qt::red)), QStringLiteral("r.r."));
}

void tst_Icons::failedLoads()
{
    for (const QString &path : {file("broken.svg"), file("not there.svg"), m_dir.path(), QString()}) {
        WSvgRenderer renderer(file("left.svg"));
        WarningLog log;
        QVERIFY(!renderer.load(path));
        QCOMPARE(log.take(), QStringList(QStringLiteral("Unable to load SVG file: ") + path));
        QVERIFY(!renderer.isLoaded());
        QVERIFY(renderer.load(file("left.svg"))); // it is read again
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(quarters(drawn(renderer, QRectF(0, 0, 16, 16), Qt::red)), QStringLiteral("r.r."));
    }
}

void tst_Icons::split_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<bool>("tintable");
    const QByteArray path = "<path fill='blue' d='M0 0h16v16H0z'/>";
    QTest::newRow("one path") << path << true;
    QTest::newRow("one group of two") << "<g>" + path + path + "</g>" << true;
    QTest::newRow("two paths") << path + path << false;
    QTest::newRow("two groups") << "<g>" + path + "</g><g/>" << false;
    QTest::newRow("title and metadata are no nodes") << "<title>x</title><metadata/>" + path << true;
    QTest::newRow("definitions are a node") << "<defs/>" + path << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void tst_Icons::split()
{
    QFETCH(QByteArray, body);
    QFETCH(bool, tintable);
    write("split.svg", svg(body));
    WSvgRenderer renderer(file("split.svg"));
    QVERIFY(renderer.isLoaded());
    WarningLog log;
    QCOMPARE(renderer.getSvgNode() != nullptr, tintable);
    QCOMPARE(log.take().size(), tintable ? 0 : 1);
    const QRectF all(0, 0, 16, 16);
    if (!body.isEmpty())
        QCOMPARE(quarters(drawn(renderer, all, Qt::red)), tintable ? QStringLiteral("rrrr") : QStringLiteral("bbbb"));
    QCOMPARE(drawn(renderer, all, Qt::red) != drawn(renderer, all, Qt::green), tintable);
    // Opacity is for what is tinted.
    const int alpha = drawn(renderer, all, Qt::red, 0.5).pixelColor(8, 8).alpha();
    QVERIFY(std::abs(alpha - (body.isEmpty() ? 0 : tintable ? 128 : 255)) <= 1);
    QVERIFY(!renderer.isAnimated());
}

void tst_Icons::drawing_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &document, const QRectF &rect, const char *expected) {
        QTest::newRow(name) << document << rect << QString::fromLatin1(expected);
    };
    const QRectF all(0, 0, 16, 16);
    row("as it is", leftHalf(), all, "r.r.");
    row("into a quarter", leftHalf(), QRectF(8, 8, 8, 8), "....");
    row("a quarter, filled", svg("<path d='M0 0h16v16H0z'/>"), QRectF(8, 8, 8, 8), "...r");
    row("fitted and centred in what is too wide", svg("<path d='M0 0h4v16H0z'/>"), QRectF(0, 0, 16, 8), "....");
    row("without a box the shape's bounds are fitted", svg("<path d='M0 0h2v2H0z'/>"), all, "rrrr");
    row("the box gives margins", svg("<g>" + box() + "<path d='M8 8h8v8H8z'/></g>"), all, "...r");
    row("no area", leftHalf(), QRectF(0, 0, 0, 16), "....");
    row("strokes are stroked, not filled",
        svg("<g>" + box() + "<path fill='none' stroke='black' stroke-width='8' d='M4 0v16'/></g>"), all, "r.r.");
    row("currentColor", svg("<path fill='currentColor' d='M0 0h16v16H0z'/>"), all, "rrrr");
    row("a gradient becomes the color",
        svg("<g><linearGradient id='g'><stop stop-color='blue'/><stop offset='1'/></linearGradient>"
            "<path fill='url(#g)' d='M0 0h16v16H0z'/></g>"),
        all, "rrrr");
    row("use", svg("<g><g id='a'>" + box() + "<path d='M0 0h8v8H0z'/></g><use xlink:href='#a' x='8'/></g>", 16, 16),
        QRectF(0, 0, 16, 16), "r?..");
    row("nothing visible", svg(box()), all, "....");
    row("a line has no height", svg("<path d='M0 8h16' stroke='black' stroke-width='16' fill='none'/>"), all, "rrrr");
}

void tst_Icons::drawing()
{
    QFETCH(QByteArray, document);
    QFETCH(QRectF, rect);
    write("drawing.svg", document);
    WSvgRenderer renderer(file("drawing.svg"));
    WarningLog log;
    if (QByteArray(QTest::currentDataTag()) == "use") { // 24 wide: fitted to two thirds
        QVERIFY(renderer.getSvgNode());
        const QImage img = drawn(renderer, rect, Qt::red);
        QCOMPARE(img.pixelColor(2, 5), QColor(Qt::red));
        QCOMPARE(img.pixelColor(7, 5), QColor(Qt::red)); // the copy joins on
        QCOMPARE(img.pixelColor(12, 5).alpha(), 0);
        return;
    }
    QTEST(quarters(drawn(renderer, rect, Qt::red)), "expected");
    QCOMPARE(quarters(drawn(renderer, rect, QColor())), QStringLiteral("....")); // no color, no icon
    renderer.draw(nullptr, rect, Qt::red, 1);
    QCOMPARE(log.take(), QStringList());
}

void tst_Icons::transparentShapesOnEachOther()
{
    write("overlap.svg", svg("<g><path d='M0 0h16v16H0z'/><path d='M0 0h8v16H0z'/></g>"));
    WSvgRenderer renderer(file("overlap.svg"));
    const QColor half(255, 0, 0, 128);
    for (const QImage &img :
         {drawn(renderer, QRectF(0, 0, 16, 16), half), drawn(renderer, QRectF(0, 0, 16, 16), Qt::red, .5)}) {
        QVERIFY(std::abs(img.pixelColor(4, 8).alpha() - 128) <= 1);
        QVERIFY(std::abs(img.pixelColor(12, 8).alpha() - 128) <= 1);
    }
    // What the document itself made transparent stays so.
    write("faint.svg", svg("<path fill-opacity='.5' d='M0 0h16v16H0z'/>"));
    renderer.load(file("faint.svg"));
    QVERIFY(std::abs(drawn(renderer, QRectF(0, 0, 16, 16), Qt::red).pixelColor(4, 8).alpha() - 128) <= 1);
}

void tst_Icons::scalingHeight()
{
    WSvgRenderer wide(file("wide.svg")), tintable(file("left.svg"));
    QImage img = image(1, 32);
    {
        QPainter painter(&img);
        tintable.drawScalingHeight(&painter, QRectF(0, 0, 32, 32));
        QCOMPARE(quarters(img), QStringLiteral("...."));
        // Of the rectangle only its height counts, and that only for the width: 16 / 8 * 16 by 8.
        wide.drawScalingHeight(&painter, QRectF(20, 20, 1, 16));
    }
    QCOMPARE(img.pixelColor(31, 7), QColor(Qt::red));
    QCOMPARE(img.pixelColor(16, 9).alpha(), 0);
}

void tst_Icons::pixmaps()
{
    WarningLog log;
    const WSvgRenderer left(file("left.svg")), two(file("two.svg"));
    QPixmap pixmap = left.renderPixmap(QSize(16, 16), 2, Qt::red);
    QCOMPARE(pixmap.size(), QSize(32, 32));
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    QCOMPARE(quarters(pixmap.toImage()), QStringLiteral("r.r."));
    QCOMPARE(left.renderPixmap(QSize(10, 10), 1.25, Qt::red).size(), QSize(13, 13)); // 12.5, and nothing is cut

    // Of the icon's quarter the left half is drawn; what is beside it is background.
    for (const WSvgRenderer *renderer : {&left, &two}) {
        const QImage placed = renderer->renderPixmap(QRectF(8, 8, 8, 8), QSize(16, 16), 1, Qt::red, Qt::blue).toImage();
        QCOMPARE(placed.pixelColor(9, 12), QColor(Qt::red));
        QCOMPARE(placed.pixelColor(15, 12), QColor(Qt::blue));
        QCOMPARE(placed.pixelColor(4, 4), QColor(Qt::blue));
    }
    const QImage centred = left.renderPixmap(QSize(8, 8), QSize(16, 16), 1, Qt::red, Qt::blue).toImage();
    QCOMPARE(centred.pixelColor(3, 8), QColor(Qt::blue));
    QCOMPARE(centred.pixelColor(4, 8), QColor(Qt::red));
    QCOMPARE(centred.pixelColor(8, 8), QColor(Qt::blue));
    QCOMPARE(log.take(), QStringList());

    const QImage cut = left.renderPixmap(QRectF(0, 0, 32, 32), QSize(16, 16), 1, Qt::red, Qt::blue).toImage();
    QCOMPARE(log.take(), QStringList(QStringLiteral("Icon size should be less or equal than the pixmap size")));
    QCOMPARE(quarters(cut), QStringLiteral("rrrr"));

    QVERIFY(left.renderPixmap(QSize(), 1, Qt::red).isNull());
    QVERIFY(left.renderPixmap(QSize(16, 16), 0, Qt::red).isNull());
    QVERIFY(left.renderPixmap(QSize(16, 16), std::nan(""), Qt::red).isNull());
    QVERIFY(left.renderPixmap(QSize(100000, 100000), 2, Qt::red).isNull());
    log.take();
    QCOMPARE(quarters(WSvgRenderer().renderPixmap(QSize(16, 16), QSize(16, 16), 1, Qt::red, Qt::blue).toImage()),
             QStringLiteral("bbbb"));
}

void tst_Icons::iconOfTwoStates()
{
    WarningLog log;
    WSvgRenderer renderer;
    const QSize size(16, 16);
    QIcon icon = renderer.renderIcon(QStringLiteral("arrow-left_16"), QStringLiteral("arrow-right_16"), size, 2,
                                     Qt::red, QIcon::Active);
    QCOMPARE(renderer.getLoadedPath(), WSvgRenderer::resourcePath(QStringLiteral("arrow-right_16")));
    const QImage on = icon.pixmap(size, QIcon::Active, QIcon::On).toImage();
    const QImage off = icon.pixmap(size, QIcon::Active, QIcon::Off).toImage();
    QVERIFY(on != off);
    QCOMPARE(on.size(), QSize(16, 16)); // a QIcon without a window gives what is asked for
    QCOMPARE(log.take(), QStringList());
    // What was there before is not shown in the place of what is missing.
    icon = renderer.renderIcon(QStringLiteral("arrow-left_16"), QStringLiteral("nothing"), size, 1, Qt::red);
    QCOMPARE(log.take(), QStringList(QStringLiteral("Unable to load SVG file: :/Resources/nothing.svg")));
    QCOMPARE(quarters(icon.pixmap(size, QIcon::Normal, QIcon::On).toImage()), QStringLiteral("...."));
}

void tst_Icons::animation()
{
    WSvgRenderer renderer(file("moving.svg"));
    QVERIFY(renderer.isAnimated());
    QSignalSpy repaints(&renderer, &WSvgRenderer::repaintNeeded);
    WSvgIcon icon(file("moving.svg"));
    QSignalSpy iconRepaints(&icon, &WSvgIcon::repaintNeeded);
    WSvgIcon later;
    later.setInnerFilePath(file("moving.svg"));
    QSignalSpy laterRepaints(&later, &WSvgIcon::repaintNeeded);
    QTRY_VERIFY(repaints.count() > 1 && iconRepaints.count() > 1 && laterRepaints.count() > 1);
    // No picture of it is kept.
    const QImage first = drawn(icon);
    QTRY_VERIFY(drawn(icon) != first);
}

void tst_Icons::states_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("color");
    const auto row = [](const char *name, QStyle::State state, WColorSet::State color) {
        QTest::newRow(name) << int(state) << int(color);
    };
    const QStyle::State hovered = Enabled | QStyle::State_MouseOver, focused = Enabled | QStyle::State_HasFocus;
    row("normal", Enabled, WColorSet::Normal);
    row("disabled wins", (hovered | focused | QStyle::State_Sunken | QStyle::State_On) & ~Enabled, WColorSet::Disabled);
    row("pressed before hovered", hovered | QStyle::State_Sunken, WColorSet::Pressed);
    row("hovered before focused", hovered | focused, WColorSet::Hovered);
    row("focused before checked", focused | QStyle::State_On, WColorSet::Focused);
    row("on", Enabled | QStyle::State_On, WColorSet::Checked);
    row("selected", Enabled | QStyle::State_Selected, WColorSet::Checked);
}

void tst_Icons::states()
{
    QFETCH(int, state);
    QFETCH(int, color);
    WColorSet set;
    for (int i = 0; i < WColorSet::StateCount; ++i)
        set.setColor(WColorSet::State(i), QColor(i * 40, 255 - i * 40, 7));
    WSvgIcon icon(file("blue.svg"));
    icon.setColorSet(set);
    QCOMPARE(drawn(icon, QStyle::State(state)).pixelColor(8, 8), set.color(WColorSet::State(color)));
    // A focused color that equals the normal one is none.
    set.setColor(WColorSet::Focused, set.normal());
    icon.setColorSet(set);
    if (color == WColorSet::Focused)
        QCOMPARE(drawn(icon, QStyle::State(state)).pixelColor(8, 8), set.checked());
}

void tst_Icons::recordsAndGetters()
{
    WarningLog log;
    WSvgIcon icon(file("left.svg"));
    QVERIFY(icon.isValid() && icon.isVisible());
    QCOMPARE(icon.getIconSize(), QSize(16, 16));
    QCOMPARE(icon.getInnerFilePath(), QString());
    QCOMPARE(icon.getInnerIconSize(), QSize(-1, -1));
    QCOMPARE(icon.getInnerColorSet(), WColorSet());
    icon.setInnerColorSet(plainSet("inner", Qt::red)); // makes the record, without a path
    QCOMPARE(icon.getInnerIconSize(), QSize(16, 16));
    QCOMPARE(log.take(), QStringList());

    icon.setFilePath(file("broken.svg"));
    QCOMPARE(log.take().size(), 1);
    QVERIFY(!icon.isValid());
    QCOMPARE(icon.getFilePath(), file("broken.svg"));
    QCOMPARE(quarters(drawn(icon)), QStringLiteral("...."));
    icon.setColorSet(plainSet("a", Qt::red));
    icon.setFilePath(file("left.svg"));
    QVERIFY(icon.isValid());
    QCOMPARE(quarters(drawn(icon)), QStringLiteral("r.r."));
    icon.setFilePath(QString());
    QVERIFY(!icon.isValid());
    QCOMPARE(quarters(drawn(icon)), QStringLiteral("...."));
    icon.draw(nullptr, Enabled);
    QCOMPARE(log.take(), QStringList());
}

void tst_Icons::hiddenIcons()
{
    WSvgIcon icon(file("left.svg"));
    icon.setColorSet(plainSet("a", Qt::red));
    icon.setInnerFilePath(file("blue.svg"));
    icon.setInnerColorSet(plainSet("b", Qt::blue));
    icon.setVisible(false);
    QCOMPARE(icon.getIconSize(), QSize(-1, -1));
    QVERIFY(icon.isValid());
    QCOMPARE(quarters(drawn(icon)), QStringLiteral("...."));
    icon.setVisible(true);
    QCOMPARE(quarters(drawn(icon)), QStringLiteral("bbbb"));
}

void tst_Icons::innerIcons_data()
{
    QTest::addColumn<int>("inner");
    QTest::addColumn<int>("alphaAt4");
    QTest::newRow("8 in 16") << 8 << 255;
    QTest::newRow("7 in 16, between the pixels") << 7 << 128;
}

void tst_Icons::innerIcons()
{
    QFETCH(int, inner);
    QFETCH(int, alphaAt4);
    WSvgIcon icon(file("left.svg"));
    icon.setColorSet(plainSet("clear", Qt::transparent));
    icon.setInnerFilePath(file("blue.svg"));
    icon.setInnerIconSize(QSize(inner, inner));
    icon.setInnerColorSet(plainSet("b", Qt::blue));
    const QImage img = drawn(icon);
    QCOMPARE(img.pixelColor(3, 8).alpha(), 0);
    QVERIFY(std::abs(img.pixelColor(4, 8).alpha() - alphaAt4) <= 2);
    QCOMPARE(img.pixelColor(5, 8), QColor(Qt::blue));
    QVERIFY(std::abs(img.pixelColor(11, 8).alpha() - alphaAt4) <= 2);
    QCOMPARE(img.pixelColor(12, 8).alpha(), 0);
}

void tst_Icons::sharpAtEveryRatio_data()
{
    QTest::addColumn<double>("ratio");
    for (double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0})
        QTest::addRow("%g", ratio) << ratio;
}

// The kept picture is the drawing itself: nothing is scaled or moved to fit the pixels.
void tst_Icons::sharpAtEveryRatio()
{
    QFETCH(double, ratio);
    WSvgIcon icon(WSvgRenderer::resourcePath(QStringLiteral("settings_16")));
    icon.setColorSet(plainSet("a", Qt::red));
    const WSvgRenderer renderer(icon.getFilePath());
    for (const QPointF &at : {QPointF(0, 0), QPointF(3, 5), QPointF(.5, 1.25)}) {
        QImage kept = image(ratio, 32), direct = kept;
        for (int time = 0; time < 2; ++time) { // the second time it is there already
            kept.fill(Qt::transparent);
            QPainter painter(&kept);
            painter.translate(at);
            icon.draw(&painter, Enabled);
        }
        QPainter painter(&direct);
        renderer.draw(&painter, QRectF(at, QSizeF(16, 16)), Qt::red);
        painter.end();
        int worst = 0;
        for (int y = 0; y < kept.height(); ++y) {
            for (int x = 0; x < kept.width(); ++x)
                worst = qMax(worst, std::abs(qAlpha(kept.pixel(x, y)) - qAlpha(direct.pixel(x, y))));
        }
        QVERIFY2(worst <= 6, qPrintable(QStringLiteral("%1 at %2, %3").arg(worst).arg(at.x()).arg(at.y())));
    }
}

void tst_Icons::placesAndTransforms()
{
    WSvgIcon icon(file("left.svg"));
    icon.setColorSet(plainSet("a", Qt::red));
    QImage img = image(1);
    const auto paint = [&](const QTransform &transform) {
        img.fill(Qt::transparent);
        QPainter painter(&img);
        painter.setTransform(transform);
        icon.draw(&painter, Enabled);
        painter.end();
        return quarters(img);
    };
    QCOMPARE(paint(QTransform().translate(16, 0).rotate(90)), QStringLiteral("rr.."));
    QCOMPARE(paint(QTransform().translate(16, 0).scale(-1, 1)), QStringLiteral(".r.r"));
    QCOMPARE(paint(QTransform().scale(1, .5)), QStringLiteral("r..."));
    QCOMPARE(paint(QTransform().translate(-8, 0)), QStringLiteral("...."));
    QCOMPARE(paint(QTransform().scale(40, 40)), QStringLiteral("rrrr")); // too large to be kept
    icon.setIconSize(QSize(40000, 40000));
    QCOMPARE(paint(QTransform().scale(.0004, .0004)), QStringLiteral("r.r."));
    icon.setIconSize(QSize(16, 16));
    QCOMPARE(paint(QTransform()), QStringLiteral("r.r."));

    // Other devices get the drawing and not a picture of it.
    QPicture picture;
    {
        QPainter painter(&picture);
        icon.draw(&painter, Enabled);
    }
    img.fill(Qt::transparent);
    QPainter painter(&img);
    picture.play(&painter);
    painter.end();
    QCOMPARE(quarters(img), QStringLiteral("r.r."));
}

// A stem as wide as a pixel is one row of full pixels, and its neighbours are empty.
void tst_Icons::stems()
{
    write("stem.svg", svg("<g>" + box() + "<path d='M4 2h1v12H4z'/></g>"));
    WSvgIcon icon(file("stem.svg"));
    icon.setColorSet(plainSet("a", Qt::red));
    for (int ratio : {1, 2}) {
        const QImage img = drawn(icon, Enabled, ratio);
        QString row;
        for (int x = 3 * ratio; x < 6 * ratio; ++x)
            row += QString::number(img.pixelColor(x, 8 * ratio).alpha()) + QLatin1Char(' ');
        QCOMPARE(row, ratio == 1 ? QStringLiteral("0 255 0 ") : QStringLiteral("0 0 255 255 0 0 "));
    }
}

void tst_Icons::picturesAreMadeWhenPainted()
{
    std::vector<std::unique_ptr<WSvgIcon>> icons;
    int made = WSvgIcon::renderedPictures();
    const qint64 bytes = WSvgIcon::pictureBytes();
    for (int i = 0; i < 20; ++i) {
        icons.push_back(std::make_unique<WSvgIcon>(file("left.svg")));
        icons.back()->setColorSet(plainSet("a", QColor(1, 2, 3)));
    }
    QCOMPARE(WSvgIcon::renderedPictures(), made);
    const auto paint = [&](int count, double ratio = 1) {
        for (int i = 0; i < count; ++i)
            drawn(*icons[size_t(i)], Enabled, ratio);
        return WSvgIcon::renderedPictures() - std::exchange(made, WSvgIcon::renderedPictures());
    };
    QCOMPARE(paint(3), 3); // files are not shared: each may have changed in between
    QCOMPARE(paint(3), 0);
    // Of each the half that something is in.
    QCOMPARE(WSvgIcon::pictureBytes(), bytes + 3 * (8 * 16 * 4 + 400));
    // Another theme costs those that are seen in it.
    for (const auto &icon : icons)
        icon->setColorSet(plainSet("a", QColor(3, 2, 1)));
    QCOMPARE(paint(2), 2);
    QCOMPARE(paint(2, 2), 2); // on another screen
    QCOMPARE(paint(2), 0);

    // Icons of the resources share theirs.
    const QString resource = WSvgRenderer::resourcePath(QStringLiteral("star_16"));
    WSvgIcon first(resource), second(resource);
    first.setColorSet(plainSet("a", QColor(1, 2, 4)));
    second.setColorSet(first.getColorSet());
    QCOMPARE(drawn(first), drawn(second));
    QCOMPARE(WSvgIcon::renderedPictures(), made + 1);
}

void tst_Icons::mirroring()
{
    using M = WSvgIcon::Mirroring;
    WSvgIcon icon(file("left.svg"));
    icon.setColorSet(plainSet("a", Qt::red));
    const auto drawnAs = [&](M mirroring, Qt::LayoutDirection direction) {
        icon.setMirroring(mirroring);
        return quarters(drawn(icon, Enabled, 1, direction));
    };
    QCOMPARE(drawnAs(M::BySet, Qt::RightToLeft), QStringLiteral("r.r.")); // a file of the host's
    QCOMPARE(drawnAs(M::Always, Qt::RightToLeft), QStringLiteral(".r.r"));
    QCOMPARE(drawnAs(M::Always, Qt::LeftToRight), QStringLiteral("r.r."));
    QCOMPARE(drawnAs(M::Never, Qt::RightToLeft), QStringLiteral("r.r."));
    QCOMPARE(drawnAs(M::Always, Qt::LayoutDirectionAuto), QStringLiteral("r.r."));
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(drawnAs(M::Always, Qt::LayoutDirectionAuto), QStringLiteral(".r.r"));
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    // On a widget its direction counts, also where the program has another.
    struct Shows : QWidget
    {
        void paintEvent(QPaintEvent *) override
        {
            QPainter painter(this);
            shown->draw(&painter, Enabled);
        }
        const WSvgIcon *shown = nullptr;
    } widget;
    widget.shown = &icon;
    widget.resize(16, 16);
    widget.setAttribute(Qt::WA_TranslucentBackground);
    icon.setMirroring(M::Always);
    for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        widget.setLayoutDirection(direction);
        QCOMPARE(quarters(widget.grab().toImage()),
                 direction == Qt::LeftToRight ? QStringLiteral("r.r.") : QStringLiteral(".r.r"));
    }
    icon.setFilePath(file("two.svg")); // also what has its own colors
    QCOMPARE(drawnAs(M::Always, Qt::RightToLeft), QStringLiteral("brbr"));

    for (const auto &[name, mirrors] : std::vector<std::pair<const char *, bool>> {{"arrow-left_16", true},
                                                                                   {"send-filled_20", true},
                                                                                   {"reply_24", true},
                                                                                   {"check_16", false},
                                                                                   {"search_16", false},
                                                                                   {"arrow-down_8", false},
                                                                                   {"clock_16", false}}) {
        const QString path = WSvgRenderer::resourcePath(QString::fromLatin1(name));
        QVERIFY2(WSvgIcon::isMirroredBySet(path) == mirrors, name);
        QVERIFY2(WSvgIcon::isMirroredBySet(QStringLiteral("qrc") + path) == mirrors, name);
        icon.setFilePath(path);
        icon.setMirroring(M::BySet);
        const QImage ltr = drawn(icon), rtl = drawn(icon, Enabled, 1, Qt::RightToLeft);
        QVERIFY2((rtl == ltr) == !mirrors, name);
    }
    QVERIFY(!WSvgIcon::isMirroredBySet(QStringLiteral("/tmp/arrow-left_16.svg")));
    QVERIFY(!WSvgIcon::isMirroredBySet(QString()));
}

void tst_Icons::themedIconFollows()
{
    WApplication *app = WApplication::find();
    WColorSet colors(QStringLiteral("icon-set"));
    colors.fill(Qt::red);
    colors.setColor(WColorSet::Disabled, QColor(0, 128, 0));
    colors.setColor(WColorSet::Hovered, QColor(255, 255, 0));
    colors.setColor(WColorSet::Checked, Qt::blue);
    app->setColorSets({{"icon-set", colors}});
    const QIcon icon = WSvgIconEngine::icon(file("left.svg"), QStringLiteral("icon-set"),
                                            WThemeUtils::AppThemeTypeGlobal, file("blue.svg"));
    QVERIFY(!icon.isNull());
    const auto shown = [&icon](QIcon::Mode mode, QIcon::State state, int side = 16) {
        return quarters(icon.pixmap(QSize(side, side), mode, state).toImage());
    };
    QCOMPARE(shown(QIcon::Normal, QIcon::Off), QStringLiteral("r.r."));
    QCOMPARE(shown(QIcon::Disabled, QIcon::Off), QStringLiteral("g.g."));
    QCOMPARE(shown(QIcon::Active, QIcon::Off), QStringLiteral("y.y."));
    QCOMPARE(shown(QIcon::Selected, QIcon::Off), QStringLiteral("b.b."));
    QCOMPARE(shown(QIcon::Normal, QIcon::On), QStringLiteral("bbbb"));
    QCOMPARE(shown(QIcon::Normal, QIcon::Off, 47), QStringLiteral("r.r."));

    // A plain widget that shows it paints the new color without being told.
    QToolButton button;
    button.setAutoRaise(true);
    button.setIconSize(QSize(16, 16));
    button.setIcon(icon);
    button.resize(32, 32);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    struct Paints : QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int count = 0;
    } paints;
    QCoreApplication::processEvents();
    button.installEventFilter(&paints);
    colors.fill(Qt::blue);
    app->setColorSets({{"icon-set", colors}});
    QTRY_VERIFY(paints.count > 0);
    QCOMPARE(button.grab().toImage().pixelColor(12, 16), QColor(Qt::blue));

    // So does a list, whose rows are painted by its viewport.
    QListWidget list;
    list.addItem(new QListWidgetItem(icon, QStringLiteral("row")));
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    QCoreApplication::processEvents();
    paints.count = 0;
    list.viewport()->installEventFilter(&paints);
    app->setColorSets({{"icon-set", plainSet("icon-set", Qt::red)}});
    QTRY_VERIFY(paints.count > 0);

    // A copy has a clone of the engine, with all that it was given.
    app->setInvertedColorSets({{"icon-set", plainSet("icon-set", QColor(255, 255, 0))}});
    QIcon copy = WSvgIconEngine::icon(file("left.svg"), QStringLiteral("icon-set"), WThemeUtils::AppThemeTypeInverted,
                                      file("blue.svg"));
    copy = QIcon(WSvgIconEngine(file("left.svg"), QStringLiteral("icon-set"), WThemeUtils::AppThemeTypeInverted,
                                file("blue.svg"))
                     .clone());
    QCOMPARE(quarters(copy.pixmap(QSize(16, 16)).toImage()), QStringLiteral("y.y."));
    QCOMPARE(quarters(copy.pixmap(QSize(16, 16), QIcon::Normal, QIcon::On).toImage()), QStringLiteral("yyyy"));

    // In the middle of what is not square.
    QImage wide(32, 16, QImage::Format_ARGB32_Premultiplied);
    wide.fill(Qt::transparent);
    QPainter painter(&wide);
    icon.paint(&painter, wide.rect());
    painter.end();
    QCOMPARE(wide.pixelColor(7, 8).alpha(), 0);
    QCOMPARE(wide.pixelColor(8, 8), QColor(Qt::red));
    QCOMPARE(wide.pixelColor(16, 8).alpha(), 0);
    app->setColorSets({});
    app->setInvertedColorSets({});
}

// Plain Qt widgets ask an icon for pixels of the window only with this attribute.
void tst_Icons::themedIconOnAScreenOfRatioTwo()
{
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
}

void tst_Icons::themedIconInAnUnknownColor()
{
    WApplication::find()->setColorSets({{"other", plainSet("other", Qt::red)}});
    WarningLog log;
    const QIcon icon = WSvgIconEngine::icon(file("left.svg"), QStringLiteral("no-set"));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(quarters(icon.pixmap(16).toImage()), QStringLiteral("...."));
    QCOMPARE(log.take(), QStringList(QStringLiteral("WSvgIconEngine - No color set of the theme is named no-set")));
    QVERIFY(WSvgIconEngine::icon(file("broken.svg"), QStringLiteral("other")).isNull());
    QCOMPARE(log.take().size(), 1);
    WApplication::find()->setColorSets({});
}

void tst_Icons::fitRectangle()
{
    const QRectF rect(10, 20, 40, 20);
    QCOMPARE(DrawUtils::fitRectangle(rect, 1), QRectF(20, 20, 20, 20));
    QCOMPARE(DrawUtils::fitRectangle(rect, 4), QRectF(10, 25, 40, 10));
    QCOMPARE(DrawUtils::fitRectangle(rect, 2), rect);
    for (double aspect : {0.0, -1.0, HUGE_VAL, std::nan("")})
        QVERIFY(DrawUtils::fitRectangle(rect, aspect).isEmpty());
    QVERIFY(DrawUtils::fitRectangle(QRectF(), 1).isEmpty());
}

void tst_Icons::focusFrame()
{
    QImage img = image(1);
    QPainter painter(&img);
    DrawUtils::drawFocusRect(&painter, QRectF(2, 2, 12, 12), Qt::red, 4);
    DrawUtils::drawFocusRect(&painter, QRectF(2, 2, 2, 2), Qt::blue, 4); // no room
    DrawUtils::drawFocusRect(&painter, QRectF(0, 0, 16, 16), QColor(), 4);
    DrawUtils::drawFocusRect(nullptr, QRectF(0, 0, 16, 16), Qt::red, 4);
    painter.end();
    QString column;
    for (int x = 0; x < 6; ++x)
        column += img.pixelColor(x, 8) == QColor(Qt::red) ? QLatin1Char('r') : QLatin1Char('.');
    QCOMPARE(column, QStringLiteral("..rr..")); // two pixels, inside
    QCOMPARE(img.pixelColor(2, 2).alpha(), 0); // the corner is round
    QCOMPARE(DrawUtils::layoutDirection(nullptr), Qt::LeftToRight);
}

void tst_Icons::iconAndText_data()
{
    using A = WEnum::Alignment;
    using H = WEnum::HorAlign;
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("text");
    QTest::addColumn<bool>("rtl");
    QTest::addColumn<QSize>("textSize");
    QTest::addColumn<QRect>("iconRect");
    QTest::addColumn<QRect>("textRect");
    const auto row = [](const char *name, A icon, H text, bool rtl, QSize size, QRect iconRect, QRect textRect) {
        QTest::newRow(name) << int(icon) << int(text) << rtl << size << iconRect << textRect;
    };
    // In 100 x 60: an icon of 16 with margins of 1, 2, 3, 4 and a text with paddings of 5 and 6.
    const QSize text(30, 10);
    row("left", A::Left, H::Left, false, text, QRect(1, 21, 16, 16), QRect(25, 25, 30, 10));
    row("left, mirrored", A::Left, H::Left, true, text, QRect(83, 21, 16, 16), QRect(45, 25, 30, 10));
    row("right", A::Right, H::Right, false, text, QRect(81, 21, 16, 16), QRect(44, 25, 30, 10));
    row("centred", A::Left, H::Center, false, text, QRect(20, 21, 16, 16), QRect(44, 25, 30, 10));
    row("above", A::Top, H::Left, false, text, QRect(11, 16, 16, 16), QRect(5, 36, 30, 10));
    row("below", A::Bottom, H::Left, false, text, QRect(11, 26, 16, 16), QRect(5, 14, 30, 10));
    row("text too wide", A::Left, H::Center, false, QSize(500, 10), QRect(1, 21, 16, 16), QRect(25, 25, 69, 10));
    row("no text", A::Left, H::Center, false, QSize(), QRect(41, 21, 16, 16), QRect());
}

void tst_Icons::iconAndText()
{
    QFETCH(int, icon);
    QFETCH(int, text);
    QFETCH(bool, rtl);
    QFETCH(QSize, textSize);
    DrawUtils::IconTextMetrics metrics;
    metrics.iconSize = QSize(16, 16);
    metrics.textSize = textSize;
    metrics.iconMargins = QMargins(1, 2, 3, 4);
    metrics.textLeftPadding = 5;
    metrics.textRightPadding = 6;
    metrics.iconAlignment = WEnum::Alignment(icon);
    metrics.textAlignment = WEnum::HorAlign(text);
    const DrawUtils::IconTextLayout layout =
        DrawUtils::calculateIconTextOffset(QRect(0, 0, 100, 60), metrics, rtl ? Qt::RightToLeft : Qt::LeftToRight);
    QTEST(layout.icon, "iconRect");
    QTEST(layout.text, "textRect");
}

void tst_Icons::iconAndTextPainted()
{
    WSvgIcon icon(file("blue.svg"));
    icon.setColorSet(plainSet("icon", Qt::blue));
    DrawUtils::IconText content;
    content.icon = &icon;
    content.text = QStringLiteral("\u2588\u2588\u2588\u2588\u2588\u2588\u2588\u2588\u2588\u2588"); // full blocks
    content.textColors = plainSet("text", Qt::red);
    QTextDocument document;
    document.setPlainText(content.text);
    document.setDocumentMargin(0);
    for (QTextDocument *rich : {static_cast<QTextDocument *>(nullptr), &document}) {
        content.document = rich;
        for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QImage img(60, 30, QImage::Format_ARGB32_Premultiplied);
            img.fill(Qt::white);
            QPainter painter(&img);
            painter.setLayoutDirection(direction);
            DrawUtils::drawSvgIconText(&painter, QRect(4, 0, 50, 30), content, Enabled);
            painter.end();
            QSet<QRgb> colors[2]; // seen in the room of the icon and in that of the text
            for (int y = 0; y < img.height(); ++y) {
                for (int x = 0; x < img.width(); ++x) {
                    const bool isIcon = direction == Qt::LeftToRight ? x < 20 : x >= 38;
                    colors[isIcon ? 0 : 1].insert(img.pixel(x, y));
                    if ((x < 4 || x >= 54) && img.pixelColor(x, y) != QColor(Qt::white))
                        QFAIL("outside of the rectangle");
                }
            }
            QVERIFY(colors[0].contains(QColor(Qt::blue).rgb()));
            QVERIFY(!colors[0].contains(QColor(Qt::red).rgb()));
            QVERIFY(colors[1].contains(QColor(Qt::red).rgb()));
            QVERIFY(!colors[1].contains(QColor(Qt::blue).rgb()));
        }
    }
}

W_TEST_MAIN(tst_Icons)
#include "tst_icons.moc"
