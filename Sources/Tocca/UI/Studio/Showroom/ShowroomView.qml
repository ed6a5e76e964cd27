import QtQuick
import Tocca.UI

/// Every switch and pack as a card, a page at a time.
Item {
    id: root

    required property ShowroomViewModel model
    property int headerInset

    ShowroomHeader {
        id: header
        inset: root.headerInset
        model: root.model
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
        anchors.bottom: bar.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: rule.bottom
        model: root.model
    }

    ShowroomPaginationBar {
        id: bar
        anchors.bottom: parent.bottom
        model: root.model
        width: root.width
    }
}
