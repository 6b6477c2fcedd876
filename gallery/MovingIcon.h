#pragma once

#include <UiElements/icons/WSvgIcon.h>

#include <QVariantAnimation>
#include <QWidget>

/// An icon whose document moves by itself.
///
/// Such a document asks for pictures as long as it is loaded. So it is loaded only while the widget is shown and is to
/// move; otherwise another document shows how it looks at rest. Where the time of animations stands still it never
/// moves: there all pictures shall be equal.
class MovingIcon : public QWidget
{
    Q_OBJECT

public:
    MovingIcon(const QString &path, const QString &pathAtRest, int side, QWidget *parent = nullptr);

    void setMoving(bool moving);

    QSize sizeHint() const override { return m_icon.getIconSize(); }

protected:
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void rest();
    void moveSoon();

    const QString m_path;
    const QString m_pathAtRest;
    WSvgIcon m_icon;
    QVariantAnimation m_clock;
    bool m_isMoving = true;
};
