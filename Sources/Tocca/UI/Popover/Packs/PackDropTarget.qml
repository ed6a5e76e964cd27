import QtQuick
import Tocca.UI

/// An area that takes folders dropped on it, and says so while one hovers.
DropArea {
    id: root

    required property MenuBarViewModel model
    readonly property bool isTargeted: containsDrag

    objectName: "dropTarget"
    keys: ["text/uri-list"]
    onDropped: drop => {
        drop.accepted = root.model.handleDrop(drop.urls);
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: 6
        radius: Theme.cardRadius
        color: Blend.alpha(Theme.panelBg, 0.82)
        border.color: Theme.amberAccent
        border.width: 2
        visible: root.isTargeted

        Symbol {
            anchors.centerIn: parent
            color: Theme.amberAccent
            name: "plus.circle"
            size: 44
        }
    }
}
