pragma Strict
import QtQuick
import Tocca.UI

/// The surface of a button in each of its states.
Rectangle {
    id: root

    required property bool hovered
    required property bool pressed
    property bool on
    property real strength: 0.7 // of the accent around what is on

    anchors.fill: parent
    color: root.pressed ? Blend.tint(Theme.cardBg, Blend.alpha("black", Theme.pressedShade)) : Theme.cardBg
    border.color: root.on ? Blend.alpha(Theme.amberAccent, root.strength) : root.hovered ? Blend.tint(Theme.cardBorder, Blend.alpha(Theme.amberAccent, Theme.hoverBorder)) : Theme.cardBorder

    SeenBehavior on border.color {
        of: root

        ColorAnimation { duration: Theme.stateChange; easing.type: Easing.OutCubic }
    }
}
