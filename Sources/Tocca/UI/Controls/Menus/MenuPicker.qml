pragma Strict
import QtQuick
import Tocca.UI

/// Shows one of several options and asks for another through a menu or the arrow keys.
Pressable {
    id: root

    property list<string> options
    property int currentIndex
    readonly property alias opened: menu.opened

    signal chosen(int index)

    Accessible.role: Accessible.ComboBox
    Accessible.description: root.options[root.currentIndex] ?? ""
    implicitWidth: 160
    implicitHeight: Theme.controlHeight
    onActivated: menu.open()

    Keys.onUpPressed: root.chosen(Math.max(0, root.currentIndex - 1))
    Keys.onDownPressed: root.chosen(Math.min(root.options.length - 1, root.currentIndex + 1))

    ButtonGround {
        hovered: root.hovered
        pressed: root.pressed
        radius: root.radius
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: 10
        anchors.right: chevron.left
        anchors.rightMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.textPrimary
        font.weight: Font.Medium
        text: root.options[root.currentIndex] ?? ""
    }

    Symbol {
        id: chevron
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.textMuted
        name: "chevron.down"
        size: 12
    }

    PopupMenu {
        id: menu
        target: root
        options: root.options
        currentIndex: root.currentIndex
        onChosen: index => root.chosen(index)
    }
}
