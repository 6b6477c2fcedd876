import QtQuick 2.15
import UiElements 1.0

/*! A push button that looks like those of widgets. */
Rectangle {
    id: button

    property string text
    /*! Whether this is what a person most likely wants here. */
    property bool primary: false
    property string themeType: "global"
    readonly property bool down: mouse.containsPress || keyDown

    signal clicked()

    readonly property string kind: primary ? "button-primary-" : "button-secondary-"
    readonly property var background: Theme.colorSet(kind + "background", themeType)
    readonly property var outline: Theme.colorSet(kind + "border", themeType)
    readonly property var foreground: Theme.colorSet(kind + "text", themeType)
    property bool keyDown: false

    function stateFor(set) {
        if (!enabled)
            return set.disabled
        if (down)
            return set.pressed
        if (mouse.containsMouse)
            return set.hovered
        return activeFocus ? set.focused : set.normal
    }

    implicitWidth: Math.max(Math.ceil(label.implicitWidth) + 32, 48)
    implicitHeight: Math.ceil(label.implicitHeight) + 12
    radius: 6
    color: stateFor(background)
    border.color: stateFor(outline)
    border.width: activeFocus ? 2 : 1
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.pressed: down
    Accessible.onPressAction: if (enabled) clicked()

    // Space presses, as a mouse does; Return is for whoever cannot wait.
    Keys.onPressed: function(event) {
        if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            event.accepted = true
            if (!event.isAutoRepeat)
                clicked()
        } else if (event.key === Qt.Key_Space) {
            event.accepted = true
            keyDown = true
        }
    }
    Keys.onReleased: function(event) {
        if (event.key !== Qt.Key_Space || event.isAutoRepeat)
            return
        event.accepted = true
        if (keyDown) {
            keyDown = false
            clicked()
        }
    }
    onActiveFocusChanged: if (!activeFocus) keyDown = false

    Text {
        id: label
        anchors { fill: parent; leftMargin: 12; rightMargin: 12 }
        text: button.text
        textFormat: Text.PlainText
        font: Theme.fonts.BodySecondary
        color: button.stateFor(button.foreground)
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        onPressed: button.forceActiveFocus(Qt.MouseFocusReason)
        onClicked: button.clicked()
    }
}
