pragma Strict
import QtQuick
import Tocca.UI

/// A short fact on a tint of its colour.
Rectangle {
    id: root

    property string text
    property color ink: Theme.amberAccent
    property real size: Theme.labelSize
    property bool dotted // a small dot before the text

    implicitWidth: row.implicitWidth + 12
    implicitHeight: row.implicitHeight + 6
    color: Blend.alpha(root.ink, 0.12)
    radius: 4
    Accessible.name: root.text
    Accessible.role: Accessible.StaticText

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 4

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 5
            height: 5
            radius: 2.5
            color: root.ink
            visible: root.dotted
        }

        CapitalLabel {
            color: root.ink
            font.letterSpacing: 0.4
            size: root.size
            text: root.text
        }
    }
}
