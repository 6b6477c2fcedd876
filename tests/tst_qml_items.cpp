#include "support/WarningLog.h"

#include <UiElements/qml/WQmlBalloon.h>
#include <UiElements/qml/WQmlHalfPill.h>
#include <UiElements/qml/WQmlTypes.h>

#include <QApplication>
#include <QPainter>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>
#include <QtTest>

namespace {

using Anchor = WQmlBalloon::ArrowAnchor;
using Alignment = WQmlBalloon::ArrowAlignment;

const QColor fill(250, 240, 230);
const QColor border(10, 60, 110);

template <typename Item>
QImage painted(Item &item, const QSizeF &size, qreal ratio)
{
    item.setSize(size);
    QImage image((size * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    item.paint(&painter);
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

/// Turns a picture so that what was on that side is on top.
QImage upright(const QImage &image, Anchor anchor)
{
    switch (anchor) {
    case WQmlBalloon::Bottom: return image.mirrored(false, true);
    case WQmlBalloon::Left: return image.transformed(QTransform(0, 1, 1, 0, 0, 0));
    case WQmlBalloon::Right: return image.mirrored(true, false).transformed(QTransform(0, 1, 1, 0, 0, 0));
    default: return image;
    }
}

/// The colors of a row or a column in runs, "2 #00000000, 1 #ff0a3c6e, ...".
QString runs(const QImage &image, QPoint from, QPoint step)
{
    QStringList list;
    int count = 0;
    QRgb last = 0;
    const auto flush = [&] {
        if (count)
            list << QStringLiteral("%1 %2").arg(count).arg(QColor::fromRgba(last).name(QColor::HexArgb));
    };
    for (; image.rect().contains(from); from += step) {
        const QRgb color = image.pixel(from);
        if (count && color != last) {
            flush();
            count = 0;
        }
        last = color;
        ++count;
    }
    flush();
    return list.join(QLatin1String(", "));
}

QString run(int count, const QColor &color)
{
    return QStringLiteral("%1 %2").arg(count).arg(color.name(QColor::HexArgb));
}

/// The largest difference of two pixels, in any channel.
int difference(const QImage &a, const QImage &b)
{
    int largest = a.size() == b.size() ? 0 : 255;
    for (int y = 0; largest < 255 && y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            for (int shift : {0, 8, 16, 24})
                largest = qMax(largest, qAbs(int(p >> shift & 0xff) - int(q >> shift & 0xff)));
        }
    }
    return largest;
}

class CountingBalloon : public WQmlBalloon
{
public:
    int paints = 0;
    void paint(QPainter *painter) override
    {
        ++paints;
        WQmlBalloon::paint(painter);
    }
};

class CountingPill : public WQmlHalfPill
{
public:
    int paints = 0;
    void paint(QPainter *painter) override
    {
        ++paints;
        WQmlHalfPill::paint(painter);
    }
};

} // namespace

class tst_QmlItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void themeOfNoApplication();
    void arrowCenters_data();
    void arrowCenters();
    void placement_data();
    void placement();
    void tipMeetsTheMiddleOfTheTarget_data();
    void tipMeetsTheMiddleOfTheTarget();
    void placementAgainstAnItem();
    void sidesAndArrowTypes();
    void onlyChangesAreToldAndPainted_data();
    void onlyChangesAreToldAndPainted();
    void balloonPixels_data();
    void balloonPixels();
    void arrowLeavesTheCorners_data();
    void arrowLeavesTheCorners();
    void pillHasNoSeams_data();
    void pillHasNoSeams();
    void pillBorders_data();
    void pillBorders();
};

// In tools that show QML.
void tst_QmlItems::themeOfNoApplication()
{
    WQmlTypes::registerQmlTypes();
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(R"(
import QtQuick 2.15
import UiElements 1.0
Text {
    color: Theme.colorSet("text-primary").normal
    font: Theme.fonts.BodyPrimary
    property url icon: Theme.icon("chat_24", "red")
})",
                      QUrl());
    WarningLog log;
    const std::unique_ptr<QObject> text(component.create());
    QVERIFY2(text, qPrintable(component.errorString()));
    QCOMPARE(log.take(), QStringList(QStringLiteral("ColorSet name does not exist!  \"text-primary\"")));
    QVERIFY(text->property("font").value<QFont>().pixelSize() > 0);
    QVERIFY(!text->property("icon").toUrl().isEmpty());
}

void tst_QmlItems::arrowCenters_data()
{
    QTest::addColumn<int>("horizontal");
    QTest::addColumn<int>("vertical");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("radius");
    QTest::addColumn<double>("length");
    QTest::addColumn<double>("center");

    const int left = WQmlBalloon::LeftAlignment, top = WQmlBalloon::TopAlignment;
    const int center = WQmlBalloon::CenterAlignment;
    const int right = WQmlBalloon::RightAlignment, bottom = WQmlBalloon::BottomAlignment;
    QTest::newRow("start") << left << top << 7 << 10 << 0 << 200.0 << 17.0;
    QTest::newRow("end") << right << bottom << -7 << 10 << 0 << 200.0 << 183.0;
    QTest::newRow("middle") << center << center << 5 << 10 << 4 << 101.0 << 55.5;
    QTest::newRow("an alignment of the other sides") << top << left << 5 << 10 << 4 << 101.0 << 55.5;
    QTest::newRow("start, kept from the corner") << left << top << 0 << 10 << 8 << 200.0 << 18.0;
    QTest::newRow("end, kept from the corner") << right << bottom << 0 << 10 << 8 << 200.0 << 182.0;
    QTest::newRow("pushed far beyond the start") << center << center << -500 << 10 << 8 << 200.0 << 18.0;
    QTest::newRow("pushed far beyond the end") << center << center << 500 << 10 << 8 << 200.0 << 182.0;
    QTest::newRow("too narrow for both corners") << center << center << 0 << 10 << 8 << 30.0 << 18.0;
    QTest::newRow("too narrow, at the end") << right << bottom << 0 << 10 << 10 << 30.0 << 20.0;
}

void tst_QmlItems::arrowCenters()
{
    QFETCH(int, horizontal);
    QFETCH(int, vertical);
    QFETCH(int, offset);
    QFETCH(int, size);
    QFETCH(int, radius);
    QFETCH(double, length);
    QFETCH(double, center);
    WQmlBalloon balloon;
    balloon.setArrowOffset(offset);
    balloon.setArrowSize(size);
    QVERIFY(balloon.setProperty("radius", radius));
    balloon.setArrowAlignment(Alignment(horizontal));
    QCOMPARE(balloon.getXCenter(QSizeF(length, 7)), center);
    balloon.setArrowAlignment(Alignment(vertical));
    QCOMPARE(balloon.getYCenter(QSizeF(7, length)), center);
}

void tst_QmlItems::placement_data()
{
    QTest::addColumn<int>("anchor");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QRect>("target");
    QTest::addColumn<QPoint>("position");

    const QRect target(100, 200, 51, 31); // to 150, 230; halves 25, 15
    const QRect left(-1000, -500, 50, 30); // to -951, -471; halves 25, 15
    // Popup 81 x 61 (halves 40, 30), offset 3, arrow 8.
    QTest::newRow("below") << 1 << 1 << target << QPoint(150 - 3 - 25 - 40, 230);
    QTest::newRow("below, left") << 1 << 0 << target << QPoint(150 - 3 - 25 - 8, 230);
    QTest::newRow("below, right") << 1 << 2 << target << QPoint(150 - 3 - 25 - 81 + 8, 230);
    QTest::newRow("above") << 2 << 1 << target << QPoint(150 - 3 - 25 - 40, 200 - 61);
    QTest::newRow("above, an alignment for sides") << 2 << 3 << target << QPoint(150 - 3 - 25 - 40, 200 - 61);
    QTest::newRow("right of it") << 3 << 1 << target << QPoint(150, 230 - 3 - 15 - 30);
    QTest::newRow("right of it, top") << 3 << 3 << target << QPoint(150, 230 - 3 - 15 - 8);
    QTest::newRow("right of it, bottom") << 3 << 4 << target << QPoint(150, 230 - 3 - 15 - 61 + 8);
    QTest::newRow("left of it") << 4 << 0 << target << QPoint(100 - 81, 230 - 3 - 15 - 30);
    QTest::newRow("no arrow") << 0 << 1 << target << QPoint(150 - 3 - 25 - 40, 200);
    QTest::newRow("on a screen left of the first") << 1 << 1 << left << QPoint(-951 - 3 - 25 - 40, -471);
    QTest::newRow("left of it, there") << 4 << 3 << left << QPoint(-1081, -471 - 3 - 15 - 8);
}

void tst_QmlItems::placement()
{
    QFETCH(int, anchor);
    QFETCH(int, alignment);
    QFETCH(QRect, target);
    QFETCH(QPoint, position);
    QCOMPARE(QPoint(WQmlBalloon::getGlobalXCenter(Alignment(alignment), Anchor(anchor), target, 3, 8, 81),
                    WQmlBalloon::getGlobalYCenter(Alignment(alignment), Anchor(anchor), target, 3, 8, 61)),
             position);
}

void tst_QmlItems::tipMeetsTheMiddleOfTheTarget_data()
{
    QTest::addColumn<int>("anchor");
    QTest::addColumn<int>("alignment");
    for (int anchor = 1; anchor <= 4; ++anchor) {
        for (int alignment = 0; alignment <= 4; ++alignment)
            QTest::addRow("anchor %d alignment %d", anchor, alignment) << anchor << alignment;
    }
}

// What is drawn and where the window goes, put together: the tip that one sees is at the target.
void tst_QmlItems::tipMeetsTheMiddleOfTheTarget()
{
    QFETCH(int, anchor);
    QFETCH(int, alignment);
    const QSize size(160, 120);
    for (int offset : {-20, 0, 15}) {
        for (const QRect &target : {QRect(300, 400, 40, 20), QRect(-200, -100, 41, 21)}) {
            WQmlBalloon balloon;
            balloon.setArrowAnchor(Anchor(anchor));
            balloon.setArrowAlignment(Alignment(alignment));
            balloon.setArrowOffset(alignment == 1 ? offset
                                                  : qAbs(offset) * (alignment == 2 || alignment == 4 ? -1 : 1));
            balloon.setBackgroundColor(Qt::black);
            const QImage image = painted(balloon, size, 1);
            const QImage turned = upright(image, Anchor(anchor));
            int first = 0;
            while (first < turned.width() && qAlpha(turned.pixel(first, 0)) == 0)
                ++first;
            int last = first;
            while (last + 1 < turned.width() && qAlpha(turned.pixel(last + 1, 0)) > 0)
                ++last;
            const double tip = (first + last + 1) / 2.0;

            const int x = WQmlBalloon::getGlobalXCenter(Alignment(alignment), Anchor(anchor), target,
                                                        balloon.arrowOffset(), balloon.arrowSize(), size.width());
            const int y = WQmlBalloon::getGlobalYCenter(Alignment(alignment), Anchor(anchor), target,
                                                        balloon.arrowOffset(), balloon.arrowSize(), size.height());
            const bool beside = anchor >= 3;
            const double middle = beside ? target.bottom() - target.height() / 2 : target.right() - target.width() / 2;
            QVERIFY2(qAbs((beside ? y : x) + tip - middle) <= 0.5,
                     qPrintable(QStringLiteral("tip %1, middle %2").arg((beside ? y : x) + tip).arg(middle)));
        }
    }
}

void tst_QmlItems::placementAgainstAnItem()
{
    QQuickWindow window;
    window.setGeometry(-700, 50, 300, 200);
    QQuickItem item(window.contentItem());
    item.setPosition({20, 30});
    item.setSize({25, 15});
    item.setScale(2);
    item.setTransformOrigin(QQuickItem::TopLeft);
    // The item covers -680, 80 to -631, 109.
    QCOMPARE(WQmlBalloon::calcArrowPos(&item, {80, 60}, WQmlBalloon::Top, WQmlBalloon::CenterAlignment, 0, 10),
             QPoint(-631 - 25 - 40, 109));
    QCOMPARE(WQmlBalloon::calcArrowPos(&item, {80, 60}, WQmlBalloon::Right, WQmlBalloon::TopAlignment, 4, 10),
             QPoint(-680 - 80, 109 - 4 - 15 - 10));
    WarningLog log;
    QCOMPARE(WQmlBalloon::calcArrowPos(nullptr, {80, 60}, WQmlBalloon::Top, WQmlBalloon::CenterAlignment, 0, 10),
             QPoint());
    QCOMPARE(log.take(), QStringList(QStringLiteral("WQmlBalloon::calcArrowPos - The item must not be null")));
}

void tst_QmlItems::sidesAndArrowTypes()
{
    const QVector<Qt::ArrowType> types {Qt::NoArrow, Qt::UpArrow, Qt::DownArrow, Qt::LeftArrow, Qt::RightArrow};
    const QVector<int> opposite {0, 2, 1, 4, 3};
    for (int i = 0; i <= 4; ++i) {
        QCOMPARE(int(WQmlBalloon::arrowAnchorFromArrowType(types.at(i))), i);
        QCOMPARE(WQmlBalloon::arrowTypeFromArrowAnchor(Anchor(i)), types.at(i));
        QCOMPARE(int(WQmlBalloon::flipAnchor(Anchor(i))), opposite.at(i));
    }
    for (int i : {-1, 5, 77}) {
        QCOMPARE(WQmlBalloon::arrowAnchorFromArrowType(Qt::ArrowType(i)), WQmlBalloon::None);
        QCOMPARE(WQmlBalloon::arrowTypeFromArrowAnchor(Anchor(i)), Qt::NoArrow);
        QCOMPARE(WQmlBalloon::flipAnchor(Anchor(i)), WQmlBalloon::None);
    }
}

void tst_QmlItems::onlyChangesAreToldAndPainted_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("pill");
    const auto add = [](bool pill, const char *name, const QVariant &value) {
        QTest::addRow("%s %s", pill ? "pill" : "balloon", name) << QByteArray(name) << value << pill;
    };
    add(false, "arrowAlignment", WQmlBalloon::RightAlignment);
    add(false, "arrowAnchor", WQmlBalloon::Left);
    add(false, "backgroundColor", fill);
    add(false, "borderColor", border);
    add(false, "arrowOffset", 5);
    add(false, "arrowSize", 4);
    add(false, "radius", 6);
    add(false, "borderWidth", 2);
    add(false, "topMargin", 3);
    add(true, "backgroundColor", fill);
    add(true, "borderColor", border);
    add(true, "borderBottom", false);
    add(true, "borderLeft", false);
    add(true, "borderRight", false);
    add(true, "borderTop", false);
    add(true, "borderWidth", 3);
    add(true, "edge", WQmlHalfPill::Right);
}

void tst_QmlItems::onlyChangesAreToldAndPainted()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);
    QFETCH(bool, pill);
    QQuickWindow window;
    window.resize(100, 100);
    CountingBalloon balloon;
    CountingPill halfPill;
    QQuickItem &item = pill ? static_cast<QQuickItem &>(halfPill) : balloon;
    const int &paints = pill ? halfPill.paints : balloon.paints;
    item.setParentItem(window.contentItem());
    item.setSize({80, 60});
    window.show();
    QTRY_COMPARE(paints, 1);

    const QMetaProperty property = item.metaObject()->property(item.metaObject()->indexOfProperty(name.constData()));
    QSignalSpy changed(&item, property.notifySignal());
    const QVariant first = property.read(&item);
    QVERIFY(property.write(&item, first));
    QTest::qWait(30); // as long as a frame could take
    QCOMPARE(changed.count(), 0);
    QCOMPARE(paints, 1);
    QVERIFY(property.write(&item, value));
    QCOMPARE(changed.count(), 1);
    QTRY_COMPARE(paints, 2);
    QVERIFY(property.write(&item, value));
    QTest::qWait(30);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(paints, 2);
}

void tst_QmlItems::balloonPixels_data()
{
    QTest::addColumn<int>("anchor");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("width");
    for (int anchor = 0; anchor <= 4; ++anchor) {
        for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
            for (const QSizeF &size : {QSizeF(96, 76), QSizeF(97, 75)}) {
                for (const int width : {0, 1, 2, 3}) {
                    QTest::addRow("%d %gx%g @%g border %d", anchor, size.width(), size.height(), ratio, width)
                        << anchor << size << ratio << width;
                }
            }
        }
    }
}

// Across the box, away from arrow and corners, there are whole pixels of border and of background and nothing between.
void tst_QmlItems::balloonPixels()
{
    QFETCH(int, anchor);
    QFETCH(QSizeF, size);
    QFETCH(double, ratio);
    QFETCH(int, width);
    WQmlBalloon balloon;
    balloon.setArrowAnchor(Anchor(anchor));
    balloon.setArrowSize(8);
    balloon.setProperty("radius", 6);
    balloon.setBorderWidth(width);
    balloon.setBorderColor(border);
    balloon.setBackgroundColor(fill);
    const QImage image = upright(painted(balloon, size, ratio), Anchor(anchor));

    const int line = qRound(width * ratio);
    const int arrow = anchor ? qRound(8 * ratio) : 0;
    const auto across = [line](int before, int length) {
        QStringList list;
        if (before)
            list << run(before, Qt::transparent);
        if (line)
            list << run(line, border);
        list << run(length - before - 2 * line, fill);
        if (line)
            list << run(line, border);
        return list.join(QLatin1String(", "));
    };
    const int away = qRound(20 * ratio);
    QCOMPARE(runs(image, {away, 0}, {0, 1}), across(arrow, image.height()));
    QCOMPARE(runs(image, {0, image.height() - away}, {1, 0}), across(0, image.width()));
    QCOMPARE(qAlpha(image.pixel(0, image.height() - 1)), 0);

    if (!anchor)
        return;
    // The arrow: as wide on either side of its tip, from the very edge on, border outside and background inside.
    for (int y = 0; y < arrow; ++y) {
        int first = 0;
        while (qAlpha(image.pixel(first, y)) == 0 && first < image.width() - 1)
            ++first;
        int last = image.width() - 1;
        while (qAlpha(image.pixel(last, y)) == 0 && last > 0)
            --last;
        QVERIFY2(first <= last, qPrintable(QStringLiteral("row %1 is empty").arg(y)));
        QVERIFY(qAbs(first + last + 1 - image.width()) <= 1);
        QVERIFY(qAbs((last - first + 1) - 2 * (y + 1)) <= 1);
        if (line > 1 && y > 2)
            QVERIFY2(qAbs(qRed(image.pixel(first + 1, y)) - border.red()) < 16, qPrintable(QString::number(y)));
    }
    QCOMPARE(QColor(image.pixel(image.width() / 2, arrow + line)), fill);
}

void tst_QmlItems::arrowLeavesTheCorners_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<int>("radius");
    QTest::newRow("roomy") << QSizeF(120, 60) << 12;
    QTest::newRow("just") << QSizeF(44, 60) << 12;
    QTest::newRow("tight") << QSizeF(34, 60) << 12;
    QTest::newRow("narrower than the arrow") << QSizeF(14, 60) << 12;
    QTest::newRow("flat") << QSizeF(120, 14) << 40;
    QTest::newRow("nothing but arrow") << QSizeF(40, 10) << 4;
    QTest::newRow("less than the arrow") << QSizeF(40, 6) << 4;
    QTest::newRow("a pixel") << QSizeF(1, 1) << 4;
    QTest::newRow("nothing") << QSizeF(0, 0) << 4;
}

// Every picture is inside the item, and its arrow begins at a straight part: below each painted pixel of the arrow
// there is another one, down to the middle of the box.
void tst_QmlItems::arrowLeavesTheCorners()
{
    QFETCH(QSizeF, size);
    QFETCH(int, radius);
    for (int anchor = 1; anchor <= 4; ++anchor) {
        for (int alignment = 0; alignment <= 4; ++alignment) {
            for (int offset : {-1000, 0, 1000}) {
                WQmlBalloon balloon;
                balloon.setArrowAnchor(Anchor(anchor));
                balloon.setArrowAlignment(Alignment(alignment));
                balloon.setArrowOffset(offset);
                balloon.setProperty("radius", radius);
                balloon.setBackgroundColor(fill);
                balloon.setBorderColor(border);
                const QSizeF turned = anchor >= 3 ? size.transposed() : size;
                const QImage image = upright(painted(balloon, turned, 1), Anchor(anchor));
                const int arrow = balloon.arrowSize();
                for (int y = 0; y < qMin(arrow, image.height() - 1); ++y) {
                    for (int x = 0; x < image.width(); ++x) {
                        const bool isBorderOfNothing = image.height() <= arrow + 2;
                        QVERIFY2(qAlpha(image.pixel(x, y)) <= qAlpha(image.pixel(x, y + 1)) + 32 || isBorderOfNothing,
                                 qPrintable(QStringLiteral("%1 %2 %3: %4,%5")
                                                .arg(anchor)
                                                .arg(alignment)
                                                .arg(offset)
                                                .arg(x)
                                                .arg(y)));
                    }
                }
            }
        }
    }
}

void tst_QmlItems::pillHasNoSeams_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<double>("ratio");
    for (const QSizeF &size : {QSizeF(60, 28), QSizeF(61, 29), QSizeF(14, 29), QSizeF(8, 28), QSizeF(1, 1)}) {
        for (const double ratio : {1.0, 1.25, 2.0})
            QTest::addRow("%gx%g @%g", size.width(), size.height(), ratio) << size << ratio;
    }
}

void tst_QmlItems::pillHasNoSeams()
{
    QFETCH(QSizeF, size);
    QFETCH(double, ratio);
    WQmlHalfPill pill;
    const QColor glass(200, 100, 0, 128);
    pill.setBackgroundColor(glass);
    const QImage image = painted(pill, size, ratio);
    // Along the middle only the outermost pixel of the round end may be smoothed.
    for (int x = 2; x < image.width(); ++x)
        QCOMPARE(qAlpha(image.pixel(x, image.height() / 2)), 128);
    for (int x = image.height() / 2 + 1; x < image.width(); ++x) {
        QCOMPARE(qAlpha(image.pixel(x, 0)), 128);
        QCOMPARE(qAlpha(image.pixel(x, image.height() - 1)), 128);
    }
    if (image.width() > 4 && image.height() > 4)
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0);

    pill.setEdge(WQmlHalfPill::Right);
    QVERIFY(difference(painted(pill, size, ratio), image.mirrored(true, false)) < 16);
    pill.setEdge(WQmlHalfPill::None);
    QImage whole(image.size(), image.format());
    whole.fill(glass);
    QCOMPARE(painted(pill, size, ratio), whole);

    // A border that lies on itself nowhere: with it, over nothing, no pixel is more opaque than it is.
    pill.setBackgroundColor(Qt::transparent);
    pill.setBorderColor(glass);
    pill.setBorderWidth(3);
    for (const auto edge : {WQmlHalfPill::Left, WQmlHalfPill::None}) {
        pill.setEdge(edge);
        const QImage lines = painted(pill, size, ratio);
        for (int y = 0; y < lines.height(); ++y) {
            for (int x = 0; x < lines.width(); ++x)
                QVERIFY(qAlpha(lines.pixel(x, y)) <= 128);
        }
        for (int x = lines.height() / 2 + 1; x < lines.width(); ++x)
            QCOMPARE(qAlpha(lines.pixel(x, 0)), 128);
    }
}

void tst_QmlItems::pillBorders_data()
{
    QTest::addColumn<int>("edge");
    QTest::addColumn<int>("sides");
    QTest::addColumn<double>("ratio");
    for (int edge = 0; edge <= 2; ++edge) {
        for (int sides = 0; sides < 16; ++sides) {
            for (const double ratio : {1.0, 1.5, 2.0})
                QTest::addRow("edge %d sides %d @%g", edge, sides, ratio) << edge << sides << ratio;
        }
    }
}

void tst_QmlItems::pillBorders()
{
    QFETCH(int, edge);
    QFETCH(int, sides);
    QFETCH(double, ratio);
    const bool bottom = sides & 1, left = sides & 2, right = sides & 4, top = sides & 8;
    WQmlHalfPill pill;
    pill.setEdge(WQmlHalfPill::RoundEdge(edge));
    pill.setBackgroundColor(fill);
    pill.setBorderColor(border);
    pill.setBorderWidth(2);
    pill.setBorderBottom(bottom);
    pill.setBorderLeft(left);
    pill.setBorderRight(right);
    pill.setBorderTop(top);
    const QImage image = painted(pill, {80, 30}, ratio);
    const int line = qRound(2 * ratio);

    QStringList column;
    if (top)
        column << run(line, border);
    column << run(image.height() - line * (int(top) + int(bottom)), fill);
    if (bottom)
        column << run(line, border);
    QCOMPARE(runs(image, {image.width() / 2, 0}, {0, 1}), column.join(QLatin1String(", ")));

    // Straight ends show whole pixels; round ones are smoothed in the first.
    const auto isBorder = [&image](int x, int y) {
        return QColor(image.pixel(x, y)) == border;
    };
    const int y = image.height() / 2;
    QCOMPARE(isBorder(line - 1, y), left);
    QCOMPARE(isBorder(image.width() - line, y), right);
    QCOMPARE(QColor(image.pixel(line + 1, y)), fill);
    QCOMPARE(QColor(image.pixel(image.width() - line - 2, y)), fill);
    if (edge != WQmlHalfPill::Left) {
        QCOMPARE(isBorder(0, y), left);
        QCOMPARE(isBorder(0, 0), left || top);
        QCOMPARE(isBorder(0, image.height() - 1), left || bottom);
    } else {
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
    }
}

/// Without an application object of ours: the items need none.
int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication app(argc, argv);
    tst_QmlItems test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_qml_items.moc"
