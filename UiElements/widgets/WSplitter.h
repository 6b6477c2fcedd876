#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QSplitter>

/// A themeable splitter.
class UIELEMENTS_EXPORT WSplitter : public Themed<WSplitter, QSplitter>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WSplitter(QWidget *parent = nullptr);
    explicit WSplitter(Qt::Orientation orientation, QWidget *parent = nullptr);

    W_THEME_SIGNALS
    W_THEME_SLOTS
};
