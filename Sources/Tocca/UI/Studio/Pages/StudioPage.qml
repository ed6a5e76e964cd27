pragma Strict
import QtQuick
import Tocca.UI

/// What all pages but the showroom are made of: a header, and below it cards that scroll.
Item {
    id: root

    property alias title: header.title
    property alias subtitle: header.subtitle
    property alias accessory: header.accessory
    property int headerInset
    default property alias content: column.data
    property real widest: 1080 // of the content
    readonly property alias columnWidth: column.width

    PageHeader {
        id: header
        inset: root.headerInset
        x: Theme.pageMargin
        y: Theme.pageMargin
        width: root.width - 2 * Theme.pageMargin
    }

    Divider {
        anchors.bottom: scroll.top
        width: root.width
        z: 1
        opacity: scroll.contentY > 0 ? 1 : 0

        Behavior on opacity {
            NumberAnimation { duration: Theme.stateChange }
        }
    }

    ScrollArea {
        id: scroll
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.topMargin: 16
        contentHeight: column.y + column.height + Theme.pageMargin

        Column {
            id: column
            x: Theme.pageMargin
            y: 4
            width: Math.min(scroll.width - 2 * Theme.pageMargin, root.widest)
            spacing: Theme.cardGap
        }
    }
}
