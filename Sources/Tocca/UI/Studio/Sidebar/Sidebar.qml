pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// The sidebar of the Studio window: brand, tabs, and whether the session is heard.
FocusScope {
    id: root

    required property MainWindowViewModel model

    signal collapseAsked
    signal widthAsked(real width)

    Rectangle {
        anchors.fill: parent
        color: Theme.panelBg
    }

    SidebarHeader {
        id: header
        width: root.width
        onCollapseAsked: root.collapseAsked()
    }

    Divider {
        id: rule
        anchors.top: header.bottom
        width: root.width
    }

    ListView {
        id: list
        objectName: "tabs"
        Accessible.name: "Pages"
        Accessible.role: Accessible.List
        activeFocusOnTab: true
        anchors.bottom: footer.top
        anchors.left: parent.left
        anchors.margins: 10
        anchors.right: parent.right
        anchors.top: rule.bottom
        boundsBehavior: Flickable.StopAtBounds
        clip: contentHeight > height
        currentIndex: root.model.selectedTab
        keyNavigationEnabled: false
        model: root.model.tabTitles
        spacing: 2
        delegate: SidebarRow {
            width: list.width
            focused: list.activeFocus && selected
            icon: root.model.tabIcons[index]
            selected: root.model.selectedTab === index
            onChosen: root.model.selectTab(index)
        }

        Keys.onUpPressed: root.model.selectTab(root.model.selectedTab - 1)
        Keys.onDownPressed: root.model.selectTab(root.model.selectedTab + 1)
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
            if (event.accepted)
                root.model.selectTab(event.key === Qt.Key_Home ? 0 : list.count - 1);
        }
    }

    SidebarFooter {
        id: footer
        anchors.bottom: parent.bottom
        width: root.width
        isHookActive: root.model.status.hasAccessibilityPermission
    }

    Divider {
        anchors.right: parent.right
        height: root.height
        width: 1
    }

    MouseArea {
        anchors.right: parent.right
        anchors.rightMargin: -3
        cursorShape: Qt.SplitHCursor
        height: root.height
        preventStealing: true
        width: 7
        onPositionChanged: mouse => root.widthAsked(mapToItem(root, mouse.x, 0).x)
    }
}
