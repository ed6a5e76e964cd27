pragma Strict
import QtQuick
import Tocca.UI

/// A switch that shows `checked` and asks for the opposite.
Pressable {
    id: root

    property bool checked

    signal toggled

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: root.checked
    implicitWidth: Theme.switchWidth
    implicitHeight: Theme.switchHeight
    radius: height / 2
    onActivated: root.toggled()

    SwitchDrawing {
        anchors.centerIn: parent
        checked: root.checked
        hovered: root.hovered
        pressed: root.pressed
    }
}
