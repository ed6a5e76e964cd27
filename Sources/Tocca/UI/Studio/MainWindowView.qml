import QtQuick
import Tocca.UI

/// The content of the Studio window: sidebar, the page of the selected tab, and the menu strip above them.
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

    Keys.onPressed: event => event.accepted = menuStrip.handlePress(event.key, event.modifiers, event.isAutoRepeat)

    LoneAltKey {
        onTapped: if (root.activeFocus) menuStrip.toggle() // and no picker is open
    }

    FocusKeeper {}

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

    Viewport {
        objectName: "viewport"
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: menuStrip.height
        focus: true
        leastHeight: 640 - menuStrip.height
        leastWidth: 920

        Sidebar {
            anchors.bottom: parent.bottom
            anchors.top: parent.top
            width: root.sidebarWidth
            x: Math.round(-root.sidebarWidth * (1 - root.sidebarShare))
            z: 1
            enabled: root.sidebarShown
            model: root.model
            visible: root.sidebarShare > 0
            onCollapseAsked: root.toggleSidebar()
            onWidthAsked: width => root.sidebarWidth = Math.max(210, Math.min(width, 260))
        }

        DetailView {
            anchors.bottom: parent.bottom
            anchors.left: parent.left
            anchors.leftMargin: Math.round(root.sidebarWidth * root.sidebarShare)
            anchors.right: parent.right
            anchors.top: parent.top
            model: root.model
            sidebarShown: root.sidebarShown
            onSidebarAsked: root.toggleSidebar()
        }
    }

    MenuBarStrip {
        id: menuStrip
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        height: root.model.mainMenu.isShown ? implicitHeight : 0
        model: root.model.mainMenu
        visible: root.model.mainMenu.isShown
        sheetParent: root
    }
}
