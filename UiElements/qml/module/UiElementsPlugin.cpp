#include <UiElements/qml/WQmlTypes.h>

#include <QQmlExtensionPlugin>

/// Makes the module known to tools that show QML and do not link to the library. Programs that do have no use for it.
class UiElementsPlugin : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char *) override { WQmlTypes::registerQmlTypes(); }
};

#include "UiElementsPlugin.moc"
