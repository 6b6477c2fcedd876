// What WSvgRenderer does with the bytes of a file, without the file.

#include <UiElements/icons/SvgScan_p.h>
#include <UiElements/icons/WSvgNode_p.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QGuiApplication *app = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        static int argc = 1;
        static char name[] = "fuzz_svg";
        static char *argv[] = {name, nullptr};
        return new QGuiApplication(argc, argv); // never deleted, as there is no end to delete it at
    }();
    Q_UNUSED(app)

    const QByteArray document(reinterpret_cast<const char *>(data), int(size));
    const SvgScan scan = scanSvg(document);
    if ((scan.verdict == SvgScan::Refused) == scan.reason.isEmpty())
        abort();
    if (scan.verdict != SvgScan::Fine)
        return 0;
    QSvgRenderer renderer;
    if (!renderer.load(document))
        return 0;
    const auto node = WSvgNode::record(renderer);
    if (!node)
        return 0;

    QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    if (scan.rootChildren == 1) {
        node->draw(&painter, QRectF(0, 0, 32, 32), Qt::black, 1.0);
        node->draw(&painter, QRectF(0, 0, 32, 32), Qt::black, 0.5, true);
    } else {
        renderer.render(&painter, QRectF(0, 0, 32, 32));
    }
    return 0;
}
