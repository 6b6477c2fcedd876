#include "IconSample.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/icons/DrawUtils.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QCoreApplication>
#include <QPainter>

namespace {

QStyle::State styleState(WColorSet::State state)
{
    switch (state) {
    case WColorSet::Normal: return QStyle::State_Enabled;
    case WColorSet::Hovered: return QStyle::State_Enabled | QStyle::State_MouseOver;
    case WColorSet::Pressed: return QStyle::State_Enabled | QStyle::State_Sunken;
    case WColorSet::Disabled: return QStyle::State_None;
    case WColorSet::Focused: return QStyle::State_Enabled | QStyle::State_HasFocus;
    case WColorSet::Checked: return QStyle::State_Enabled | QStyle::State_On;
    }
    return QStyle::State_None;
}

} // namespace

IconSample::IconSample(WColorSet::State state, int side, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_icon.setIconSize(QSize(side, side));
    connect(static_cast<IWApplication *>(qApp), &IWApplication::colorSetsChanged, this, [this] { update(); });
}

void IconSample::setIcon(const QString &path, const std::string &colorSet)
{
    m_icon.setFilePath(path);
    m_colorSet = colorSet;
    update();
}

void IconSample::setInnerIcon(const QString &path, int side, const std::string &colorSet)
{
    m_icon.setInnerFilePath(path);
    m_icon.setInnerIconSize(QSize(side, side));
    m_innerColorSet = colorSet;
    update();
}

void IconSample::setGroundShown(bool shown)
{
    m_isGroundShown = shown;
    updateGeometry();
    update();
}

QSize IconSample::sizeHint() const
{
    const int around = m_isGroundShown ? qMax(12, 40 - m_icon.getIconSize().width()) : 0;
    return m_icon.getIconSize() + QSize(around, around);
}

void IconSample::paintEvent(QPaintEvent *)
{
    const auto type = WThemeUtils::getThemeTypeOfWidget(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setLayoutDirection(layoutDirection()); // a painter begins with that of the application
    if (m_icon.getFilePath().isEmpty()) {
        painter.setPen(QPen(WThemeUtils::getColorSet("text-secondary", type).disabled(), 1));
        painter.drawLine(QPointF(width() / 2 - 4, height() / 2 + 0.5), QPointF(width() / 2 + 4, height() / 2 + 0.5));
        return;
    }
    if (m_isGroundShown) {
        // Other color sets are not made for this background.
        if (m_colorSet == "button-ghost-text") {
            painter.setPen(Qt::NoPen);
            painter.setBrush(WThemeUtils::getColorSet("button-ghost-background", type).color(m_state));
            painter.drawRoundedRect(rect(), 6, 6);
        }
        if (m_state == WColorSet::Focused)
            DrawUtils::drawFocusRect(&painter, rect(), WThemeUtils::getColorSet("outline-focus", type).normal(), 6);
    }
    m_icon.setColorSet(WThemeUtils::getColorSet(m_colorSet, type));
    if (!m_innerColorSet.empty())
        m_icon.setInnerColorSet(WThemeUtils::getColorSet(m_innerColorSet, type));
    const QSize room = size() - m_icon.getIconSize();
    painter.translate(room.width() / 2, room.height() / 2);
    m_icon.draw(&painter, styleState(m_state));
}
