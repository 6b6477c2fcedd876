import QtQuick 2.15

/*!
    The number of rows of a list as a badge or a title tells it. Nothing to see: for createQmlComponent().

    The controller is a WQmlDialogController whose model is a list model with a `count`.
*/
QtObject {
    property QtObject controller: null
    readonly property var rows: controller && controller.model ? controller.model : null
    readonly property int count: rows && rows.count !== undefined ? rows.count : 0
    property int maximum: 99
    /*! Empty for no row. */
    readonly property string text: count === 0 ? "" : count > maximum ? maximum + "+" : String(count)
}
