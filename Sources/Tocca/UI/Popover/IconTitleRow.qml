pragma Strict
import QtQuick
import Tocca.UI

/// The title of a setting with its symbol, and what it is set to at the right end.
Item {
    id: root

    required property string icon
    required property string title
    property alias value: reading.text
    property alias valueColor: reading.color
    property alias valueName: reading.objectName

    implicitHeight: 18

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        x: 2
        color: Theme.amberAccent
        name: root.icon
        size: 15
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: Theme.symbolColumn + 10
        anchors.right: reading.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.textPrimary
        font.weight: Font.DemiBold
        size: Theme.rowTitleSize
        text: root.title
    }

    Label {
        id: reading
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        font.weight: Font.DemiBold
        size: Theme.captionSize
    }
}
