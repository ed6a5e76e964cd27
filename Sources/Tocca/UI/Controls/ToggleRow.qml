pragma Strict
import QtQuick
import Tocca.UI

/// A switch with its symbol, title and line; the whole row is the target.
Pressable {
    id: root

    property string icon
    property string line
    property bool indented: icon !== "" // into the column of the titles
    property bool checked

    signal toggled

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: root.checked
    Accessible.description: root.line
    hint: words.isCut ? root.title : ""
    implicitWidth: 280
    implicitHeight: Math.max(Theme.rowHeight, words.implicitHeight + 4)
    onActivated: root.toggled()

    Symbol {
        id: symbol
        anchors.verticalCenter: parent.verticalCenter
        x: Math.round((Theme.symbolColumn - size) / 2)
        color: root.checked ? Theme.amberAccent : Theme.textMuted
        name: root.icon
        size: 15
        visible: root.icon !== ""
    }

    TitleAndLine {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: root.indented ? Theme.symbolColumn + 10 : 0
        anchors.right: drawing.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        line: root.line
        title: root.title
    }

    SwitchDrawing {
        id: drawing
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        checked: root.checked
        hovered: root.hovered
        pressed: root.pressed
    }
}
