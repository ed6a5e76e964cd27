import QtQuick
import Tocca.UI

/// The content of the Studio window: menu strip, sidebar, and the page of the selected tab.
FocusScope {
    id: root

    required property MainWindowViewModel model
    property bool sidebarShown: true
    property real sidebarWidth: 230
    readonly property real sidebarShare: sidebarSlide.share

    function toggleSidebar(): void {
        root.sidebarShown = !root.sidebarShown;
    }

    focus: true

    Keys.onPressed: event => event.accepted = menuStrip.handlePress(event.key, event.modifiers)
    Keys.onReleased: event => event.accepted = menuStrip.handleRelease(event.key)

    Shortcut {
        sequence: "Ctrl+Alt+S"
        onActivated: root.toggleSidebar()
    }

    QtObject {
        id: sidebarSlide

        property real share: root.sidebarShown ? 1 : 0

        Behavior on share {
            NumberAnimation { duration: Theme.stateChange; easing.type: Easing.OutCubic }
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.chassisBg
    }

    DetailView {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: Math.round(root.sidebarWidth * root.sidebarShare)
        anchors.right: parent.right
        anchors.top: menuStrip.bottom
        model: root.model
        sidebarShown: root.sidebarShown
        onSidebarAsked: root.toggleSidebar()
    }

    Sidebar {
        anchors.bottom: parent.bottom
        anchors.top: menuStrip.bottom
        width: root.sidebarWidth
        x: Math.round(-root.sidebarWidth * (1 - root.sidebarShare))
        enabled: root.sidebarShown
        model: root.model
        visible: root.sidebarShare > 0
        onCollapseAsked: root.toggleSidebar()
        onWidthAsked: width => root.sidebarWidth = Math.max(210, Math.min(width, 260))
    }

    MenuBarStrip {
        id: menuStrip
        anchors.left: parent.left
        anchors.right: parent.right
        height: root.model.mainMenu.isShown ? implicitHeight : 0
        model: root.model.mainMenu
        visible: root.model.mainMenu.isShown
        sheetParent: root
    }
}
