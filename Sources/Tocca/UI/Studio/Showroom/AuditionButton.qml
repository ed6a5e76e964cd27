pragma Strict
import QtQuick
import Tocca.UI

/// The button that selects a sound and lets it be heard.
Pressable {
    id: root

    implicitWidth: row.implicitWidth + 18
    implicitHeight: 26
    radius: 4

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: root.pressed ? Blend.tint(Theme.panelBg, Blend.alpha("black", Theme.pressedShade)) : Theme.panelBg
        border.color: root.hovered ? Blend.tint(Theme.cardBorder, Blend.alpha(Theme.amberAccent, 2 * Theme.hoverBorder)) : Theme.cardBorder
    }

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 6

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.textPrimary
            name: "play.fill"
            size: 10
        }

        CapitalLabel {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.textPrimary
            font.weight: Font.Bold
            text: "AUDITION"
        }
    }
}
