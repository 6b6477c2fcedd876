import QtQuick 2.15
import UiElements 1.0

/*!
    A text that points at what it is about, with an action if there is one.

    The controller is a WQmlPopupController. Its model has the texts `title`, `text` and `action`, each of which may be
    missing. accepted() is the action, rejected() the wish to be rid of the popup.
*/
FocusScope {
    id: root

    property QtObject controller: null
    readonly property var content: controller && controller.model ? controller.model : ({})
    readonly property string themeType: told("themeType", "global")

    signal accepted()
    signal rejected()

    readonly property int padding: 12
    readonly property int maximumTextWidth: 280
    readonly property real textWidth: Math.min(maximumTextWidth,
                                               Math.max(title.implicitWidth, message.implicitWidth, 48))
    // The balloon keeps a strip for the arrow on its side.
    readonly property int anchor: told("arrowAnchor", WBalloon.None)
    readonly property int strip: anchor === WBalloon.None ? 0 : balloon.arrowSize
    readonly property int before: padding + (anchor === WBalloon.Left ? strip : 0)
    readonly property int above: padding + (anchor === WBalloon.Top ? strip : 0)

    // What a controller of another kind does not know is as it is without one.
    function told(name, otherwise) {
        const value = controller ? controller[name] : undefined
        return value === undefined ? otherwise : value
    }

    implicitWidth: Math.ceil(column.width) + 2 * padding
                   + (anchor === WBalloon.Left || anchor === WBalloon.Right ? strip : 0)
    implicitHeight: Math.ceil(column.height) + 2 * padding
                    + (anchor === WBalloon.Top || anchor === WBalloon.Bottom ? strip : 0)
    width: implicitWidth
    height: implicitHeight
    focus: true

    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true

    Accessible.role: Accessible.Notification
    Accessible.name: title.text
    Accessible.description: message.text

    Keys.onEscapePressed: function(event) {
        event.accepted = false // the window closes itself
        rejected()
    }

    WBalloon {
        id: balloon
        anchors.fill: parent
        radius: 8
        borderWidth: 1
        arrowAnchor: root.anchor
        arrowAlignment: root.told("arrowAlignment", WBalloon.CenterAlignment)
        arrowOffset: root.told("arrowOffset", 0)
        arrowSize: root.told("arrowSize", 10)
        backgroundColor: Theme.colorSet("menu-background", root.themeType).normal
        // What is behind may have the color of the balloon: its outline alone must tell them apart.
        borderColor: Theme.colorSet("outline-primary", root.themeType).normal
    }

    Column {
        id: column
        // Where the arrow is does not depend on the direction of the layout, so this must not either.
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: false
        x: root.before
        y: root.above
        width: Math.ceil(Math.max(root.textWidth, action.visible ? action.implicitWidth : 0))
        spacing: 6

        Text {
            id: title
            LayoutMirroring.enabled: Theme.isMirrored
            width: parent.width
            visible: text.length > 0
            text: root.content.title || ""
            textFormat: Text.PlainText
            font: Theme.fonts.SubheaderSecondary
            color: Theme.colorSet("text-primary", root.themeType).normal
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
        }
        Text {
            id: message
            LayoutMirroring.enabled: Theme.isMirrored
            width: parent.width
            visible: text.length > 0
            text: root.content.text || ""
            textFormat: Text.PlainText
            font: Theme.fonts.BodySecondary
            color: Theme.colorSet("text-primary", root.themeType).normal
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
        }
        Item {
            width: parent.width
            height: action.height + 6
            visible: action.text.length > 0
            LayoutMirroring.enabled: Theme.isMirrored
            LayoutMirroring.childrenInherit: true

            TextButton {
                id: action
                anchors { right: parent.right; bottom: parent.bottom }
                width: Math.min(implicitWidth, parent.width)
                primary: true
                focus: true
                themeType: root.themeType
                text: root.content.action || ""
                onClicked: root.accepted()
            }
        }
    }
}
