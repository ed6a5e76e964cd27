pragma Strict
import QtQuick
import Tocca.UI

/// A row of the sidebar that selects a tab.
MouseArea {
    id: root

    required property int index
    required property string modelData
    required property string icon
    required property bool selected
    required property bool focused

    signal chosen

    objectName: "tab" + root.index
    Accessible.name: root.modelData
    Accessible.role: Accessible.ListItem
    Accessible.selectable: true
    Accessible.selected: root.selected
    Accessible.focusable: true
    Accessible.onPressAction: root.chosen()
    implicitHeight: Theme.rowHeight
    hoverEnabled: true
    onClicked: root.chosen()

    Rectangle {
        anchors.fill: parent
        radius: Theme.buttonRadius
        color: root.selected ? Blend.alpha(Theme.amberAccent, 0.1) : Blend.alpha("black", root.pressed ? Theme.pressedShade + Theme.hoverShade : root.containsMouse ? Theme.hoverShade : 0)
    }

    Symbol {
        id: symbol
        anchors.verticalCenter: parent.verticalCenter
        x: 10 + Math.round((Theme.symbolColumn - size) / 2)
        color: root.selected ? Theme.amberAccent : Theme.textMuted
        name: root.icon
        size: 15
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: 10 + Theme.symbolColumn + 10
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        color: root.selected ? Theme.textPrimary : Theme.textSecondary
        font.weight: root.selected ? Font.DemiBold : Font.Medium
        size: 12.5
        text: root.modelData
    }

    FocusRing {
        anchors.margins: 0
        visible: root.focused
    }
}
