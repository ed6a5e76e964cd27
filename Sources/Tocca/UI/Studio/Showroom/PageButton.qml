pragma Strict
import QtQuick
import Tocca.UI

/// A button that turns a page. Where there is no other page its words fade, and its outline stays.
Pressable {
    id: root

    property alias text: face.text
    property alias symbol: face.symbol
    property alias trailingSymbol: face.trailingSymbol

    title: root.text
    implicitWidth: face.implicitWidth
    implicitHeight: Theme.controlHeight
    opacity: 1

    ButtonGround {
        color: !root.enabled ? Blend.alpha(Theme.panelBg, 0.5)
                             : root.pressed ? Blend.tint(Theme.cardBg, Blend.alpha("black", Theme.pressedShade)) : Theme.cardBg
        hovered: root.hovered && root.enabled
        pressed: root.pressed
        radius: root.radius
    }

    ButtonFace {
        id: face
        anchors.fill: parent
        color: root.enabled ? Theme.textPrimary : Blend.alpha(Theme.textMuted, 0.4)
    }
}
