#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QMainWindow>

/// A themeable main window.
class UIELEMENTS_EXPORT WMainWindow : public Themed<WMainWindow, QMainWindow>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WMainWindow(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    W_THEME_SIGNALS
    W_THEME_SLOTS
};
