#pragma once

#include <UiElements/theme/ColorTable_p.h>
#include <UiElements/theme/WThemeUtils.h>

#include <memory>

/// What the theme engine offers to the rest of the library.
namespace WThemeUtilsPrivate {

/// The registry for that theme type, prepared for writing; the same as getWColorSetsByThemeType().
std::shared_ptr<const ColorTable> colorTable(WThemeUtils::AppThemeType type);
QString selectorOf(const QWidget *widget);
/// Sets the two dynamic properties; equal values are not announced again.
void setFocusProperties(QWidget *widget, int radius, int cornerMask);
bool suppressesBorderColor(const WCSSData &data);

} // namespace WThemeUtilsPrivate
