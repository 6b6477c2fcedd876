import QtQuick 2.15
import UiElements 1.0

/*!
    Two choices of which one is taken, as the two halves of a pill.

    The controller is a WQmlDialogController. Its model has the texts `first`, `second` and `name`, which says what is
    chosen, and the number `currentIndex` of the choice at first.
*/
FocusScope {
    id: root

    property QtObject controller: null
    property string themeType: "global"
    readonly property var content: controller && controller.model ? controller.model : ({})
    property int currentIndex: content.currentIndex || 0

    /*! A person has chosen. */
    signal activated(int index)

    function choose(index) {
        const item = index === 0 ? first : second
        item.forceActiveFocus(Qt.OtherFocusReason)
        if (currentIndex === index)
            return
        currentIndex = index
        activated(index)
    }

    implicitWidth: row.width
    implicitHeight: row.height
    focus: true

    Accessible.role: Accessible.Grouping
    Accessible.name: content.name || ""

    // Left and right are those of the screen.
    Keys.onLeftPressed: choose(Theme.isMirrored ? 1 : 0)
    Keys.onRightPressed: choose(Theme.isMirrored ? 0 : 1)
    Keys.onUpPressed: choose(0)
    Keys.onDownPressed: choose(1)
    Keys.onSpacePressed: choose(first.activeFocus ? 0 : 1)

    Row {
        id: row
        anchors.centerIn: parent
        layoutDirection: Theme.isMirrored ? Qt.RightToLeft : Qt.LeftToRight
        spacing: 0

        HalfPillButton {
            id: first
            width: Math.max(first.implicitWidth, second.implicitWidth)
            edge: Theme.isMirrored ? WHalfPill.Right : WHalfPill.Left
            // The line between the halves is that of the second, unless the first one has the focus.
            borderLeft: !Theme.isMirrored || activeFocus
            borderRight: Theme.isMirrored || activeFocus
            text: root.content.first || ""
            checked: root.currentIndex === 0
            focus: checked
            activeFocusOnTab: checked
            themeType: root.themeType
            onClicked: root.choose(0)
        }
        HalfPillButton {
            id: second
            width: first.width
            edge: Theme.isMirrored ? WHalfPill.Left : WHalfPill.Right
            borderLeft: Theme.isMirrored || !first.activeFocus
            borderRight: !Theme.isMirrored || !first.activeFocus
            text: root.content.second || ""
            checked: root.currentIndex === 1
            focus: checked
            activeFocusOnTab: checked
            themeType: root.themeType
            onClicked: root.choose(1)
        }
    }
}
