#include <UiElements/qml/WQmlController.h>

WQmlController::WQmlController(QObject *parent)
    : QObject(parent)
{
}

WQmlController::~WQmlController() = default;

void WQmlController::init(const QMap<QString, QVariant> &) { }
