#pragma once

#include <UiElements/theme/WColorSet.h>

#include <QString>
#include <QStringList>

/// Color sets and templates of the size and kind that a client has, and the plain way to expand them.
namespace samples {

/// The sets that the templates name, and 600 more.
WColorSets colorSets(bool dark);

/// 12 declarations, 10 tokens, 3 color directives.
QString referenceTemplate();

/// Templates for widgets; the rules address the Qt classes, so that they match those and ours.
enum Look { PrimaryButton, SecondaryButton, Label, SecondaryLabel, Panel, Card };
QString widgetTemplate(Look look);

/// What the documentation of WThemeUtils says about templates, step by step as one would write it down the first time:
/// a regular expression made for each call, a replacement in the text for each token, a text for each rule.
/// Knows no gradients, no named corners and no declarations outside rules.
QString expandLiterally(const QString &selector, const QString &css, const WColorSets &sets);

} // namespace samples
