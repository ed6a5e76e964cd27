pragma Strict
import QtQuick
import Tocca.UI

/// The base of all that can be pressed: pointer, keys, focus, hint and what assistive programs are told.
Item {
    id: root

    property string title // for assistive programs
    property string hint // shown after a moment under the pointer or with the focus
    property string copied // goes to the clipboard when the focused item is copied
    property real radius: Theme.buttonRadius
    readonly property bool hovered: area.containsMouse
    readonly property bool pressed: area.pressed && area.containsMouse

    signal activated

    /// What the menu's "Copy" asks of the item that has the focus.
    function copy(): void {
        if (root.copied !== "")
            Clipboard.copy(root.copied);
    }

    Accessible.role: Accessible.Button
    Accessible.name: root.title
    Accessible.description: root.hint
    Accessible.focusable: true
    Accessible.onPressAction: root.activated()
    Accessible.onToggleAction: root.activated()
    activeFocusOnTab: true
    opacity: enabled ? 1 : Theme.disabledOpacity

    Keys.onSpacePressed: event => { if (!event.isAutoRepeat) root.activated(); }
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) root.activated(); }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) root.activated(); }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.activated()
    }

    ToolTip {
        target: root
        text: root.hint
        shown: (area.containsMouse || root.activeFocus) && !area.pressed
    }

    FocusRing {
        around: root.radius
    }
}
