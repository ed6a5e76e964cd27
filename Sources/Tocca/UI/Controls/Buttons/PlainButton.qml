pragma Strict
import QtQuick
import Tocca.UI

/// A button whose bounds show under the pointer only.
Pressable {
    id: root

    property alias text: face.text
    property alias symbol: face.symbol
    property alias color: face.color

    title: root.text
    implicitWidth: face.implicitWidth
    implicitHeight: Theme.controlHeight

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: Blend.alpha("black", root.pressed ? Theme.hoverShade + Theme.pressedShade : root.hovered ? Theme.hoverShade : 0)
        border.color: root.hovered ? Theme.cardBorder : "transparent"
    }

    ButtonFace {
        id: face
        anchors.fill: parent
        padding: 8
    }
}
