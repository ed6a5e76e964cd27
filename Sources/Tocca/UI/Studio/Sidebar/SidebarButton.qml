pragma Strict
import QtQuick
import Tocca.UI

/// Hides the sidebar, or shows it again.
Pressable {
    id: root

    hint: "Toggle Sidebar"
    implicitWidth: 28
    implicitHeight: 28
    radius: 6
    title: "Toggle Sidebar"

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: root.pressed ? Blend.tint(Theme.cardBg, Blend.alpha("black", Theme.pressedShade)) : Theme.cardBg
        border.color: root.hovered ? Blend.tint(Theme.cardBorder, Blend.alpha(Theme.amberAccent, Theme.hoverBorder)) : Theme.cardBorder
    }

    Symbol {
        anchors.centerIn: parent
        color: Theme.textSecondary
        name: "sidebar.leading"
        size: Theme.symbolSize
    }
}
