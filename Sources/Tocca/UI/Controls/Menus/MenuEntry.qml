pragma Strict
import QtQuick
import Tocca.UI

/// One option of an open menu.
MouseArea {
    id: root

    required property int index
    required property string modelData
    required property bool current // under the pointer or the arrow keys
    required property bool ticked

    Accessible.role: Accessible.MenuItem
    Accessible.name: root.modelData
    Accessible.checked: root.ticked
    Accessible.onPressAction: root.clicked(null)
    implicitHeight: 28
    hoverEnabled: true

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: root.current ? Blend.alpha(Theme.amberAccent, 0.12) : "transparent"
    }

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        x: 8
        color: Theme.amberAccent
        name: "checkmark"
        size: 12
        visible: root.ticked
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: 26
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.textPrimary
        text: root.modelData
    }
}
