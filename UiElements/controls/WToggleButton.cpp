#include <UiElements/controls/WToggleButton.h>

WToggleButton::WToggleButton(QWidget *parent)
    : WPushButton(parent)
{
    init();
}

WToggleButton::WToggleButton(const QString &text, QWidget *parent)
    : WPushButton(text, parent)
{
    init();
}

void WToggleButton::init()
{
    setAccessibleRole(QAccessible::Button);
    setCheckable(true);
    setFlat(true);
    if (getCSS().isEmpty())
        setCSS(QStringLiteral("QPushButton{ border: none; }"));
    connect(this, &QAbstractButton::toggled, this, &WToggleButton::showToolTipOfState);
}

void WToggleButton::setToolTip(const QString &uncheckedTip, const QString &checkedTip)
{
    m_uncheckedTip = uncheckedTip;
    m_checkedTip = checkedTip;
    m_hasTips = true;
    showToolTipOfState();
}

void WToggleButton::setChecked(bool checked)
{
    WPushButton::setChecked(checked);
    showToolTipOfState();
}

void WToggleButton::showToolTipOfState()
{
    if (m_hasTips)
        setToolTip(isChecked() ? m_checkedTip : m_uncheckedTip);
}
