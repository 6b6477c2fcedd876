#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QDateTimeEdit>

/// A themeable date and time edit.
class UIELEMENTS_EXPORT WDateTimeEdit : public Themed<WDateTimeEdit, QDateTimeEdit>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WDateTimeEdit(QWidget *parent = nullptr);
    explicit WDateTimeEdit(const QDateTime &dateTime, QWidget *parent = nullptr);

    W_THEME_SIGNALS
    W_THEME_SLOTS
};
