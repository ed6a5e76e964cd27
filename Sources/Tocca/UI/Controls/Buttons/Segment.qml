pragma Strict
import QtQuick
import Tocca.UI

/// One option of a segmented picker. The chosen one is where the picker has the focus.
MouseArea {
    id: root

    required property int index
    required property string modelData
    required property bool selected
    required property int lines

    signal chosen

    Accessible.role: Accessible.RadioButton
    Accessible.name: root.modelData
    Accessible.checkable: true
    Accessible.checked: root.selected
    Accessible.focusable: true
    Accessible.onPressAction: root.chosen()
    activeFocusOnTab: root.selected
    focus: root.selected
    hoverEnabled: true
    onClicked: root.chosen()

    Rectangle {
        anchors.fill: parent
        radius: Theme.buttonRadius - 2
        color: root.selected ? Theme.panelBg : Blend.alpha("black", root.pressed ? Theme.pressedShade : root.containsMouse ? Theme.hoverShade : 0)
        border.color: root.selected ? Blend.tint(Theme.cardBorder, Blend.alpha(Theme.textMuted, 0.25)) : "transparent"
    }

    Label {
        id: words
        anchors.centerIn: parent
        width: Math.min(implicitWidth, root.width - 10)
        color: root.selected ? Theme.amberAccent : Theme.textSecondary
        font.weight: root.selected ? Font.DemiBold : Font.Medium
        horizontalAlignment: Text.AlignHCenter
        maximumLineCount: root.lines
        size: Theme.captionSize
        text: root.modelData
        wrapMode: root.lines > 1 ? Text.WordWrap : Text.NoWrap
    }

    ToolTip {
        shown: (root.containsMouse || root.activeFocus) && !root.pressed
        target: root
        text: words.truncated ? root.modelData : ""
    }
}
