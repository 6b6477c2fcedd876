#include "ColorSwatches.h"

#include "PlainParts.h"

#include <UiElements/theme/WThemeUtils.h>

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QStyle>
#include <QToolTip>

namespace {

constexpr int Margin = 3; // the frame of the focus
constexpr int Gap = 6;
constexpr int Radius = 5;

} // namespace

ColorSwatches::ColorSwatches(const QString &name, const QString &widest, QWidget *parent)
    : QWidget(parent)
    , m_widest(widest)
{
    setAccessibleName(name);
    followFontToken(this, WFont::RadioButtonLabelSecondary);
}

void ColorSwatches::setSwatches(const QVector<Swatch> &swatches)
{
    m_swatches = swatches;
    m_current = qBound(0, m_current, qMax(0, swatches.size() - 1));
    const bool hasColors = !swatches.isEmpty() && swatches.first().ground.isValid();
    const bool wraps = m_widest.isEmpty();
    QSizePolicy policy(wraps ? QSizePolicy::Preferred : QSizePolicy::Fixed,
                       wraps ? QSizePolicy::Minimum : QSizePolicy::Fixed);
    policy.setHeightForWidth(wraps);
    setSizePolicy(policy);
    if (hasColors && focusPolicy() == Qt::NoFocus)
        setFocusPolicy(Qt::StrongFocus);
    if (hasColors)
        setAccessibleDescription(swatches.at(m_current).description);
    updateGeometry();
    update();
}

// Room for letters of any scale.
int ColorSwatches::boxHeight() const
{
    return fontMetrics().height() + 10;
}

QSize ColorSwatches::cell() const
{
    int width = fontMetrics().horizontalAdvance(m_widest);
    for (const Swatch &swatch : m_swatches)
        width = qMax(width, fontMetrics().horizontalAdvance(swatch.caption));
    const bool hasColors = !m_swatches.isEmpty() && m_swatches.first().ground.isValid();
    return QSize(qMax(width, 26) + Gap, (hasColors ? boxHeight() + Margin : 0) + fontMetrics().height() + Gap);
}

int ColorSwatches::columns(int width) const
{
    return m_widest.isEmpty() ? qMax(1, width / cell().width()) : qMax(1, m_swatches.size());
}

QSize ColorSwatches::sizeHint() const
{
    return QSize(m_swatches.size() * cell().width(), cell().height());
}

QSize ColorSwatches::minimumSizeHint() const
{
    return m_widest.isEmpty() ? QSize(4 * cell().width(), cell().height()) : sizeHint();
}

int ColorSwatches::heightForWidth(int width) const
{
    const int perRow = columns(width);
    return (m_swatches.size() + perRow - 1) / perRow * cell().height();
}

QRect ColorSwatches::place(int index) const
{
    const QSize size = cell();
    const int perRow = columns(width());
    return QStyle::visualRect(layoutDirection(), rect(),
                              QRect(QPoint(index % perRow * size.width(), index / perRow * size.height()), size));
}

void ColorSwatches::paintEvent(QPaintEvent *)
{
    const auto type = WThemeUtils::getThemeTypeOfWidget(this);
    const QColor outline = WThemeUtils::getColorSet("outline-primary", type).normal();
    const QColor text = WThemeUtils::getColorSet("text-secondary", type).normal();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < m_swatches.size(); ++i) {
        const Swatch &swatch = m_swatches.at(i);
        const QRect all = place(i);
        painter.setPen(text);
        painter.drawText(all.adjusted(0, 0, 0, -Gap), Qt::AlignHCenter | Qt::AlignBottom, swatch.caption);
        if (!swatch.ground.isValid())
            continue;
        const QRectF box(all.left() + Margin, all.top() + Margin, all.width() - 2 * Margin, boxHeight() - Margin);
        const QRectF line = box.adjusted(0.5, 0.5, -0.5, -0.5);
        painter.setPen(outline);
        painter.setBrush(swatch.ground);
        painter.drawRoundedRect(line, Radius, Radius);
        if (swatch.ground.alpha() == 0)
            painter.drawLine(line.bottomLeft() + QPointF(1, -1), line.topRight() + QPointF(-1, 1));
        if (swatch.front.isValid() && swatch.isEdge) {
            painter.setPen(QPen(swatch.front, 3));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(box.adjusted(6.5, 5.5, -6.5, -5.5), 3, 3);
        } else if (swatch.front.isValid()) {
            painter.setPen(swatch.front);
            painter.drawText(box, Qt::AlignCenter, QStringLiteral("Aa"));
        }
        if (hasFocus() && i == m_current) {
            painter.setPen(QPen(WThemeUtils::getColorSet("outline-focus", type).normal(), 2));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(box.adjusted(-2, -2, 2, 2), Radius + 2, Radius + 2);
        }
    }
}

void ColorSwatches::moveTo(int index)
{
    m_current = qBound(0, index, m_swatches.size() - 1);
    setAccessibleDescription(m_swatches.at(m_current).description);
    say(mapToGlobal(place(m_current).bottomLeft()));
    update();
}

void ColorSwatches::say(const QPoint &globalPlace)
{
    QToolTip::showText(globalPlace, m_swatches.at(m_current).description, this);
}

void ColorSwatches::keyPressEvent(QKeyEvent *event)
{
    const int perRow = columns(width());
    const int onwards = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    switch (event->key()) {
    case Qt::Key_Left: moveTo(m_current - onwards); return;
    case Qt::Key_Right: moveTo(m_current + onwards); return;
    case Qt::Key_Home: moveTo(0); return;
    case Qt::Key_End: moveTo(m_swatches.size() - 1); return;
    case Qt::Key_Up:
        if (m_current >= perRow)
            moveTo(m_current - perRow);
        else
            Q_EMIT leavesBy(-1);
        return;
    case Qt::Key_Down:
        if (m_current + perRow < m_swatches.size())
            moveTo(m_current + perRow);
        else
            Q_EMIT leavesBy(1);
        return;
    default: QWidget::keyPressEvent(event);
    }
}

void ColorSwatches::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    // Only Tab scrolls by itself.
    for (QWidget *parent = parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(parent))
            area->ensureWidgetVisible(this);
    }
    update();
}

void ColorSwatches::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateGeometry();
}

bool ColorSwatches::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    for (int i = 0; i < m_swatches.size(); ++i) {
        if (place(i).contains(help->pos()))
            QToolTip::showText(help->globalPos(), m_swatches.at(i).description, this);
    }
    return true;
}
