pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// An open menu under its title, over the whole window: a press beside it closes it.
FocusScope {
    id: root

    required property MenuItemsViewModel model
    required property real sheetX
    required property real sheetY

    signal chosen(int row)
    signal moved(int step)
    signal closed

    onVisibleChanged: if (visible) list.currentIndex = -1

    Keys.onDownPressed: list.currentIndex = root.model.next(list.currentIndex, 1)
    Keys.onUpPressed: list.currentIndex = root.model.next(list.currentIndex < 0 ? 0 : list.currentIndex, -1)
    Keys.onLeftPressed: root.moved(-1)
    Keys.onRightPressed: root.moved(1)
    Keys.onEscapePressed: root.closed()
    Keys.onTabPressed: root.closed()
    Keys.onReturnPressed: list.choose()
    Keys.onEnterPressed: list.choose()
    Keys.onSpacePressed: list.choose()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Alt || event.key === Qt.Key_F10;
        if (event.accepted)
            root.closed();
    }

    MouseArea {
        anchors.fill: parent
        anchors.topMargin: root.sheetY
        onPressed: root.closed()
        onWheel: wheel => wheel.accepted = true
    }

    Card {
        Accessible.role: Accessible.PopupMenu
        x: root.sheetX
        y: root.sheetY + 2
        width: 268
        implicitHeight: list.contentHeight + 2 * padding
        padding: 5
        radius: 9

        ListView {
            id: list

            function choose(): void {
                if (currentIndex >= 0)
                    root.chosen(currentIndex);
            }

            anchors.fill: parent
            currentIndex: -1
            highlightFollowsCurrentItem: false
            interactive: false
            model: root.model
            onModelChanged: currentIndex = -1
            delegate: MenuSheetItem {
                width: list.width
                current: list.currentIndex === index
                onHovered: list.currentIndex = isEnabled && !isSeparator ? index : -1
                onChosen: root.chosen(index)
            }
        }
    }

    Connections {
        target: root.model
        function onModelReset(): void { list.currentIndex = -1; }
    }
}
