pragma Strict
import QtQuick
import Tocca.UI

/// The title of a menu in the strip.
MouseArea {
    id: root

    required property int index
    required property string modelData
    required property bool isOpen
    required property bool isApplication

    objectName: "menu" + root.index
    Accessible.name: root.modelData
    Accessible.role: Accessible.ButtonMenu
    implicitWidth: label.implicitWidth + 18
    hoverEnabled: true

    Rectangle {
        anchors.fill: parent
        anchors.bottomMargin: 3
        anchors.topMargin: 4
        radius: 5
        color: root.isOpen ? Blend.alpha(Theme.amberAccent, 0.12) : Blend.alpha("black", root.containsMouse ? 2 * Theme.hoverShade : 0)
    }

    Label {
        id: label
        anchors.centerIn: parent
        color: root.isOpen ? Theme.amberAccent : Theme.textPrimary
        font.weight: root.isApplication ? Font.Bold : Font.Medium
        text: root.modelData
    }
}
