#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QFrame>

/// A themeable frame.
class UIELEMENTS_EXPORT WFrame : public Themed<WFrame, QFrame>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WFrame(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    W_THEME_SIGNALS
    W_THEME_SLOTS

protected:
    void paintEvent(QPaintEvent *event) override;
};
