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
    color: root.checked ? Theme.amberAccent : Blend.tint(Theme.cardBorder, Blend.alpha(Theme.textMuted, root.hovered ? 0.3 : 0.18))

    Behavior on color {
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

        Behavior on x {
            NumberAnimation { duration: Theme.stateChange; easing.type: Easing.OutCubic }
        }
    }
}
