#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QRadioButton>

/// A themeable radio button.
class UIELEMENTS_EXPORT WRadioButton : public Themed<WRadioButton, QRadioButton>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WRadioButton(QWidget *parent = nullptr);
    explicit WRadioButton(const QString &text, QWidget *parent = nullptr);

    W_THEME_SIGNALS
    W_THEME_SLOTS

protected:
    void paintEvent(QPaintEvent *event) override;
};
