#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QListView>

/// A themeable list view.
class UIELEMENTS_EXPORT WListView : public Themed<WListView, QListView>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WListView(QWidget *parent = nullptr);

    W_THEME_SIGNALS
    W_THEME_SLOTS
};
