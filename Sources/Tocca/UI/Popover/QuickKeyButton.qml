pragma Strict
import QtQuick
import Tocca.UI

/// A button like a keycap: its symbol over its text.
Pressable {
    id: root

    required property string icon
    required property string text
    property bool on
    readonly property color ink: on ? Theme.amberAccent : Theme.textPrimary

    title: root.text
    implicitHeight: 46

    ButtonGround {
        hovered: root.hovered
        on: root.on
        pressed: root.pressed
        radius: root.radius
    }

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 8
        color: root.ink
        name: root.icon
        size: 14
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 6
        color: root.ink
        font.weight: Font.DemiBold
        size: 10.5
        text: root.text
    }
}
