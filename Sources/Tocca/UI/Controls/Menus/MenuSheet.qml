pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// An open menu over the window, under its target where there is room. Keys act in it; a press beside it closes it.
FocusScope {
    id: root

    required property Item target
    property string title // for assistive programs
    property alias model: list.model
    property alias delegate: list.delegate
    property alias current: list.currentIndex // under the pointer or the arrow keys; −1 none
    property alias padding: card.padding
    property alias radius: card.radius
    property real gap: 4 // below the target
    property real leastWidth: 120
    property real uncovered // height at the top where presses go to what lies beneath

    signal chosen(int row)
    signal closed
    signal stepped(int step)

    function chooseCurrent(): void {
        if (root.current >= 0)
            root.chosen(root.current);
    }

    Keys.onUpPressed: root.stepped(-1)
    Keys.onDownPressed: root.stepped(1)
    // A key that is still held from opening the menu chooses nothing.
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) root.chooseCurrent(); }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) root.chooseCurrent(); }
    Keys.onSpacePressed: event => { if (!event.isAutoRepeat) root.chooseCurrent(); }
    Keys.onTabPressed: root.closed()
    Keys.onBacktabPressed: root.closed()
    Keys.onEscapePressed: root.closed()

    MouseArea {
        anchors.fill: parent
        anchors.topMargin: root.uncovered
        hoverEnabled: true
        onPressed: root.closed()
        onWheel: wheel => wheel.accepted = true
    }

    Card {
        id: card

        readonly property point at: root.target ? root.target.mapToItem(root, 0, 0) : Qt.point(0, 0)
        readonly property real below: at.y + (root.target ? root.target.height : 0) + root.gap

        x: Math.max(8, Math.min(at.x, root.width - width - 8))
        y: Math.max(8, below + height + 8 <= root.height ? below : Math.min(at.y - height - root.gap, root.height - height - 8))
        width: Math.max(root.target ? root.target.width : 0, root.leastWidth)
        height: Math.min(list.contentHeight + 2 * padding, root.height - 16)
        padding: 4

        ListView {
            id: list
            Accessible.role: Accessible.PopupMenu
            Accessible.name: root.title
            Accessible.focusable: currentIndex < 0
            anchors.fill: parent
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            focus: true
            keyNavigationEnabled: false // the current entry has the focus
        }
    }
}
