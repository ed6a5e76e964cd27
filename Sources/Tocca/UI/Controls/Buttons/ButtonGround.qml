pragma Strict
import QtQuick
import Tocca.UI

/// The surface of a button in each of its states.
Rectangle {
    id: root

    required property bool hovered
    required property bool pressed
    property bool on

    anchors.fill: parent
    color: root.pressed ? Qt.tint(Theme.cardBg, Qt.alpha("black", Theme.pressedShade)) : Theme.cardBg
    border.color: root.on ? Qt.alpha(Theme.amberAccent, 0.7) : root.hovered ? Qt.tint(Theme.cardBorder, Qt.alpha(Theme.amberAccent, Theme.hoverBorder)) : Theme.cardBorder

    Behavior on border.color {
        ColorAnimation { duration: Theme.stateChange; easing.type: Easing.OutCubic }
    }
}
