pragma Strict
import QtQuick
import Tocca.UI

/// A row that names a sound and chooses it.
Pressable {
    id: root

    required property int index
    required property string icon
    required property string line
    required property bool isSelected
    required property bool isTabStop // of the rows that one is chosen of
    required title

    signal stepped(int step)

    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: root.isSelected
    Accessible.description: root.line
    hint: words.isCut ? root.title : ""
    activeFocusOnTab: root.isTabStop
    copied: root.title
    implicitHeight: Math.max(Theme.rowHeight, words.implicitHeight + 14)
    radius: 8

    Keys.onUpPressed: root.stepped(-1)
    Keys.onDownPressed: root.stepped(1)

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: -8
        anchors.rightMargin: -8
        radius: root.radius
        color: root.isSelected ? Blend.alpha(Theme.amberAccent, root.pressed ? 0.14 : 0.09)
                               : Blend.alpha("black", root.pressed ? Theme.hoverShade + Theme.pressedShade : root.hovered ? Theme.hoverShade : 0)
    }

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        x: 2
        color: root.isSelected ? Theme.amberAccent : Theme.textMuted
        name: root.icon
        size: 16
    }

    TitleAndLine {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: Theme.symbolColumn + 10
        anchors.right: mark.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        line: root.line
        title: root.title
    }

    Symbol {
        id: mark
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.amberAccent
        name: "checkmark.circle.fill"
        opacity: root.isSelected ? 1 : 0
        size: 16
    }
}
