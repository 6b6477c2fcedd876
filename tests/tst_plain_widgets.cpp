#include "support/ThemedClasses.h"
#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>

// What single classes add to the shared behaviour.
class tst_PlainWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogTellsOfClosing();
    void listTellsWhatIsInView();
    void listInOtherFlows_data();
    void listInOtherFlows();
    void listTellsOfKeysAndWidth();
    void progressBarGeometry();
    void sliderFillsFromItsStart_data();
    void sliderFillsFromItsStart();
    void pixmap();
    void textEditFocusFrame();
};

void tst_PlainWidgets::dialogTellsOfClosing()
{
    WDialog dialog;
    QSignalSpy closed(&dialog, &WDialog::onClose);
    dialog.show();
    dialog.accept();
    QCOMPARE(closed.count(), 0);
    dialog.show();
    dialog.close();
    QCOMPARE(closed.count(), 1);
    QVERIFY(!dialog.isVisible());

    auto *fleeting = new WDialog;
    fleeting->setAttribute(Qt::WA_DeleteOnClose);
    const QPointer<WDialog> alive(fleeting);
    QSignalSpy closedOnce(fleeting, &WDialog::onClose);
    fleeting->show();
    fleeting->close();
    QCOMPARE(closedOnce.count(), 1);
    QTRY_VERIFY(!alive);
}

void tst_PlainWidgets::listTellsWhatIsInView()
{
    WListWidget list;
    for (int i = 0; i < 1000; ++i) {
        auto *item = new QListWidgetItem(QString::number(i), &list);
        item->setSizeHint(QSize(50, 20));
    }
    QStringList updated;
    connect(&list, &WListWidget::updateItemWidget, this, [&](QListWidgetItem *item) { updated << item->text(); });
    QSignalSpy visible(&list, &WListWidget::visibleUpdated);
    list.resize(200, 5 * 20 + 2 * list.frameWidth());
    list.show();
    QTRY_COMPARE(updated.join(QLatin1Char(' ')), QStringLiteral("0 1 2 3 4"));
    QCOMPARE(visible.count(), 1);
    updated.clear();

    list.verticalScrollBar()->setValue(list.verticalScrollBar()->value() + list.verticalScrollBar()->singleStep());
    QTRY_VERIFY(visible.count() == 2);
    QVERIFY2(!updated.isEmpty() && !updated.contains(QStringLiteral("1")), qPrintable(updated.join(QLatin1Char(' '))));
    list.scrollToTop();
    QTRY_VERIFY(visible.count() == 3);
    updated.clear();

    list.item(2)->setText(QStringLiteral("two"));
    list.item(500)->setText(QStringLiteral("far away"));
    QTRY_COMPARE(updated.join(QLatin1Char(' ')), QStringLiteral("two"));
    updated.clear();
    delete list.takeItem(0);
    QTRY_COMPARE(updated.join(QLatin1Char(' ')), QStringLiteral("5"));
    updated.clear();

    // A slot that removes what is being announced.
    connect(&list, &WListWidget::updateItemWidget, &list, [&list] { list.clear(); });
    list.scrollToBottom();
    QTRY_COMPARE(list.count(), 0);
    QTRY_VERIFY(updated.size() >= 1);
    QCoreApplication::processEvents();
    QCOMPARE(updated.size(), 1);
}

void tst_PlainWidgets::listInOtherFlows_data()
{
    QTest::addColumn<QListView::Flow>("flow");
    QTest::addColumn<bool>("icons");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("lying") << QListView::LeftToRight << false << Qt::LeftToRight;
    QTest::newRow("lying, right to left") << QListView::LeftToRight << false << Qt::RightToLeft;
    QTest::newRow("upright with gaps") << QListView::TopToBottom << false << Qt::LeftToRight;
    QTest::newRow("icons") << QListView::LeftToRight << true << Qt::LeftToRight;
}

// What is announced is what intersects the viewport, wherever the items stand.
void tst_PlainWidgets::listInOtherFlows()
{
    QFETCH(QListView::Flow, flow);
    QFETCH(bool, icons);
    QFETCH(Qt::LayoutDirection, direction);
    WListWidget list;
    list.setLayoutDirection(direction);
    list.setViewMode(icons ? QListView::IconMode : QListView::ListMode);
    list.setFlow(flow);
    list.setSpacing(6);
    for (int i = 0; i < 200; ++i) {
        auto *item = new QListWidgetItem(QString::number(i), &list);
        item->setSizeHint(QSize(40, 30));
        item->setHidden(i % 5 == 0);
    }
    QSet<int> announced;
    connect(&list, &WListWidget::updateItemWidget, this, [&](QListWidgetItem *item) { announced << list.row(item); });
    list.resize(220, 160);
    list.show();
    const auto inView = [&list] {
        QSet<int> rows;
        for (int i = 0; i < list.count(); ++i) {
            if (!list.isRowHidden(i) && list.visualItemRect(list.item(i)).intersects(list.viewport()->rect()))
                rows << i;
        }
        return rows;
    };
    QTRY_VERIFY(!announced.isEmpty() && announced == inView());
    const QSet<int> first = announced;
    announced.clear();
    list.scrollToItem(list.item(103), QAbstractItemView::PositionAtCenter);
    QTRY_VERIFY(!announced.isEmpty() && announced == inView() - first);
}

void tst_PlainWidgets::listTellsOfKeysAndWidth()
{
    WListWidget list;
    list.addItems({QStringLiteral("a"), QStringLiteral("b")});
    list.setCurrentRow(0);
    list.show();
    QSignalSpy width(&list, &WListWidget::updateItemSize);
    list.resize(list.width() + 30, list.height());
    QTRY_COMPARE(width.count(), 1);
    list.resize(list.width(), list.height() + 30);
    QCoreApplication::processEvents();
    QCOMPARE(width.count(), 1);
    int rowThen = -1;
    connect(&list, &WListWidget::keyPressed, this, [&](QKeyEvent *event) {
        if (event->key() == Qt::Key_Down)
            rowThen = list.currentRow();
    });
    QTest::keyClick(&list, Qt::Key_Down);
    QCOMPARE(rowThen, 0); // before the list moves
    QCOMPARE(list.currentRow(), 1);
}

void tst_PlainWidgets::progressBarGeometry()
{
    QWidget window;
    WProgressBar bar(&window);
    bar.setTextVisible(false);
    bar.setBarWidth(120);
    bar.setBarHeight(12);
    bar.setIdleBarHeight(4);
    QCOMPARE(bar.sizeHint(), QSize(120, 12));
    bar.setCSS(QStringLiteral("WProgressBar { background-color: #ff0000; border: none; } "
                              "WProgressBar::chunk { background-color: #0000ff; }"));
    bar.resize(bar.sizeHint());
    const auto column = [&bar](int x) {
        QImage image(bar.size(), QImage::Format_ARGB32);
        image.fill(Qt::white);
        bar.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        QString out;
        for (int y = 0; y < image.height(); ++y) {
            const QColor color = image.pixelColor(x, y);
            out += QLatin1Char(color == QColor(Qt::red) ? 'r' : color == QColor(Qt::blue) ? 'b' : '.');
        }
        return out;
    };
    bar.setRange(0, 10);
    QCOMPARE(column(100), QStringLiteral("....rrrr....")); // idle
    bar.setValue(5);
    QCOMPARE(column(100), QStringLiteral("rrrrrrrrrrrr"));
    QCOMPARE(column(10), QStringLiteral("bbbbbbbbbbbb"));
    bar.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(column(100), QStringLiteral("bbbbbbbbbbbb"));
    bar.resize(120, 20);
    QCOMPARE(column(10), QStringLiteral("....rrrrrrrrrrrr....")); // in the middle of more room

    WarningLog log;
    bar.setBarHeight(-1);
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(bar.barHeight(), 12);
    bar.setBarWidth(0);
    QCOMPARE(bar.maximumWidth(), QWIDGETSIZE_MAX);
}

void tst_PlainWidgets::sliderFillsFromItsStart_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("inverted");
    QTest::addColumn<bool>("fromRight");
    QTest::newRow("left to right") << Qt::LeftToRight << false << false;
    QTest::newRow("right to left") << Qt::RightToLeft << false << true;
    QTest::newRow("left to right, inverted") << Qt::LeftToRight << true << true;
    QTest::newRow("right to left, inverted") << Qt::RightToLeft << true << false;
}

void tst_PlainWidgets::sliderFillsFromItsStart()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, inverted);
    QFETCH(bool, fromRight);
    QWidget window;
    WSlider slider(Qt::Horizontal, &window);
    slider.setLayoutDirection(direction);
    slider.setInvertedAppearance(inverted);
    slider.setRange(0, 100);
    slider.setValue(25);
    slider.setCSS(
        QStringLiteral("WSlider::groove { height: 20px; background: #ffffff; } "
                       "WSlider::handle { width: 10px; background: #00ff00; } "
                       "WSlider::handle:hover { background: #ffff00; } "
                       "WSlider::sub-page { background: #ff0000; } WSlider::add-page { background: #0000ff; }"));
    slider.resize(210, 20);
    const auto at = [&slider](int x) {
        return slider.grab().toImage().pixelColor(x, 10);
    };
    const auto place = [fromRight](int fromStart) {
        return fromRight ? 209 - fromStart : fromStart;
    };
    QCOMPARE(at(place(20)), QColor(Qt::red));
    QCOMPARE(at(place(150)), QColor(Qt::blue));
    QCOMPARE(at(place(55)), QColor(Qt::green));
    slider.setAttribute(Qt::WA_UnderMouse);
    QHoverEvent hover(QEvent::HoverEnter, QPointF(place(55), 10), QPointF(-1, -1));
    QCoreApplication::sendEvent(&slider, &hover);
    QCOMPARE(at(place(55)), QColor(Qt::yellow));
    slider.setAttribute(Qt::WA_UnderMouse, false);
    // The handle is where it is drawn.
    window.resize(300, 100);
    window.show();
    QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(place(55), 10));
    QVERIFY(slider.isSliderDown());
    QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(place(55), 10));
    QCOMPARE(slider.value(), 25);
}

void tst_PlainWidgets::pixmap()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("red.png"));
    QImage red(40, 20, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(path));
    WWidget widget;
    widget.setPixmapSrc(path);
    const auto redRect = [&widget] {
        const QImage image = widget.grab().toImage();
        QRect rect;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == QColor(Qt::red))
                    rect |= QRect(x, y, 1, 1);
            }
        }
        return rect;
    };
    widget.resize(60, 60);
    QCOMPARE(redRect(), QRect(10, 20, 40, 20));
    widget.resize(20, 20);
    QCOMPARE(redRect(), QRect(0, 5, 20, 10)); // scaled down, keeping its shape
    WarningLog log;
    widget.setPixmapSrc(dir.filePath(QStringLiteral("none.png")));
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(widget.getPixmapSrc(), path);
    widget.setPixmapSrc(QString());
    QVERIFY(redRect().isEmpty());
}

void tst_PlainWidgets::textEditFocusFrame()
{
    // What stands on the screen, compared with what a fresh painting would put there.
    const auto stale = [](QWidget &widget) {
        QCoreApplication::processEvents();
        QWidget *window = widget.window();
        const QImage shown =
            window->screen()->grabWindow(window->winId()).toImage().convertToFormat(QImage::Format_RGB32);
        const QImage fresh = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const QRect area(widget.mapTo(window, QPoint()), widget.size());
        int pixels = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x)
                pixels += shown.pixel(x, y) != fresh.pixel(x, y);
        }
        return pixels;
    };
    QWidget window;
    WTextEdit edit(&window);
    WTextEdit other(&window);
    edit.setGeometry(10, 10, 100, 50);
    other.setGeometry(10, 70, 100, 50);
    window.resize(200, 150);
    other.setFocus();
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QImage without = edit.viewport()->grab().toImage();
    QVERIFY(!edit.property("hasCustomRect").isValid());
    edit.setFocus();
    edit.setCursorWidth(0);
    const QImage with = edit.viewport()->grab().toImage();
    QCOMPARE(edit.property("hasCustomRect"), QVariant(true));
    const QPoint onFrame(with.width() / 2, 0);
    QVERIFY(with.pixelColor(onFrame) != without.pixelColor(onFrame));
    QCOMPARE(with.pixelColor(with.rect().center()), without.pixelColor(with.rect().center()));
    QCOMPARE(stale(edit), 0);
    edit.setPlainText(QStringLiteral("line\n").repeated(50));
    QCoreApplication::processEvents();
    edit.verticalScrollBar()->setValue(20);
    QCOMPARE(stale(edit), 0);
    other.setFocus();
    QCOMPARE(stale(edit), 0);
}

W_TEST_MAIN(tst_PlainWidgets)
#include "tst_plain_widgets.moc"
