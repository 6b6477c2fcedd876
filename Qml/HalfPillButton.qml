import QtQuick 2.15
import UiElements 1.0

/*! One of the two choices of a HalfPillPair. */
WHalfPill {
    id: half

    property string text
    property bool checked: false
    property string themeType: "global"

    signal clicked()

    readonly property string kind: checked ? "button-primary-" : "button-secondary-"
    readonly property string colorState: !enabled ? "disabled" : mouse.containsPress ? "pressed"
                                       : mouse.containsMouse ? "hovered" : "normal"

    implicitWidth: Math.max(64, Math.ceil(metrics.advanceWidth) + 36)
    implicitHeight: Math.ceil(label.implicitHeight) + 12
    backgroundColor: Theme.colorSet(kind + "background", themeType)[colorState]
    borderColor: activeFocus ? Theme.colorSet(kind + "border", themeType).focused
                             : Theme.colorSet("button-secondary-border", themeType)[colorState]
    borderWidth: activeFocus ? 2 : 1

    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.focusable: true
    Accessible.onPressAction: if (enabled) clicked()
    Accessible.onToggleAction: if (enabled) clicked()

    // As wide as it gets: the choice that is taken is also told by its weight, for themes in which its color does not.
    TextMetrics {
        id: metrics
        text: half.text
        font: Theme.fonts.SubheaderSecondary
    }

    Text {
        id: label
        anchors { fill: parent; leftMargin: 14; rightMargin: 14 }
        text: half.text
        textFormat: Text.PlainText
        font: half.checked ? Theme.fonts.SubheaderSecondary : Theme.fonts.BodySecondary
        color: Theme.colorSet(half.kind + "text", half.themeType)[half.colorState]
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        onPressed: half.forceActiveFocus(Qt.MouseFocusReason)
        onClicked: half.clicked()
    }
}
