#pragma once

#include <UiElements/uielements_export.h>

#include <QMap>
#include <QString>
#include <QVariant>

class WQmlController;

/// Hand values to start with to a controller, from its WQmlController::init(). An entry that is missing, or that cannot
/// be converted, leaves the controller as it is. A name that is no declared property becomes a dynamic one.
namespace WQmlControllerHelpers {
UIELEMENTS_EXPORT void applyInitialBoolPropertyToController(WQmlController *controller,
                                                            const QMap<QString, QVariant> &initialProperties,
                                                            const QString &name);
UIELEMENTS_EXPORT void applyInitialStringPropertyToController(WQmlController *controller,
                                                              const QMap<QString, QVariant> &initialProperties,
                                                              const QString &name);
} // namespace WQmlControllerHelpers
