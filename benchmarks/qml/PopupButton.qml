import QtQuick 2.15

Rectangle {
    id: root
    property alias text: label.text
    property bool accent: false
    width: label.implicitWidth + 20
    height: 26
    radius: height / 2
    color: accent ? (area.pressed ? "#00557a" : "#0070a0") : "transparent"
    border.width: accent ? 0 : 1
    border.color: "#808080"
    Text {
        id: label
        anchors.centerIn: parent
        color: root.accent ? "white" : "black"
    }
    MouseArea {
        id: area
        anchors.fill: parent
    }
}
