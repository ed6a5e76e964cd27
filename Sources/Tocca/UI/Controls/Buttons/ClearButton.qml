pragma Strict
import QtQuick
import Tocca.UI

/// The button at the right end of a field that empties it.
Pressable {
    id: root

    anchors.right: parent.right
    anchors.rightMargin: 6
    anchors.verticalCenter: parent.verticalCenter
    implicitWidth: 20
    implicitHeight: 20
    radius: width / 2
    title: qsTr("Clear")

    Symbol {
        anchors.centerIn: parent
        color: root.hovered ? Theme.textSecondary : Theme.textMuted
        name: "xmark.circle.fill"
        size: 14
    }
}
