#include "ConversationDelegate.h"

#include "ConversationModel.h"

#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>

#include <QAbstractItemView>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int Margin = 6; // above and below
constexpr int PaintMargin = 4; // of which the base leaves so much
constexpr int Gap = 10;
constexpr int LeastWidth = 160;

QString initials(const QString &name)
{
    const QStringList words = name.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QString letters;
    if (!words.isEmpty())
        letters += words.first().at(0);
    if (words.size() > 1)
        letters += words.last().at(0);
    return letters;
}

// Aligned with the page, and written in the direction of its own script.
void drawLine(QPainter *painter, const QStyleOptionViewItem &row, const QRect &rect, const QString &text)
{
    const QFontMetrics metrics(painter->font());
    painter->drawText(rect,
                      int(QStyle::visualAlignment(row.direction, Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter
                          | Qt::TextSingleLine),
                      metrics.elidedText(text, Qt::ElideRight, rect.width()));
}

} // namespace

ConversationDelegate::ConversationDelegate(QAbstractItemView *view)
    : RowDelegate(view)
{
    connect(WFontManager::get()->getFont(FontManagerEnum::Default), &WScaledFonts::fontTokenChanged, this,
            [this] { m_rowHeight = 0; });
}

int ConversationDelegate::rowHeight() const
{
    if (m_rowHeight == 0)
        m_rowHeight = QFontMetrics(font(WFont::SubheaderSecondary)).height()
            + QFontMetrics(font(WFont::BodySecondary)).height() + 2 + 2 * Margin;
    return m_rowHeight;
}

QSize ConversationDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    Q_UNUSED(option)
    Q_UNUSED(index)
    return QSize(LeastWidth, rowHeight());
}

QSize ConversationDelegate::content(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                                    const QModelIndex &index) const
{
    if (!painter)
        return sizeHint(option, index);
    const QRect all = rect.adjusted(0, Margin - PaintMargin, 0, PaintMargin - Margin);
    const auto place = [&](const QRect &logical) {
        return QStyle::visualRect(option.direction, all, logical);
    };
    const int side = all.height();
    const QRect texts = all.adjusted(side + Gap, 0, 0, 0);
    paintPicture(painter, option, place(QRect(all.topLeft(), QSize(side, side))), index);
    const QString name = index.data(ConversationModel::NameRole).toString();
    if (name.isEmpty()) {
        paintPlaceholder(painter, option, texts);
        return all.size();
    }

    painter->setLayoutDirection(Qt::LayoutDirectionAuto);
    const bool isSelected = option.state & QStyle::State_Selected;
    const bool isEnabled = option.state & QStyle::State_Enabled;
    const QColor text = textColor(option);
    const QColor dimmed = isSelected || !isEnabled ? text : color(option, "text-secondary");
    const int unread = index.data(ConversationModel::UnreadRole).toInt();
    const QFont nameFont = font(unread > 0 ? WFont::SubheaderSecondary : WFont::BodySecondary);
    const QFont smallFont = font(WFont::BodyTertiary);
    const QFontMetrics small(smallFont);
    const int top = QFontMetrics(font(WFont::SubheaderSecondary)).height();
    const QRect first(texts.left(), texts.top(), texts.width(), top);
    const QRect second(texts.left(), texts.top() + top + 2, texts.width(), texts.height() - top - 2);

    const QString time = index.data(ConversationModel::TimeTextRole).toString();
    const int timeWidth = small.horizontalAdvance(time) + 1;
    painter->setFont(smallFont);
    painter->setPen(dimmed);
    painter->drawText(place(QRect(first.right() + 1 - timeWidth, first.top(), timeWidth, top)), Qt::AlignCenter, time);

    painter->setFont(nameFont);
    painter->setPen(text);
    drawLine(painter, option, place(first.adjusted(0, 0, -timeWidth - Gap, 0)), name);

    int badgeRoom = 0;
    if (unread > 0) {
        const QString count = unread > 99 ? QStringLiteral("99+") : QLocale().toString(unread);
        const int height = small.height() + 2;
        const int width = qMax(height, small.horizontalAdvance(count) + 10);
        const QRect badge =
            place(QRect(second.right() + 1 - width, second.center().y() - (height - 1) / 2, width, height));
        painter->setPen(Qt::NoPen);
        painter->setBrush(color(option, "badge-background"));
        painter->drawRoundedRect(badge, height / 2.0, height / 2.0);
        painter->setFont(smallFont);
        painter->setPen(color(option, "badge-text"));
        painter->drawText(badge, Qt::AlignCenter, count);
        badgeRoom = width + Gap;
    }
    painter->setFont(font(WFont::BodySecondary));
    painter->setPen(dimmed);
    drawLine(painter, option, place(second.adjusted(0, 0, -badgeRoom, 0)),
             index.data(ConversationModel::MessageRole).toString());
    return all.size();
}

void ConversationDelegate::paintPicture(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                                        const QModelIndex &index) const
{
    const QRectF picture = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->setPen(QPen(color(option, "outline-secondary"), 1));
    painter->setBrush(color(option, "background-secondary"));
    painter->drawEllipse(picture);
    painter->setFont(font(WFont::BodyTertiary));
    painter->setPen(color(option, "text-secondary"));
    painter->drawText(picture, Qt::AlignCenter, initials(index.data(ConversationModel::NameRole).toString()));
    const int presence = index.data(ConversationModel::PresenceRole).toInt();
    if (presence != ConversationModel::NoPresence)
        paintPresence(painter, option, picture, presence);
}

// Each presence has a shape of its own, for those who do not tell the colors apart.
void ConversationDelegate::paintPresence(QPainter *painter, const QStyleOptionViewItem &option, const QRectF &picture,
                                         int presence) const
{
    const double side = qMax(8.0, picture.width() * 0.27);
    QRectF dot(picture.right() - side, picture.bottom() - side, side, side);
    if (option.direction == Qt::RightToLeft)
        dot.moveLeft(picture.left());

    // The colors of presence are made for the background of lists, also where the row has another one.
    painter->setPen(Qt::NoPen);
    painter->setBrush(color(option, "list-background"));
    painter->drawEllipse(dot.adjusted(-2, -2, 2, 2));

    QPainterPath shape;
    shape.addEllipse(dot);
    QPainterPath hole;
    const char *set = "presence-active";
    switch (presence) {
    case ConversationModel::Away: // a crescent
        set = "presence-away";
        hole.addEllipse(dot.translated(side * 0.35, -side * 0.35));
        break;
    case ConversationModel::Busy: // a bar
        set = "presence-busy";
        hole.addRect(QRectF(dot.left() + side * 0.2, dot.center().y() - side * 0.1, side * 0.6, side * 0.2));
        break;
    case ConversationModel::Offline: // a ring
        set = "presence-offline";
        hole.addEllipse(dot.adjusted(side * 0.22, side * 0.22, -side * 0.22, -side * 0.22));
        break;
    default: break;
    }
    painter->setBrush(color(option, set));
    painter->drawPath(shape.subtracted(hole));
}

void ConversationDelegate::paintPlaceholder(QPainter *painter, const QStyleOptionViewItem &option,
                                            const QRect &texts) const
{
    const int bar = qMax(6, texts.height() / 4);
    const int line = texts.height() / 2;
    painter->setPen(Qt::NoPen);
    painter->setBrush(color(option, "slider-track-background"));
    const auto draw = [&](int number, int width) {
        const QRect rect(texts.left(), texts.top() + number * line + (line - bar) / 2, width, bar);
        painter->drawRoundedRect(QStyle::visualRect(option.direction, option.rect, rect), bar / 2.0, bar / 2.0);
    };
    draw(0, texts.width() / 3);
    draw(1, texts.width() * 2 / 3);
}
