#pragma once

#include <UiElements/controls/WPushButton.h>

/// A flat, checkable button with a tooltip for each of its two states.
class UIELEMENTS_EXPORT WToggleButton : public WPushButton
{
    Q_OBJECT

public:
    explicit WToggleButton(QWidget *parent = nullptr);
    explicit WToggleButton(const QString &text, QWidget *parent = nullptr);

    using WPushButton::setToolTip;
    /// From then on the tooltip follows the state.
    void setToolTip(const QString &uncheckedTip, const QString &checkedTip);

    /// Hides QAbstractButton's: the tooltip follows also while signals are blocked.
    void setChecked(bool checked);

private:
    void init();
    void showToolTipOfState();

    QString m_uncheckedTip;
    QString m_checkedTip;
    bool m_hasTips = false;
};
