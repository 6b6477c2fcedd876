#include <UiElements/qml/WQmlTypes.h>

#include "QmlTheme_p.h"

#include <UiElements/models/OverflowListProxyModel.h>
#include <UiElements/qml/WQmlBalloon.h>
#include <UiElements/qml/WQmlDialogController.h>
#include <UiElements/qml/WQmlHalfPill.h>
#include <UiElements/qml/WQmlPopupController.h>

#include <QtQml>

void WQmlTypes::registerQmlTypes()
{
    static bool isRegistered = false;
    if (isRegistered)
        return;
    isRegistered = true;

    qRegisterMetaType<WColorSet>("WColorSet"); // the application object does so, too: not every program has one
    const char *const uri = "UiElements";
    qmlRegisterType<OverflowListProxyModel>(uri, 1, 0, "OverflowListProxyModel");
    qmlRegisterType<WQmlBalloon>(uri, 1, 0, "WBalloon");
    qmlRegisterType<WQmlHalfPill>(uri, 1, 0, "WHalfPill");
    qmlRegisterType<WQmlPopupController>(uri, 1, 0, "WQmlPopupController");
    qmlRegisterType<WQmlDialogController>(uri, 1, 0, "WQmlDialogController");
    qmlRegisterAnonymousType<WScaledFonts>(uri, 1);
    // What items have learned after the first version of QtQuick, such as activeFocusOnTab and antialiasing.
    qmlRegisterRevision<QQuickItem, 15>(uri, 1, 0);
    qmlRegisterSingletonType<QmlTheme>(uri, 1, 0, "Theme", &QmlTheme::create);
}
