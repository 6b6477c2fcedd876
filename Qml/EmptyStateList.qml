import QtQuick 2.15
import UiElements 1.0

/*!
    A list that says something in the place of its rows while there are none.

    The controller is a WQmlDialogController. Its model is an EmptyStateBaseListModel, or an OverflowListProxyModel
    above one. The rows have the role `title` and, if the model names it, the role `subtitle`.
*/
FocusScope {
    id: root

    property QtObject controller: null
    property string themeType: "global"
    readonly property var rows: controller && controller.model ? controller.model : null
    readonly property var emptyState: rows && rows.sourceModel !== undefined ? rows.sourceModel : rows
    property alias currentIndex: view.currentIndex
    readonly property int count: view.count

    /*! A row was chosen, by a click or by Return. */
    signal activated(int index)

    // Icons of the library are shown in the color of the theme, every other image as it is.
    function tinted(image) {
        const icon = /^(qrc)?:\/Resources\/(.+)\.svg$/.exec(image)
        return icon ? Theme.icon(icon[2], Theme.colorSet("text-secondary", themeType).normal) : image
    }

    focus: true
    implicitWidth: 320
    implicitHeight: 240

    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: Theme.colorSet("list-background", root.themeType).normal
        border.width: 1
        border.color: Theme.colorSet("list-border", root.themeType)[view.activeFocus ? "focused" : "normal"]
    }

    ListView {
        id: view

        readonly property var itemBackground: Theme.colorSet("list-item-background", root.themeType)
        readonly property var itemText: Theme.colorSet("list-item-text", root.themeType)
        readonly property var focusOutline: Theme.colorSet("outline-focus", root.themeType)
        readonly property var secondaryText: Theme.colorSet("text-secondary", root.themeType)

        anchors { fill: parent; margins: 4; rightMargin: scrollBar.visible ? 10 : 4 }
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        highlightMoveDuration: Theme.animationsDisabled ? 0 : 100
        currentIndex: -1
        model: root.rows

        Accessible.role: Accessible.List
        Accessible.name: root.rows && root.rows.header || ""
        Accessible.focusable: true

        onActiveFocusChanged: if (activeFocus && currentIndex < 0 && count > 0) currentIndex = 0
        Keys.onReturnPressed: if (currentIndex >= 0) root.activated(currentIndex)
        Keys.onEnterPressed: if (currentIndex >= 0) root.activated(currentIndex)
        Keys.onPressed: function(event) {
            const last = count - 1
            const page = Math.max(1, Math.floor(height / 28) - 1)
            const jumps = {
                [Qt.Key_Home]: 0, [Qt.Key_End]: last,
                [Qt.Key_PageUp]: Math.max(0, currentIndex - page),
                [Qt.Key_PageDown]: Math.min(last, currentIndex + page)
            }
            if (last < 0 || jumps[event.key] === undefined)
                return
            currentIndex = jumps[event.key]
            event.accepted = true
        }

        delegate: Rectangle {
            id: row

            readonly property string title: model.title === undefined ? model.display || "" : model.title
            readonly property string subtitle: model.subtitle || ""
            readonly property bool current: ListView.isCurrentItem
            readonly property string colorState: current ? "checked" : mouse.containsMouse ? "hovered" : "normal"

            width: ListView.view.width
            height: Math.max(28, Math.ceil(texts.height) + 8)
            radius: 4
            color: view.itemBackground[colorState]
            border.width: current && view.activeFocus ? 1 : 0
            border.color: view.focusOutline.normal

            Accessible.role: Accessible.ListItem
            Accessible.name: title
            Accessible.description: subtitle
            Accessible.selectable: true
            Accessible.selected: current
            Accessible.onPressAction: {
                view.currentIndex = index
                root.activated(index)
            }

            Column {
                id: texts
                anchors { left: parent.left; right: parent.right; margins: 8; verticalCenter: parent.verticalCenter }

                Text {
                    width: parent.width
                    text: row.title
                    textFormat: Text.PlainText
                    font: Theme.fonts.BodySecondary
                    color: view.itemText[row.colorState]
                    elide: Text.ElideRight
                    horizontalAlignment: Text.AlignLeft
                }
                Text {
                    width: parent.width
                    visible: text.length > 0
                    text: row.subtitle
                    textFormat: Text.PlainText
                    font: Theme.fonts.BodySecondary
                    color: row.current ? view.itemText.checked : view.secondaryText.normal
                    elide: Text.ElideRight
                    horizontalAlignment: Text.AlignLeft
                }
            }

            MouseArea {
                id: mouse
                anchors.fill: parent
                hoverEnabled: true
                onClicked: {
                    view.forceActiveFocus(Qt.MouseFocusReason)
                    view.currentIndex = index
                    root.activated(index)
                }
            }
        }
    }

    // Which part of the rows is seen.
    Rectangle {
        id: scrollBar
        readonly property var seen: view.visibleArea
        readonly property real progress: seen.yPosition / Math.max(0.001, 1 - seen.heightRatio)
        anchors { right: parent.right; rightMargin: 3 }
        y: view.y + Math.min(1, progress) * (view.height - height)
        width: 4
        height: Math.max(16, seen.heightRatio * view.height)
        radius: 2
        visible: seen.heightRatio < 1
        color: Theme.colorSet("scrollbar-handle-background", root.themeType).normal
    }

    Column {
        anchors { left: parent.left; right: parent.right; margins: 16; verticalCenter: parent.verticalCenter }
        visible: view.count === 0 && root.emptyState !== null
        spacing: 4

        Accessible.role: Accessible.StaticText
        Accessible.name: header.text
        Accessible.description: subtitle.text

        Image {
            readonly property var size: root.emptyState && root.emptyState.emptyStateImageSize || Qt.size(0, 0)
            anchors.horizontalCenter: parent.horizontalCenter
            visible: source != ""
            source: root.tinted(root.emptyState && root.emptyState.emptyStateImage || "")
            sourceSize: size.width > 0 && size.height > 0 ? size : undefined
            Accessible.ignored: true
        }
        Text {
            id: header
            width: parent.width
            visible: text.length > 0
            text: root.emptyState && root.emptyState.emptyStateHeader || ""
            textFormat: Text.PlainText
            font: Theme.fonts.SubheaderPrimary
            color: Theme.colorSet("text-primary", root.themeType).normal
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
        Text {
            id: subtitle
            width: parent.width
            visible: text.length > 0
            text: root.emptyState && root.emptyState.emptyStateSubtitle || ""
            textFormat: Text.PlainText
            font: Theme.fonts.BodySecondary
            color: Theme.colorSet("text-secondary", root.themeType).normal
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
