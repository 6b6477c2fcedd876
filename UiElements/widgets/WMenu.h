#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QMenu>

/// A themeable menu.
class UIELEMENTS_EXPORT WMenu : public Themed<WMenu, QMenu>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WMenu(QWidget *parent = nullptr);
    explicit WMenu(const QString &title, QWidget *parent = nullptr);

    W_THEME_SIGNALS
    W_THEME_SLOTS
};
