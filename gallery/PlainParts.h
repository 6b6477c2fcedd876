#pragma once

#include <UiElements/app/WFont.h>

#include <functional>

class QWidget;

// What a style sheet cannot say about the plain widgets between the themed ones.

/// Keeps the font of the widget the scaled one of the token.
void followFontToken(QWidget *widget, WFont::Token token);

/// Calls the function now and whenever the widget gets another direction: for what a style sheet does not mirror.
void followDirection(QWidget *widget, const std::function<void(Qt::LayoutDirection)> &apply);

/// Keeps the color of a field's placeholder text the one of the theme.
void followPlaceholderColor(QWidget *field);
