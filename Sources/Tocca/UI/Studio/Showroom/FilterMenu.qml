pragma Strict
import QtQuick
import Tocca.UI

/// A borderless menu of filters; amber while it filters anything.
Pressable {
    id: root

    property list<string> options
    property int currentIndex
    readonly property bool filters: currentIndex > 0
    readonly property color ink: filters ? Theme.amberAccent : Theme.textPrimary

    signal chosen(int index)

    Accessible.role: Accessible.ComboBox
    Accessible.description: root.options[root.currentIndex] ?? ""
    implicitWidth: 124
    implicitHeight: Theme.controlHeight
    title: "Filter"
    onActivated: menu.open()

    Keys.onDownPressed: menu.open()

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: root.pressed ? Blend.tint(Theme.cardBg, Blend.alpha("black", Theme.pressedShade)) : Theme.cardBg
        border.color: root.filters ? Theme.amberAccent : root.hovered ? Blend.tint(Theme.cardBorder, Blend.alpha(Theme.amberAccent, Theme.hoverBorder)) : Theme.cardBorder
    }

    Symbol {
        id: symbol
        anchors.verticalCenter: parent.verticalCenter
        x: 10
        color: root.ink
        name: "line.3.horizontal.decrease.circle"
        size: Theme.symbolSize
    }

    Label {
        anchors.left: symbol.right
        anchors.leftMargin: 6
        anchors.right: chevron.left
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        color: root.ink
        font.weight: Font.DemiBold
        size: Theme.captionSize
        text: root.options[root.currentIndex] ?? ""
    }

    Symbol {
        id: chevron
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        color: root.filters ? root.ink : Theme.textMuted
        name: "chevron.down"
        size: 11
    }

    PopupMenu {
        id: menu
        currentIndex: root.currentIndex
        options: root.options
        target: root
        onChosen: index => root.chosen(index)
    }
}
