pragma Strict
import QtQuick
import Tocca.UI

/// A button that shows one of several options and asks for another through a menu or the arrow keys.
Pressable {
    id: root

    property list<string> options
    property int currentIndex
    property string symbol // before the option
    property bool accented // stands out
    property real textSize: Theme.bodySize
    property int textWeight: Font.Medium
    property int chevronSize: 12
    readonly property string option: options[currentIndex] ?? ""
    readonly property alias opened: menu.opened

    signal chosen(int index)

    Accessible.role: Accessible.ComboBox
    Accessible.description: root.option
    implicitWidth: 160
    implicitHeight: Theme.controlHeight
    onActivated: menu.open()

    Keys.onUpPressed: root.chosen(Math.max(0, root.currentIndex - 1))
    Keys.onDownPressed: root.chosen(Math.min(root.options.length - 1, root.currentIndex + 1))

    ButtonGround {
        hovered: root.hovered
        on: root.accented
        pressed: root.pressed
        radius: root.radius
        strength: 1
    }

    Symbol {
        id: sign
        anchors.verticalCenter: parent.verticalCenter
        x: 10
        color: label.color
        name: root.symbol
        size: Theme.symbolSize
        visible: root.symbol !== ""
    }

    Label {
        id: label
        anchors.left: parent.left
        anchors.leftMargin: sign.visible ? sign.x + sign.width + 6 : 10
        anchors.right: chevron.left
        anchors.rightMargin: sign.visible ? 4 : 6
        anchors.verticalCenter: parent.verticalCenter
        color: root.accented ? Theme.amberAccent : Theme.textPrimary
        font.weight: root.textWeight
        size: root.textSize
        text: root.option
    }

    Symbol {
        id: chevron
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        color: root.accented ? Theme.amberAccent : Theme.textMuted
        name: "chevron.down"
        size: root.chevronSize
    }

    PopupMenu {
        id: menu
        target: root
        title: root.title
        options: root.options
        currentIndex: root.currentIndex
        onChosen: index => root.chosen(index)
    }
}
