#include <UiElements/controls/WPillTabButton.h>

#include "ControlText_p.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPointer>

WPillTabButton::WPillTabButton(QWidget *parent)
    : WSvgPushButton(parent)
{
    init();
}

WPillTabButton::WPillTabButton(const QString &text, QWidget *parent)
    : WSvgPushButton(text, parent)
{
    init();
}

void WPillTabButton::init()
{
    m_normal.text = QStringLiteral("qx-contentTabViewButton-text");
    m_checked.text = QStringLiteral("qx-contentTabViewButtonChecked-text");
    setSvgIconSize(QSize(12, 12));
    setSvgIconTopLeftPadding(QPoint(12, 0));
    setTextLeftPadding(12);
    setTextRightPadding(12);
    setFontToken(WFont::BodySecondary);
    setCheckable(true);
    connect(this, &WPillTabButton::toggled, this, &WPillTabButton::onApplyCSS);
    connect(this, &WPillTabButton::svgIconChanged, this, &WPillTabButton::onSvgIconChanged, Qt::QueuedConnection);
    onApplyCSS(false);
}

void WPillTabButton::setBackgroundColorSet(const QString &name)
{
    m_normal.background = name;
    onApplyCSS(isChecked());
}

void WPillTabButton::setTextColorSet(const QString &name)
{
    setName(&m_normal.text, name);
}

void WPillTabButton::setIconColorSet(const QString &name)
{
    setName(&m_normal.icon, name);
}

void WPillTabButton::setBackgroundColorSetChecked(const QString &name)
{
    setName(&m_checked.background, name);
}

void WPillTabButton::setTextColorSetChecked(const QString &name)
{
    setName(&m_checked.text, name);
}

void WPillTabButton::setIconColorSetChecked(const QString &name)
{
    setName(&m_checked.icon, name);
}

void WPillTabButton::setName(QString *name, const QString &value)
{
    if (*name == value)
        return;
    *name = value;
    onApplyCSS(isChecked());
}

int WPillTabButton::radius() const
{
    const QRect box = rect();
    return (box.bottom() - box.top() + 1) / 2;
}

void WPillTabButton::onApplyCSS(bool isChecked)
{
    const Group &group = isChecked ? m_checked : m_normal;
    const QPointer<WPillTabButton> alive(this);
    setSvgIconColorSet(group.icon);
    if (!alive)
        return;
    m_appliedRadius = radius();
    // Before there is a theme each name would be reported as unknown.
    if (WThemeUtils::getWColorSetsByThemeType(WThemeUtils::getThemeTypeOfWidget(this)).empty())
        return;
    const QString ownBackground = isChecked ? QStringLiteral("qx-contentTabViewButtonChecked-background")
                                            : QStringLiteral("qx-contentTabViewButton-background");
    QString css = QStringLiteral("$backgroundColors: %1; $borderColors: qx-defaultBorderForButton; $borders: all; "
                                 "$borderWidth: 2; $borderRadius: %2 focus;")
                      .arg(group.background.isEmpty() ? ownBackground : group.background)
                      .arg(m_appliedRadius);
    if (!group.text.isEmpty())
        css += QStringLiteral(" $textColors: %1;").arg(group.text);
    const QString rest = theme().trailingText();
    if (!rest.isEmpty())
        css += QLatin1Char(' ') + rest;
    setCSS(css);
}

void WPillTabButton::onThemeChanged()
{
    const QPointer<WPillTabButton> alive(this);
    if (getCSS().isEmpty())
        onApplyCSS(isChecked());
    if (alive)
        WSvgPushButton::onThemeChanged();
}

void WPillTabButton::setText(const QString &text)
{
    WSvgPushButton::setText(text);
    limitWidth();
}

void WPillTabButton::onSvgIconChanged(const QString &)
{
    m_limitsWidth = true;
    limitWidth();
}

void WPillTabButton::limitWidth()
{
    if (!m_limitsWidth)
        return;
    const int iconWidth = svgIcon().isEmpty() || !isSvgIconVisible() ? -1 : svgIconSize().width();
    setMaximumWidth(iconWidth + fontMetrics().horizontalAdvance(ControlText::beginning(text())) + textRightPadding()
                    + textLeftPadding() + svgIconTopLeftPadding().x() + svgIconBottomRightPadding().x() + 2 * radius());
}

void WPillTabButton::resizeEvent(QResizeEvent *event)
{
    WSvgPushButton::resizeEvent(event);
    if (radius() == m_appliedRadius)
        return;
    const QPointer<WPillTabButton> alive(this);
    onApplyCSS(isChecked());
    if (alive)
        limitWidth();
}

void WPillTabButton::changeEvent(QEvent *event)
{
    WSvgPushButton::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        limitWidth();
}
