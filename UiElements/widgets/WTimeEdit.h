#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QTimeEdit>

/// A themeable time edit.
class UIELEMENTS_EXPORT WTimeEdit : public Themed<WTimeEdit, QTimeEdit>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WTimeEdit(QWidget *parent = nullptr);
    explicit WTimeEdit(const QTime &time, QWidget *parent = nullptr);

    W_THEME_SIGNALS
    W_THEME_SLOTS
};
