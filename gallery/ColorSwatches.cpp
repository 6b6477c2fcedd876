#include "ColorSwatches.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QToolTip>

ColorSwatches::ColorSwatches(const QString &setName, QWidget *parent)
    : QWidget(parent)
    , m_setName(setName.toStdString())
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(static_cast<IWApplication *>(qApp), &IWApplication::colorSetsChanged, this, [this] { update(); });
}

QSize ColorSwatches::sizeHint() const
{
    return QSize(WColorSet::StateCount * (SwatchWidth + Spacing) - Spacing, 24);
}

QRect ColorSwatches::swatch(int state) const
{
    return QStyle::visualRect(layoutDirection(), rect(),
                              QRect(state * (SwatchWidth + Spacing), 0, SwatchWidth, height()));
}

// Transparent colors are shown on what they will stand on: the card. The outline makes all of them visible there.
void ColorSwatches::paintEvent(QPaintEvent *)
{
    const auto type = WThemeUtils::getThemeTypeOfWidget(this);
    const WColorSet set = WThemeUtils::getColorSet(m_setName, type);
    const QColor outline = WThemeUtils::getColorSet("outline-primary", type).normal();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int state = 0; state < WColorSet::StateCount; ++state) {
        const QRectF place = QRectF(swatch(state)).adjusted(0.5, 0.5, -0.5, -0.5);
        const QColor color = set.color(WColorSet::State(state));
        painter.setPen(QPen(outline, 1));
        painter.setBrush(color.isValid() ? QBrush(color) : QBrush(Qt::NoBrush));
        painter.drawRoundedRect(place, 4, 4);
        if (color.alpha() == 0) {
            QPainterPath corner;
            corner.addRoundedRect(place, 4, 4);
            painter.setClipPath(corner);
            painter.drawLine(place.bottomLeft(), place.topRight());
            painter.setClipping(false);
        }
    }
}

bool ColorSwatches::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const WColorSet set = WThemeUtils::getColorSet(m_setName, WThemeUtils::getThemeTypeOfWidget(this));
    for (int state = 0; state < WColorSet::StateCount; ++state) {
        if (!swatch(state).contains(help->pos()))
            continue;
        QToolTip::showText(help->globalPos(),
                           tr("%1.%2: %3")
                               .arg(QString::fromStdString(m_setName), WColorSet::stateNames().at(state),
                                    set.color(WColorSet::State(state)).name(QColor::HexArgb)),
                           this);
    }
    return true;
}
