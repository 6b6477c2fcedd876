#include <UiElements/qml/IWQmlViewFactory.h>

#include <UiElements/qml/WCustomAccessibleQuickWidget.h>
#include <UiElements/qml/WPopupQuickView.h>

IWQmlViewFactory::~IWQmlViewFactory() = default;
