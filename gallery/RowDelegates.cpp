#include "RowDelegates.h"

#include "BusMonitor.h"
#include "ShortcutModel.h"

#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QKeySequence>
#include <QPainter>
#include <QTextLayout>

#include <cmath>

namespace {

constexpr int SideMargin = 10;
constexpr int TopMargin = 4;
constexpr int Gap = 16;
constexpr int LineGap = 2;

// The native names of the keys of one press, in the order in which a QKeySequence writes them.
QStringList keysOf(int press)
{
    QStringList keys;
    for (int modifier : {int(Qt::META), int(Qt::CTRL), int(Qt::ALT), int(Qt::SHIFT)}) {
        if (!(press & modifier))
            continue;
        QString name = QKeySequence(modifier).toString(QKeySequence::NativeText);
        if (name.size() > 1 && name.endsWith(QLatin1Char('+')))
            name.chop(1);
        keys << name;
    }
    const int key = press & ~int(Qt::KeyboardModifierMask);
    if (key)
        keys << QKeySequence(key).toString(QKeySequence::NativeText);
    return keys;
}

// Key caps and what stands between them, always from left to right: nobody writes "F + Ctrl".
struct KeyCaps
{
    struct Part
    {
        QString text;
        bool isCap;
        int width;
    };
    QVector<Part> parts;
    QSize size;

    KeyCaps(const QKeySequence &key, const QFontMetrics &metrics)
    {
        const int height = metrics.height() + 6;
        for (int press = 0; press < key.count(); ++press) {
            const QStringList keys = keysOf(key[uint(press)]);
            for (int i = 0; i < keys.size(); ++i) {
                if (!parts.isEmpty())
                    add(i ? QStringLiteral("+") : QStringLiteral(","), false,
                        metrics.horizontalAdvance(QLatin1Char('+')) + 8);
                add(keys.at(i), true, qMax(height, metrics.horizontalAdvance(keys.at(i)) + 14));
            }
        }
        size.setHeight(height);
    }

    void paint(QPainter *painter, const QPoint &place, const QColor &edge, const QColor &face, const QColor &text,
               const QColor &between) const
    {
        QRect rect(place, QSize(0, size.height()));
        for (const Part &part : parts) {
            rect.setWidth(part.width);
            if (part.isCap) {
                painter->setPen(Qt::NoPen);
                painter->setBrush(edge);
                painter->drawRoundedRect(rect, 4, 4);
                painter->setBrush(face);
                painter->drawRoundedRect(QRectF(rect).adjusted(1, 1, -1, -2), 3, 3);
            }
            painter->setPen(part.isCap ? text : between);
            painter->drawText(part.isCap ? rect.adjusted(0, 0, 0, -1) : rect, Qt::AlignCenter, part.text);
            rect.moveLeft(rect.left() + part.width);
        }
    }

private:
    void add(const QString &text, bool isCap, int width)
    {
        parts.append({text, isCap, width});
        size.rwidth() += width;
    }
};

// A text that wraps in the given width, aligned with the page also where it is written in another direction.
struct Paragraph
{
    QTextLayout layout;
    QSize size;

    Paragraph(const QString &text, const QFont &font, int width, const QStyleOptionViewItem &row,
              Qt::LayoutDirection textDirection)
        : layout(text, font)
    {
        QTextOption option(QStyle::visualAlignment(row.direction, Qt::AlignLeft) | Qt::AlignAbsolute);
        option.setTextDirection(textDirection);
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.setCacheEnabled(true);
        QSizeF taken;
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            line.setPosition(QPointF(0, taken.height()));
            taken = QSizeF(qMax(taken.width(), line.naturalTextWidth()), taken.height() + line.height());
        }
        layout.endLayout();
        size = QSize(qMin(width, int(std::ceil(taken.width()))), int(std::ceil(taken.height())));
    }
};

} // namespace

RowDelegate::RowDelegate(QAbstractItemView *view)
    : QStyledItemDelegate(view)
    , m_view(view)
{
}

QFont RowDelegate::font(WFont::Token token)
{
    return WFontManager::get()->getFont(FontManagerEnum::Default)->getFont(token);
}

QColor RowDelegate::color(const QStyleOptionViewItem &option, const char *set)
{
    return WThemeUtils::getColorSet(set, WThemeUtils::getThemeTypeOfWidget(option.widget)).normal();
}

// As the rules for items choose.
QColor RowDelegate::textColor(const QStyleOptionViewItem &option)
{
    const auto type = WThemeUtils::getThemeTypeOfWidget(option.widget);
    const WColorSet set = WThemeUtils::getColorSet("list-item-text", type);
    if (!(option.state & QStyle::State_Enabled))
        return set.color(WColorSet::Disabled);
    if (option.state & QStyle::State_Selected)
        return set.color(WColorSet::Checked);
    return set.color(option.state & QStyle::State_MouseOver ? WColorSet::Hovered : WColorSet::Normal);
}

int RowDelegate::lineHeight() const
{
    return QFontMetrics(font(WFont::BodySecondary)).height() + 6 + 2 * TopMargin;
}

void RowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    if (hasBackground(index))
        m_view->style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, m_view);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    content(painter, row, row.rect.adjusted(SideMargin, TopMargin, -SideMargin, -TopMargin), index);
    painter->restore();
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int width = m_view->viewport()->width() - 2 * SideMargin;
    const QSize size = content(nullptr, option, QRect(0, 0, qMax(1, width), 0), index);
    return QSize(size.width() + 2 * SideMargin, qMax(lineHeight(), size.height() + 2 * TopMargin));
}

bool ShortcutDelegate::hasBackground(const QModelIndex &index) const
{
    return !index.data(ShortcutModel::IsHeadingRole).toBool();
}

QSize ShortcutDelegate::content(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                                const QModelIndex &index) const
{
    const bool isHeading = index.data(ShortcutModel::IsHeadingRole).toBool();
    const QString text = index.data().toString();
    const QFont textFont = font(isHeading ? WFont::SubheaderSecondary : WFont::BodySecondary);
    const QFont keyFont = font(WFont::BodyTertiary);
    const KeyCaps keys(index.data(ShortcutModel::KeyRole).value<QKeySequence>(), QFontMetrics(keyFont));
    const int keyRoom = keys.parts.isEmpty() ? 0 : Gap + keys.size.width();
    const bool below = QFontMetrics(textFont).horizontalAdvance(text) + 1 + keyRoom > rect.width();
    const int textRoom = below ? rect.width() : rect.width() - keyRoom;
    const Paragraph description(text, textFont, textRoom, option, option.direction);
    const QSize size = below
        ? QSize(qMax(description.size.width(), keys.size.width()),
                description.size.height() + (keyRoom ? LineGap + keys.size.height() : 0))
        : QSize(description.size.width() + keyRoom, qMax(description.size.height(), keyRoom ? keys.size.height() : 0));
    if (!painter)
        return size;

    const QRect all(rect.left(), rect.center().y() - (size.height() - 1) / 2, rect.width(), size.height());
    const QRect textRect(all.left(), below ? all.top() : all.center().y() - (description.size.height() - 1) / 2,
                         textRoom, description.size.height());
    painter->setPen(isHeading ? color(option, "text-secondary") : textColor(option));
    description.layout.draw(painter, QStyle::visualRect(option.direction, all, textRect).topLeft());
    const QPoint keyPlace = below
        ? QPoint(all.left(), all.bottom() + 1 - keys.size.height())
        : QPoint(all.right() + 1 - keys.size.width(), all.center().y() - (keys.size.height() - 1) / 2);
    painter->setFont(keyFont);
    keys.paint(painter, QStyle::visualRect(option.direction, all, QRect(keyPlace, keys.size)).topLeft(),
               color(option, "outline-primary"), color(option, "background-primary"), color(option, "text-primary"),
               textColor(option));
    return size;
}

QSize EmissionDelegate::content(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                                const QModelIndex &index) const
{
    const QString nameText = index.data().toString();
    const QString time = index.data(BusMonitor::TimeRole).toString();
    const QString argumentsText = index.data(BusMonitor::ArgumentsRole).toString();
    const QFont nameFont = font(WFont::SubheaderSecondary);
    const QFont timeFont = font(WFont::BodyTertiary);
    const QSize timeSize =
        time.isEmpty() ? QSize() : QFontMetrics(timeFont).size(Qt::TextSingleLine, time) + QSize(1, 0);
    const int timeRoom = time.isEmpty() ? 0 : Gap + timeSize.width();
    const bool below = QFontMetrics(nameFont).horizontalAdvance(nameText) + 1 + timeRoom > rect.width();
    // Code runs from left to right everywhere.
    const int nameRoom = below ? rect.width() : rect.width() - timeRoom;
    const Paragraph name(nameText, nameFont, nameRoom, option, Qt::LeftToRight);
    const Paragraph arguments(argumentsText, font(WFont::CodeBlocks), rect.width(), option, Qt::LeftToRight);
    const int head = name.size.height() + (below && timeRoom ? timeSize.height() : 0);
    const int argumentsHeight = argumentsText.isEmpty() ? 0 : LineGap + arguments.size.height();
    const QSize size(qMax(name.size.width() + (below ? 0 : timeRoom), arguments.size.width()), head + argumentsHeight);
    if (!painter)
        return size;

    const QRect all(rect.left(), rect.center().y() - (size.height() - 1) / 2, rect.width(), size.height());
    const QRect nameRect(all.topLeft(), QSize(nameRoom, name.size.height()));
    painter->setPen(textColor(option));
    name.layout.draw(painter, QStyle::visualRect(option.direction, all, nameRect).topLeft());
    if (argumentsHeight)
        arguments.layout.draw(painter, QPoint(all.left(), all.top() + head + LineGap));
    const QRect timeRect(below ? QPoint(all.left(), all.top() + name.size.height())
                               : QPoint(all.right() + 1 - timeSize.width(), all.top()),
                         QSize(timeSize.width(), below ? timeSize.height() : name.size.height()));
    if (!(option.state & QStyle::State_Selected))
        painter->setPen(color(option, "text-secondary"));
    painter->setFont(timeFont);
    painter->drawText(QStyle::visualRect(option.direction, all, timeRect), Qt::AlignCenter, time);
    return size;
}
