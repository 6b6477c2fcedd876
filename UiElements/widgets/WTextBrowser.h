#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QTextBrowser>

/// A themeable text browser.
class UIELEMENTS_EXPORT WTextBrowser : public Themed<WTextBrowser, QTextBrowser>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WTextBrowser(QWidget *parent = nullptr);

    W_THEME_SIGNALS
    W_THEME_SLOTS
};
