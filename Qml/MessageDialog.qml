import QtQuick 2.15
import UiElements 1.0

/*!
    A question with one or two answers.

    The controller is a WQmlDialogController. Its model has the texts `title`, `text`, `acceptText` and `rejectText`;
    without the last one there is only one answer. Its `themeType` may name a theme type.
*/
FocusScope {
    id: root

    property QtObject controller: null
    readonly property var content: controller && controller.model ? controller.model : ({})
    readonly property string themeType: content.themeType || "global"

    signal accepted()
    signal rejected()

    readonly property int padding: 20

    readonly property real textWidth: Math.ceil(Math.max(title.implicitWidth, message.implicitWidth))

    implicitWidth: Math.max(320, Math.min(440, textWidth + 2 * padding), answers.width + 2 * padding)
    implicitHeight: Math.ceil(texts.height) + Math.ceil(answers.height) + 2 * padding + 20
    width: implicitWidth
    height: implicitHeight
    focus: true

    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true

    Accessible.role: Accessible.Dialog
    Accessible.name: title.text
    Accessible.description: message.text

    // An answer that has the focus takes Return for itself.
    Keys.onReturnPressed: accepted()
    Keys.onEnterPressed: accepted()
    Keys.onEscapePressed: rejected()

    Rectangle {
        anchors.fill: parent
        color: Theme.colorSet("dialog-background", root.themeType).normal
    }

    Column {
        id: texts
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: root.padding }
        spacing: 8

        Text {
            id: title
            width: parent.width
            visible: text.length > 0
            text: root.content.title || ""
            textFormat: Text.PlainText
            font: Theme.fonts.SubheaderPrimary
            color: Theme.colorSet("text-primary", root.themeType).normal
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Text {
            id: message
            width: parent.width
            visible: text.length > 0
            text: root.content.text || ""
            textFormat: Text.PlainText
            font: Theme.fonts.BodySecondary
            color: Theme.colorSet("text-secondary", root.themeType).normal
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    Row {
        id: answers
        anchors { right: parent.right; bottom: parent.bottom; margins: root.padding }
        spacing: 8

        TextButton {
            themeType: root.themeType
            visible: text.length > 0
            text: root.content.rejectText || ""
            onClicked: root.rejected()
        }
        TextButton {
            themeType: root.themeType
            primary: true
            focus: true
            text: root.content.acceptText || qsTr("OK")
            onClicked: root.accepted()
        }
    }
}
