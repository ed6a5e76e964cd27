pragma Strict
import QtQuick
import Tocca.UI

/// How a check box looks, without what it does.
Rectangle {
    id: root

    required property bool checked
    property bool hovered

    implicitWidth: 18
    implicitHeight: 18
    border.color: root.checked || root.hovered ? Theme.amberAccent : Theme.controlBorder
    color: root.checked ? Theme.amberAccent : Theme.panelBg
    radius: 5

    SeenBehavior on color {
        of: root

        ColorAnimation { duration: Theme.stateChange; easing.type: Easing.OutCubic }
    }

    Symbol {
        anchors.centerIn: parent
        color: Theme.panelBg
        name: "checkmark"
        size: 12
        visible: root.checked
    }
}
