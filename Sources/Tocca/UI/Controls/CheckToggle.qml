pragma Strict
import QtQuick
import Tocca.UI

/// A check box with its title and line; the whole row is the target.
Pressable {
    id: root

    property string line
    property string badge // a fact about what it switches, at the right
    property bool checked

    signal toggled

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: root.checked
    Accessible.description: root.line
    hint: words.isCut ? root.title : ""
    implicitWidth: 26 + words.implicitWidth
    implicitHeight: Math.max(Theme.rowHeight, words.implicitHeight + 4)
    onActivated: root.toggled()

    CheckDrawing {
        id: box
        anchors.verticalCenter: parent.verticalCenter
        checked: root.checked
        hovered: root.hovered
    }

    TitleAndLine {
        id: words
        anchors.left: box.right
        anchors.leftMargin: 8
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        line: root.line
        lineColor: Theme.textSecondary
        title: root.title
        titleInset: fact.visible ? fact.width + 12 : 0
        titleWeight: Font.Bold
    }

    Badge {
        id: fact
        Accessible.ignored: root.badge === ""
        anchors.right: parent.right
        anchors.top: words.top
        text: root.badge
        visible: root.badge !== ""
    }
}
