#include "IconPixels.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QCoreApplication>
#include <QPainter>

#include <cmath>

namespace {

constexpr int Magnification = 4;

}

IconPixels::IconPixels(double ratio, QWidget *parent)
    : QWidget(parent)
    , m_ratio(ratio)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(static_cast<IWApplication *>(qApp), &IWApplication::colorSetsChanged, this, [this] { update(); });
}

void IconPixels::setIcon(const QString &path, int side, const std::string &colorSet)
{
    m_renderer.load(path);
    m_side = side;
    m_colorSet = colorSet;
    updateGeometry();
    update();
}

int IconPixels::pixels() const
{
    return int(std::ceil(m_side * m_ratio));
}

QSize IconPixels::sizeHint() const
{
    return QSize(pixels(), pixels()) * Magnification;
}

void IconPixels::paintEvent(QPaintEvent *)
{
    const WColorSet colors = WThemeUtils::getColorSet(m_colorSet, WThemeUtils::getThemeTypeOfWidget(this));
    const QPixmap picture = m_renderer.renderPixmap(QSize(m_side, m_side), m_ratio, colors.normal());
    QPainter painter(this);
    painter.drawPixmap(rect(), picture, picture.rect());
}
