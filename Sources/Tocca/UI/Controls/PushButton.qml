pragma Strict
import QtQuick

/// A button on a surface of its own. `on` marks one that stands for a chosen state.
Pressable {
    id: root

    property alias text: face.text
    property alias symbol: face.symbol
    property alias trailingSymbol: face.trailingSymbol
    property alias padding: face.padding
    property bool on
    property color color: on ? Theme.amberAccent : Theme.textPrimary

    title: root.text
    implicitWidth: face.implicitWidth
    implicitHeight: Theme.controlHeight

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: root.pressed ? Qt.tint(Theme.cardBg, Qt.alpha("black", Theme.pressedShade)) : Theme.cardBg
        border.color: root.on ? Qt.alpha(Theme.amberAccent, 0.7) : root.hovered ? Qt.tint(Theme.cardBorder, Qt.alpha(Theme.amberAccent, Theme.hoverBorder)) : Theme.cardBorder

        Behavior on border.color {
            ColorAnimation { duration: Theme.stateChange; easing.type: Easing.OutCubic }
        }
    }

    ButtonFace {
        id: face
        anchors.fill: parent
        color: root.color
    }
}
