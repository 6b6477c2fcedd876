#include <UiElements/widgets/WSlider.h>

#include <QHoverEvent>
#include <QStyleOptionSlider>
#include <QStylePainter>

WSlider::WSlider(Qt::Orientation orientation, QWidget *parent)
    : Themed(orientation, parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

WSlider::WSlider(QWidget *parent)
    : Themed(parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

bool WSlider::event(QEvent *event)
{
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove)
        m_hoverPosition = static_cast<QHoverEvent *>(event)->pos();
    return Themed::event(event);
}

void WSlider::paintEvent(QPaintEvent *event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    if (orientation() == Qt::Vertical || !option.upsideDown) {
        QSlider::paintEvent(event);
        return;
    }
    // The other way round is the same picture seen in a mirror: handle and parts fall where Qt expects the mouse.
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    if (tickPosition() != NoTicks)
        option.subControls |= QStyle::SC_SliderTickmarks;
    if (isSliderDown()) {
        option.activeSubControls = QStyle::SC_SliderHandle;
        option.state |= QStyle::State_Sunken;
    } else if (underMouse()) {
        option.activeSubControls = style()->hitTestComplexControl(QStyle::CC_Slider, &option, m_hoverPosition, this);
    }
    option.upsideDown = false;
    option.direction = Qt::LeftToRight;
    QStylePainter painter(this);
    painter.translate(width(), 0);
    painter.scale(-1, 1);
    painter.drawComplexControl(QStyle::CC_Slider, option);
}
