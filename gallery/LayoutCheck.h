#pragma once

#include <QStringList>

class QWidget;

/// Looks for what a reader of the window would call broken: texts that are cut off and elements outside their parents.
namespace LayoutCheck {

/// One line for each fault in the visible widgets below the window, empty when there is none.
QStringList faults(const QWidget *window);

} // namespace LayoutCheck
