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

    signal asked // by the keyboard or an assistive program
    signal stepped(int step)

    objectName: "menu" + root.index
    Accessible.name: root.modelData
    Accessible.role: Accessible.ButtonMenu
    Accessible.focusable: true
    Accessible.onPressAction: root.asked()
    implicitWidth: label.implicitWidth + 18
    hoverEnabled: true

    Keys.onLeftPressed: root.stepped(-1)
    Keys.onRightPressed: root.stepped(1)
    Keys.onDownPressed: root.asked()
    Keys.onSpacePressed: event => { if (!event.isAutoRepeat) root.asked(); }
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) root.asked(); }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) root.asked(); }

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

    FocusRing {
        anchors.margins: 0
        around: 1
    }
}
