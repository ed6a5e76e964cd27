pragma Strict
import QtQuick
import Tocca.UI

/// How a switch looks, without what it does.
Rectangle {
    id: root

    required property bool checked
    property bool hovered
    property bool pressed

    implicitWidth: Theme.switchWidth
    implicitHeight: Theme.switchHeight
    radius: height / 2
    color: root.checked ? Theme.amberAccent : root.hovered ? Blend.tint(Theme.controlBorder, Blend.alpha("black", Theme.pressedShade)) : Theme.controlBorder

    SeenBehavior on color {
        of: root

        ColorAnimation { duration: Theme.stateChange; easing.type: Easing.OutCubic }
    }

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: Blend.alpha("black", root.pressed ? 2 * Theme.pressedShade : root.hovered && root.checked ? Theme.pressedShade : 0)
    }

    Rectangle {
        readonly property real inset: (root.height - Theme.knobSize) / 2

        x: root.checked ? root.width - width - inset : inset
        y: inset
        width: Theme.knobSize
        height: Theme.knobSize
        radius: width / 2
        color: Theme.panelBg
        border.color: Blend.alpha("black", 0.08)

        SeenBehavior on x {
            of: root

            NumberAnimation { duration: Theme.stateChange; easing.type: Easing.OutCubic }
        }
    }
}
