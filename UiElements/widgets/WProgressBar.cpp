#include <UiElements/widgets/WProgressBar.h>

#include <QStyleOptionProgressBar>
#include <QStylePainter>

WProgressBar::WProgressBar(QWidget *parent)
    : Themed(parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

void WProgressBar::setLength(int *length, int value)
{
    if (value < 0) {
        qWarning("WProgressBar: a length cannot be negative: %d", value);
        return;
    }
    if (*length == value)
        return;
    *length = value;
    updateGeometry();
    update();
}

void WProgressBar::setBarWidth(int width)
{
    const int before = m_barWidth;
    setLength(&m_barWidth, width);
    if (m_barWidth == before)
        return;
    setMinimumWidth(m_barWidth);
    setMaximumWidth(m_barWidth > 0 ? m_barWidth : QWIDGETSIZE_MAX);
}

void WProgressBar::setBarHeight(int height)
{
    setLength(&m_barHeight, height);
}

void WProgressBar::setIdleBarHeight(int height)
{
    setLength(&m_idleBarHeight, height);
}

QSize WProgressBar::pinned(QSize hint) const
{
    if (m_barWidth > 0)
        hint.setWidth(m_barWidth);
    if (m_barHeight > 0)
        hint.setHeight(qMax(m_barHeight, m_idleBarHeight));
    return hint;
}

QSize WProgressBar::sizeHint() const
{
    return pinned(QProgressBar::sizeHint());
}

QSize WProgressBar::minimumSizeHint() const
{
    return pinned(QProgressBar::minimumSizeHint());
}

int WProgressBar::shownBarHeight() const
{
    const bool endless = minimum() == maximum();
    const bool idle = !endless && value() <= minimum();
    return idle && m_idleBarHeight > 0 ? m_idleBarHeight : m_barHeight;
}

void WProgressBar::paintEvent(QPaintEvent *event)
{
    const int wanted = shownBarHeight();
    if (wanted <= 0 || wanted >= height() || orientation() == Qt::Vertical) {
        QProgressBar::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    QStyleOptionProgressBar option;
    initStyleOption(&option);
    option.rect = QRect(0, (height() - wanted) / 2, width(), wanted);
    painter.drawControl(QStyle::CE_ProgressBar, option);
}
