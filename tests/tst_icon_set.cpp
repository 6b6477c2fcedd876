#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/icons/MirroredIcons_p.h>
#include <UiElements/icons/WSvgIcon.h>
#include <UiElements/icons/WSvgNode_p.h>
#include <UiElements/icons/WSvgRenderer.h>

#include <QDir>
#include <QPainter>

#include <algorithm>
#include <iterator>

// The icons that the library ships.
class tst_IconSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyIcon();
    void namesOfTheElements_data();
    void namesOfTheElements();
    void mirroredNames();
};

namespace {

QStringList iconNames()
{
    QStringList names = QDir(QStringLiteral(":/Resources")).entryList({QStringLiteral("*_*.svg")});
    for (QString &name : names)
        name.chop(4);
    return names;
}

int sizeOf(const QString &name)
{
    return name.section(QLatin1Char('_'), 1, 1).toInt();
}

QImage drawn(const WSvgRenderer &renderer, int side, const QColor &color)
{
    return renderer.renderPixmap(QSize(side, side), 1, color).toImage();
}

} // namespace

// Tintable, in one color and in nothing else, in the box that its name says, with something in it.
void tst_IconSet::everyIcon()
{
    const QStringList names = iconNames();
    QVERIFY(names.size() > 500);
    WarningLog log;
    for (const QString &name : names) {
        const int size = sizeOf(name);
        QVERIFY2(size >= 8, qPrintable(name));
        const WSvgRenderer renderer(WSvgRenderer::resourcePath(name));
        const WSvgNode *node = renderer.getSvgNode();
        QVERIFY2(node, qPrintable(name));
        QVERIFY2(node->bounds() == QRectF(0, 0, size, size), qPrintable(name)); // the margins are kept
        const QImage image = drawn(renderer, size, Qt::red);
        int marks = 0;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const QColor color = image.pixelColor(x, y);
                marks += color.alpha() > 0 ? 1 : 0;
                QVERIFY2(color.alpha() == 0 || (color.red() > 250 && color.green() == 0 && color.blue() == 0),
                         qPrintable(name));
            }
        }
        QVERIFY2(marks > 0 && marks < size * size, qPrintable(name));
        // A filled icon belongs to a plain one.
        if (name.contains(QLatin1String("-filled_")))
            QVERIFY2(names.contains(QString(name).remove(QLatin1String("-filled"))), qPrintable(name));
    }
    QCOMPARE(log.take(), QStringList());
}

// Names that elements and hosts spell.
void tst_IconSet::namesOfTheElements_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path : {":/Resources/arrow-down_8.svg", ":/Resources/arrow-up_8.svg", ":/Resources/check_12_w.svg",
                             "qrc:/Resources/info_16.svg", "qrc:/Resources/warning_12.svg"})
        QTest::newRow(path) << QString::fromLatin1(path);
}

void tst_IconSet::namesOfTheElements()
{
    QFETCH(QString, path);
    WarningLog log;
    WSvgIcon icon;
    icon.setFilePath(path);
    QVERIFY(icon.isValid());
    QCOMPARE(log.take(), QStringList());
}

void tst_IconSet::mirroredNames()
{
    const QStringList names = iconNames();
    QVERIFY(std::size(mirroredIcons) > 5);
    QVERIFY(std::is_sorted(std::begin(mirroredIcons), std::end(mirroredIcons)));
    for (const QLatin1String name : mirroredIcons) {
        const QString start = name + QLatin1Char('_');
        QVERIFY2(std::any_of(names.begin(), names.end(), [&](const QString &each) { return each.startsWith(start); }),
                 name.data());
    }
    // A pair of directions mirrors as a whole.
    QVERIFY(WSvgIcon::isMirroredBySet(WSvgRenderer::resourcePath(QStringLiteral("chevron-left_12"))));
    QVERIFY(WSvgIcon::isMirroredBySet(WSvgRenderer::resourcePath(QStringLiteral("chevron-right_12"))));
}

W_TEST_MAIN(tst_IconSet)
#include "tst_icon_set.moc"
