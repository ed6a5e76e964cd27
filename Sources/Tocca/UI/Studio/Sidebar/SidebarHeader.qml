pragma Strict
import QtQuick
import Tocca.UI

/// The top of the sidebar: the brand, and the button that hides it.
Item {
    id: root

    signal collapseAsked

    implicitHeight: 70

    ToccaBrandLogoView {
        id: logo
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
    }

    Column {
        anchors.left: logo.right
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Label {
            color: Theme.textPrimary
            font.weight: Font.Black
            size: 16
            text: "Tocca"
        }

        CapitalLabel {
            color: Theme.amberAccent
            size: 8.5
            text: "STUDIO"
        }
    }

    SidebarButton {
        objectName: "hideSidebar"
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        onActivated: root.collapseAsked()
    }
}
