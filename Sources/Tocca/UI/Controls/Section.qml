pragma Strict
import QtQuick
import Tocca.UI

/// A capital title over rows. `accessory` stands at the title's right end.
Item {
    id: root

    default property alias content: rows.data
    property alias title: heading.text
    property alias accessory: holder.data
    property alias spacing: rows.spacing

    implicitHeight: rows.y + rows.implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.name: root.title

    CapitalLabel {
        id: heading
        anchors.left: parent.left
        anchors.right: holder.left
        anchors.verticalCenter: holder.verticalCenter
    }

    Item {
        id: holder
        anchors.right: parent.right
        width: childrenRect.width
        height: Math.max(16, childrenRect.height)
    }

    Column {
        id: rows
        y: holder.height + Theme.titleGap
        width: root.width
        spacing: Theme.rowGap
    }
}
