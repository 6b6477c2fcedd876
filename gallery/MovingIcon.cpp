#include "MovingIcon.h"

#include <QPainter>

MovingIcon::MovingIcon(const QString &path, const QString &pathAtRest, int side, QWidget *parent)
    : QWidget(parent)
    , m_path(path)
    , m_pathAtRest(pathAtRest)
    , m_icon(pathAtRest)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_icon.setIconSize(QSize(side, side));
    connect(&m_icon, &WSvgIcon::repaintNeeded, this, [this] { update(); });
    // A short one, only to see whether time passes.
    m_clock.setDuration(50);
    m_clock.setStartValue(0);
    m_clock.setEndValue(1);
    connect(&m_clock, &QVariantAnimation::finished, this, [this] { m_icon.setFilePath(m_path); });
}

void MovingIcon::setMoving(bool moving)
{
    m_isMoving = moving;
    if (moving && isVisible())
        moveSoon();
    else
        rest();
}

void MovingIcon::rest()
{
    m_clock.stop();
    m_icon.setFilePath(m_pathAtRest);
    update();
}

void MovingIcon::moveSoon()
{
    m_clock.start();
}

void MovingIcon::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_isMoving)
        moveSoon();
}

void MovingIcon::hideEvent(QHideEvent *event)
{
    rest();
    QWidget::hideEvent(event);
}

void MovingIcon::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_icon.draw(&painter, QStyle::State_Enabled);
}
