import QtQuick 2.15
import UiElements 1.0

Rectangle {
    // Outlives a reload.
    readonly property var keptProperties: ["presses"]
    property int presses: 0
    property string themeType: "global"

    radius: 8
    color: Theme.colorSet("background-secondary", themeType).normal
    border.width: activeFocus ? 2 : 1
    border.color: Theme.colorSet(activeFocus ? "outline-focus" : "outline-primary", themeType).normal

    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: label.text
    Keys.onSpacePressed: presses += 1
    MouseArea {
        anchors.fill: parent
        onClicked: parent.presses += 1
    }

    Text {
        id: label
        anchors.centerIn: parent
        text: "Edit me. Pressed: " + parent.presses
        font: Theme.fonts.SubheaderPrimary
        color: Theme.colorSet("text-primary", parent.themeType).normal
    }
}
