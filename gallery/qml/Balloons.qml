import QtQuick 2.15
import UiElements 1.0

/*! Balloons with their arrows on every side, sharp at every ratio. */
Item {
    id: root

    property string themeType: "global"

    implicitWidth: 160
    implicitHeight: flow.height

    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true

    Flow {
        id: flow
        width: parent.width
        spacing: 16

        Repeater {
            model: [
                { text: qsTr("Top, left"), anchor: WBalloon.Top, alignment: WBalloon.LeftAlignment },
                { text: qsTr("Top"), anchor: WBalloon.Top, alignment: WBalloon.CenterAlignment },
                { text: qsTr("Bottom, right"), anchor: WBalloon.Bottom, alignment: WBalloon.RightAlignment },
                { text: qsTr("Left"), anchor: WBalloon.Left, alignment: WBalloon.CenterAlignment },
                { text: qsTr("Right, bottom"), anchor: WBalloon.Right, alignment: WBalloon.BottomAlignment },
                { text: qsTr("None"), anchor: WBalloon.None, alignment: WBalloon.CenterAlignment }
            ]

            WBalloon {
                id: balloon

                // The strip of the arrow is not part of the box that the text is in the middle of.
                readonly property int strip: arrowSize / 2

                width: Math.ceil(label.implicitWidth) + 48
                height: Math.ceil(label.implicitHeight) + 48
                radius: 8
                arrowAnchor: modelData.anchor
                arrowAlignment: modelData.alignment
                backgroundColor: Theme.colorSet("menu-background", root.themeType).normal
                borderColor: Theme.colorSet("outline-primary", root.themeType).normal

                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Balloon, arrow: %1").arg(modelData.text)

                Text {
                    id: label
                    LayoutMirroring.enabled: false
                    anchors.centerIn: parent
                    anchors.horizontalCenterOffset: balloon.arrowAnchor === WBalloon.Left ? balloon.strip
                                                  : balloon.arrowAnchor === WBalloon.Right ? -balloon.strip : 0
                    anchors.verticalCenterOffset: balloon.arrowAnchor === WBalloon.Top ? balloon.strip
                                                : balloon.arrowAnchor === WBalloon.Bottom ? -balloon.strip : 0
                    text: modelData.text
                    textFormat: Text.PlainText
                    font: Theme.fonts.BodySecondary
                    color: Theme.colorSet("text-primary", root.themeType).normal
                }
            }
        }
    }
}
