pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// An open menu with the window around it.
MouseArea {
    id: root

    required property Item target
    required property list<string> options
    required property int currentIndex

    signal chosen(int index)
    signal refused

    hoverEnabled: true
    Component.onCompleted: forceActiveFocus(Qt.PopupFocusReason)
    onPressed: root.refused()
    onWheel: wheel => wheel.accepted = true

    Keys.onUpPressed: list.decrementCurrentIndex()
    Keys.onDownPressed: list.incrementCurrentIndex()
    Keys.onReturnPressed: root.chosen(list.currentIndex)
    Keys.onEnterPressed: root.chosen(list.currentIndex)
    Keys.onSpacePressed: root.chosen(list.currentIndex)
    Keys.onTabPressed: root.refused()
    Keys.onEscapePressed: root.refused()

    Card {
        readonly property point at: root.target.mapToItem(root, 0, 0)
        readonly property real below: at.y + root.target.height + 4
        readonly property real room: root.height - 16

        Accessible.role: Accessible.PopupMenu
        x: Math.max(8, Math.min(at.x, root.width - width - 8))
        y: Math.max(8, below + height + 8 <= root.height ? below : Math.min(at.y - height - 4, root.height - height - 8))
        width: Math.max(root.target.width, 120)
        height: Math.min(list.contentHeight + 2 * padding, room)
        padding: 4

        ListView {
            id: list
            anchors.fill: parent
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            currentIndex: Math.max(0, root.currentIndex)
            model: root.options
            delegate: MenuEntry {
                width: list.width
                current: list.currentIndex === index
                ticked: root.currentIndex === index
                onEntered: list.currentIndex = index
                onClicked: root.chosen(index)
            }
        }
    }
}
