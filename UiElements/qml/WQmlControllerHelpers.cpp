#include <UiElements/qml/WQmlControllerHelpers.h>

#include <UiElements/qml/WQmlController.h>

namespace {

template <typename T>
void apply(WQmlController *controller, const QMap<QString, QVariant> &initialProperties, const QString &name,
           const char *function)
{
    if (!controller) {
        qWarning("WQmlControllerHelpers::%s - The controller must not be null", function);
        return;
    }
    const QVariant value = initialProperties.value(name);
    if (value.canConvert<T>())
        controller->setProperty(name.toLatin1().constData(), value.value<T>());
}

} // namespace

void WQmlControllerHelpers::applyInitialBoolPropertyToController(WQmlController *controller,
                                                                 const QMap<QString, QVariant> &initialProperties,
                                                                 const QString &name)
{
    apply<bool>(controller, initialProperties, name, "applyInitialBoolPropertyToController");
}

void WQmlControllerHelpers::applyInitialStringPropertyToController(WQmlController *controller,
                                                                   const QMap<QString, QVariant> &initialProperties,
                                                                   const QString &name)
{
    apply<QString>(controller, initialProperties, name, "applyInitialStringPropertyToController");
}
