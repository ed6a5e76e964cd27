pragma Strict
import QtQuick
import Tocca.UI

/// A card of a page: a symbol and a title over rows.
Card {
    id: root

    property string title
    property string icon
    property alias spacing: rowColumn.spacing
    default property alias rows: rowColumn.data

    Accessible.name: root.title
    Accessible.role: Accessible.Grouping
    implicitHeight: rowColumn.y + rowColumn.implicitHeight + 2 * padding
    content: [
        Symbol {
            id: symbol
            anchors.verticalCenter: heading.verticalCenter
            color: Theme.amberAccent
            name: root.icon
            size: 16
        },
        Label {
            id: heading
            anchors.left: symbol.right
            anchors.leftMargin: 8
            anchors.right: parent.right
            color: Theme.textPrimary
            font.weight: Font.Bold
            size: Theme.sectionTitleSize
            text: root.title
        },
        Column {
            id: rowColumn
            y: 28
            width: root.width - 2 * root.padding
            spacing: Theme.rowGap
        }
    ]
}
