import QtQuick 2.15

Rectangle {
    id: root
    property QtObject controller: null
    property string title: "Upcoming call"
    implicitWidth: 300
    implicitHeight: rows.height + 20
    radius: 6
    border.color: "#c8c8c8"
    Column {
        id: rows
        x: 10
        y: 10
        width: parent.width - 20
        spacing: 6
        Text {
            width: parent.width
            text: root.title
            font.bold: true
            elide: Text.ElideRight
        }
        Text {
            width: parent.width
            text: "Three people are waiting. Join from this computer, or move the call to another device."
            wrapMode: Text.WordWrap
        }
        Repeater {
            model: 4
            delegate: Rectangle {
                width: rows.width
                height: 26
                radius: 4
                color: area.containsMouse ? "#ececec" : "#f7f7f7"
                Text {
                    anchors.centerIn: parent
                    text: "Participant " + index
                }
                MouseArea {
                    id: area
                    anchors.fill: parent
                    hoverEnabled: true
                }
            }
        }
        Row {
            anchors.right: parent.right
            spacing: 6
            PopupButton { text: "Later" }
            PopupButton {
                text: "Join"
                accent: true
            }
        }
    }
}
