import QtQuick
import Tocca.UI

/// The showroom: every switch and pack as a card, six at a time.
Item {
    id: root

    required property MainWindowViewModel model
    property int headerInset

    ShowroomHeader {
        id: header
        inset: root.headerInset
        model: root.model.showroom
        settings: root.model.settings
        x: Theme.pageMargin
        y: Theme.pageMargin
        width: root.width - 2 * Theme.pageMargin
    }

    Divider {
        id: rule
        anchors.top: header.bottom
        anchors.topMargin: 16
        width: root.width
    }

    ShowroomGrid {
        objectName: "grid"
        anchors.bottom: bar.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: rule.bottom
        model: root.model.showroom
    }

    ShowroomPaginationBar {
        id: bar
        anchors.bottom: parent.bottom
        model: root.model.showroom
        width: root.width
    }
}
