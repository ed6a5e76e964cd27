pragma Strict
import QtQuick
import Tocca.UI

/// The surface of a field, with its symbol and placeholder.
Rectangle {
    id: root

    property string placeholder
    property string symbol
    property bool hovered
    property bool focused
    property real textX

    radius: Theme.fieldRadius
    color: Theme.cardBg
    border.color: root.hovered && !root.focused ? Theme.amberAccent : Theme.controlBorder

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        x: 10
        color: Theme.textMuted
        name: root.symbol
        size: Theme.symbolSize
        visible: root.symbol !== ""
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: root.textX
        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.textMuted
        text: root.placeholder
    }

    FocusRing {
        around: root.radius
        visible: root.focused
    }
}
