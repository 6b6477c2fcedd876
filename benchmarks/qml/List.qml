import QtQuick 2.15

ListView {
    property QtObject controller: null
    width: 300
    height: 400
    model: controller ? controller.model : null
    delegate: Text {
        width: 300
        height: 20
        text: model.display
    }
}
