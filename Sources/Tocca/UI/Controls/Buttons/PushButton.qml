pragma Strict
import QtQuick
import Tocca.UI

/// A button on a surface of its own. `on` marks one that stands for a chosen state.
Pressable {
    id: root

    property alias text: face.text
    property alias symbol: face.symbol
    property alias trailingSymbol: face.trailingSymbol
    property alias padding: face.padding
    property alias textWeight: face.textWeight
    property bool on
    property color color: on ? Theme.amberAccent : Theme.textPrimary

    title: root.text
    implicitWidth: face.implicitWidth
    implicitHeight: Theme.controlHeight

    ButtonGround {
        hovered: root.hovered
        on: root.on
        pressed: root.pressed
        radius: root.radius
    }

    ButtonFace {
        id: face
        anchors.fill: parent
        color: root.color
    }
}
