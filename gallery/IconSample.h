#pragma once

#include <UiElements/icons/WSvgIcon.h>

#include <QWidget>

/// One icon in one state, in the color set of a button without border on the ground that the button has in that state.
/// No mouse changes it.
class IconSample : public QWidget
{
    Q_OBJECT

public:
    IconSample(WColorSet::State state, int side, QWidget *parent = nullptr);

    /// A path that is empty shows a dash: there is no such icon.
    void setIcon(const QString &path, const std::string &colorSet);
    void setInnerIcon(const QString &path, int side, const std::string &colorSet);
    void setGroundShown(bool shown);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const WColorSet::State m_state;
    WSvgIcon m_icon;
    std::string m_colorSet;
    std::string m_innerColorSet;
    bool m_isGroundShown = true;
};
