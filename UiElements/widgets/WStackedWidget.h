#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QStackedWidget>

/// A themeable stack of pages.
class UIELEMENTS_EXPORT WStackedWidget : public Themed<WStackedWidget, QStackedWidget>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WStackedWidget(QWidget *parent = nullptr);

    W_THEME_SIGNALS
    W_THEME_SLOTS
};
