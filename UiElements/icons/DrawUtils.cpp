#include <UiElements/icons/DrawUtils.h>

#include <UiElements/icons/WSvgIcon.h>
#include <UiElements/icons/WSvgNode_p.h>

#include <QAbstractTextDocumentLayout>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QTextDocument>
#include <QWidget>

#include <algorithm>
#include <cmath>

QRectF DrawUtils::fitRectangle(const QRectF &rect, double aspect)
{
    if (!(aspect > 0) || !std::isfinite(aspect) || rect.isEmpty())
        return QRectF(rect.center(), QSizeF());
    QSizeF size = rect.size();
    if (size.width() > size.height() * aspect)
        size.setWidth(size.height() * aspect);
    else
        size.setHeight(size.width() / aspect);
    QRectF fitted(QPointF(), size);
    fitted.moveCenter(rect.center());
    return fitted;
}

void DrawUtils::drawSVG(QPainter *painter, const WSvgNode *node, const QRectF &rect, const QColor &color,
                        double opacity)
{
    if (painter && node)
        node->draw(painter, rect, color, opacity);
}

QPixmap DrawUtils::renderPixmap(const WSvgNode *node, const QRectF &iconRect, const QSize &pixmapSize,
                                double devicePixelRatio, const QColor &color, const QColor &background)
{
    QPixmap pixmap = emptyPixmap(pixmapSize, devicePixelRatio, background);
    if (!pixmap.isNull()) {
        QPainter painter(&pixmap);
        drawSVG(&painter, node, iconRect, color, 1.0);
    }
    return pixmap;
}

QPixmap DrawUtils::emptyPixmap(const QSize &size, double devicePixelRatio, const QColor &background)
{
    constexpr double largest = 32767; // what QPainter can address
    if (size.isEmpty() || !(devicePixelRatio > 0) || size.width() * devicePixelRatio > largest
        || size.height() * devicePixelRatio > largest)
        return QPixmap();
    QPixmap pixmap(int(std::ceil(size.width() * devicePixelRatio)), int(std::ceil(size.height() * devicePixelRatio)));
    if (pixmap.isNull())
        return pixmap;
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(background.isValid() ? background : QColor(Qt::transparent));
    return pixmap;
}

QColor DrawUtils::colorForState(const WColorSet &colors, QStyle::State state)
{
    if (!(state & QStyle::State_Enabled))
        return colors.disabled();
    if (state & QStyle::State_Sunken)
        return colors.pressed();
    if (state & QStyle::State_MouseOver)
        return colors.hovered();
    if ((state & QStyle::State_HasFocus) && colors.focused() != colors.normal())
        return colors.focused();
    if (state & (QStyle::State_Selected | QStyle::State_On))
        return colors.checked();
    return colors.normal();
}

Qt::LayoutDirection DrawUtils::layoutDirection(const QPainter *painter)
{
    const Qt::LayoutDirection application = QGuiApplication::layoutDirection();
    if (!painter)
        return application;
    const Qt::LayoutDirection own = painter->layoutDirection();
    if (own != Qt::LayoutDirectionAuto && own != application)
        return own;
    const QPaintDevice *device = painter->device();
    if (device && device->devType() == QInternal::Widget)
        return static_cast<const QWidget *>(device)->layoutDirection();
    return application;
}

DrawUtils::IconTextLayout DrawUtils::calculateIconTextOffset(const QRect &rect, const IconTextMetrics &metrics,
                                                             Qt::LayoutDirection direction)
{
    const bool hasIcon = !metrics.iconSize.isEmpty();
    const bool hasText = !metrics.textSize.isEmpty();
    const QSize icon = hasIcon ? metrics.iconSize.grownBy(metrics.iconMargins) : QSize(0, 0);
    const int padding = hasText ? metrics.textLeftPadding + metrics.textRightPadding : 0;
    const bool isBeside =
        metrics.iconAlignment == WEnum::Alignment::Left || metrics.iconAlignment == WEnum::Alignment::Right;

    const int room = rect.width() - padding - (isBeside ? icon.width() : 0);
    const int textWidth = hasText ? std::clamp(metrics.textSize.width(), 0, std::max(room, 0)) : 0;
    const QSize text(textWidth + padding, hasText ? metrics.textSize.height() : 0);
    const QSize block = isBeside ? QSize(icon.width() + text.width(), std::max(icon.height(), text.height()))
                                 : QSize(std::max(icon.width(), text.width()), icon.height() + text.height());

    // All of it left to right first.
    int x = rect.left();
    if (metrics.textAlignment == WEnum::HorAlign::Center)
        x += (rect.width() - block.width()) / 2;
    else if (metrics.textAlignment == WEnum::HorAlign::Right)
        x += rect.width() - block.width();
    const int y = rect.top() + (rect.height() - block.height()) / 2;
    QPoint iconAt(x, y), textAt(x, y);
    switch (metrics.iconAlignment) {
    case WEnum::Alignment::Left: textAt.rx() += icon.width(); break;
    case WEnum::Alignment::Right: iconAt.rx() += text.width(); break;
    case WEnum::Alignment::Top: textAt.ry() += icon.height(); break;
    case WEnum::Alignment::Bottom: iconAt.ry() += text.height(); break;
    }
    if (isBeside) {
        iconAt.ry() += (block.height() - icon.height()) / 2;
        textAt.ry() += (block.height() - text.height()) / 2;
    } else {
        iconAt.rx() += (block.width() - icon.width()) / 2;
        textAt.rx() += (block.width() - text.width()) / 2;
    }

    IconTextLayout layout;
    if (hasIcon)
        layout.icon = QStyle::visualRect(direction, rect, QRect(iconAt, icon).marginsRemoved(metrics.iconMargins));
    if (hasText)
        layout.text = QStyle::visualRect(
            direction, rect, QRect(textAt, text).adjusted(metrics.textLeftPadding, 0, -metrics.textRightPadding, 0));
    return layout;
}

void DrawUtils::drawSvgIconText(QPainter *painter, const QRect &rect, const IconText &content, QStyle::State state)
{
    if (!painter)
        return;
    const Qt::LayoutDirection direction = layoutDirection(painter);

    IconTextMetrics metrics = content.metrics;
    metrics.iconSize = content.icon && content.icon->isValid() ? content.icon->getIconSize() : QSize();
    const QFontMetrics font = painter->fontMetrics();
    if (content.document)
        metrics.textSize = content.document->size().toSize();
    else if (!content.text.isEmpty())
        metrics.textSize = font.size(0, content.text);
    const IconTextLayout layout = calculateIconTextOffset(rect, metrics, direction);

    if (!layout.icon.isEmpty()) {
        painter->save();
        painter->translate(layout.icon.topLeft());
        content.icon->draw(painter, state);
        painter->restore();
    }
    if (layout.text.isEmpty())
        return;
    const QColor color = colorForState(content.textColors, state);
    painter->save();
    if (content.document) {
        painter->setClipRect(layout.text, Qt::IntersectClip);
        painter->translate(layout.text.topLeft());
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, color.isValid() ? color : painter->pen().color());
        content.document->documentLayout()->draw(painter, context);
    } else {
        if (color.isValid())
            painter->setPen(color);
        const QString text = font.elidedText(content.text, content.elideMode, layout.text.width());
        painter->drawText(
            layout.text, Qt::AlignVCenter | Qt::TextSingleLine | int(QStyle::visualAlignment(direction, Qt::AlignLeft)),
            text);
    }
    painter->restore();
}

void DrawUtils::drawFocusRect(QPainter *painter, const QRectF &rect, const QColor &color, double radius, double width)
{
    if (!painter || !color.isValid() || rect.width() <= width || rect.height() <= width)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(color, width));
    const double inside = std::max(0.0, radius - width / 2); // the radius is that of the outer edge
    painter->drawRoundedRect(rect.adjusted(width / 2, width / 2, -width / 2, -width / 2), inside, inside);
    painter->restore();
}
