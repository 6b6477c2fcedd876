#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QTreeView>

/// A themeable tree view.
class UIELEMENTS_EXPORT WTreeView : public Themed<WTreeView, QTreeView>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WTreeView(QWidget *parent = nullptr);

    W_THEME_SIGNALS
    W_THEME_SLOTS
};
