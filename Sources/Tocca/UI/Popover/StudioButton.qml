pragma Strict
import QtQuick
import Tocca.UI

/// A wide button that leads to the Studio window.
Pressable {
    id: root

    title: "Open Tocca Studio"
    implicitHeight: Theme.rowHeight

    ButtonGround {
        hovered: root.hovered
        pressed: root.pressed
        radius: root.radius
    }

    Symbol {
        id: symbol
        anchors.verticalCenter: parent.verticalCenter
        x: 12
        color: Theme.amberAccent
        name: "macwindow.badge.plus"
        size: 15
    }

    Label {
        anchors.left: symbol.right
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.textPrimary
        font.weight: Font.DemiBold
        size: Theme.rowTitleSize
        text: root.title
    }

    Symbol {
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.textMuted
        name: "chevron.forward"
        size: Theme.symbolSize
    }
}
