#include <UiElements/widgets/WWidget.h>

#include <QDebug>
#include <QPainter>

WWidget::WWidget(QWidget *parent, Qt::WindowFlags flags)
    : Themed(parent, flags)
{
    initTheme();
    theme().setBorrows();
}

void WWidget::setPixmapSrc(const QString &path)
{
    QPixmap pixmap;
    if (!path.isEmpty() && !pixmap.load(path)) {
        qWarning() << "WWidget::setPixmapSrc - Unable to load pixmap:" << path;
        return;
    }
    m_pixmap = pixmap;
    m_pixmapSrc = path;
    update();
}

void WWidget::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (theme().model()) {
        QPainter painter(this);
        theme().drawBackground(&painter);
    }
    if (m_pixmap.isNull())
        return;
    const QRectF area = contentsRect();
    QSizeF size = QSizeF(m_pixmap.size()) / m_pixmap.devicePixelRatioF();
    if (size.width() > area.width() || size.height() > area.height())
        size.scale(area.size(), Qt::KeepAspectRatio);
    if (size.isEmpty())
        return;
    QRectF target(QPointF(), size);
    target.moveCenter(area.center());
    // A picture between two pixels is blurred on both.
    target.moveTopLeft(target.topLeft().toPoint());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(target, m_pixmap, QRectF(m_pixmap.rect()));
}
