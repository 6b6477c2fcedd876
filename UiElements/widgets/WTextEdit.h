#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QTextEdit>

/// A themeable text edit that shows a focus frame.
///
/// While it has the focus the style draws a focus frame around its viewport, and the edit, being a frame itself,
/// carries the dynamic property "hasCustomRect" = true so that a style does not draw another one.
class UIELEMENTS_EXPORT WTextEdit : public Themed<WTextEdit, QTextEdit>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WTextEdit(QWidget *parent = nullptr);
    explicit WTextEdit(const QString &text, QWidget *parent = nullptr);

    W_THEME_SIGNALS
    W_THEME_SLOTS

protected:
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
};
