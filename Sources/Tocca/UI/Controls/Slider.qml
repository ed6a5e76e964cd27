pragma Strict
import QtQuick
import Tocca.UI

/// A slider from 0 to 1. It shows `value` and asks for another one: by drag, wheel, arrows (1 %), Page keys (10 %), Home and End.
Item {
    id: root

    property string title // for assistive programs
    property real value

    signal moved(real value)

    function ask(wanted: real): void {
        const limited = Math.max(0, Math.min(wanted, 1));
        if (limited !== root.value)
            root.moved(limited);
    }

    function askSteps(steps: real): void {
        root.ask(root.value + steps / 100);
    }

    Accessible.role: Accessible.Slider
    Accessible.name: root.title
    Accessible.focusable: true
    Accessible.onIncreaseAction: root.askSteps(1)
    Accessible.onDecreaseAction: root.askSteps(-1)
    activeFocusOnTab: true
    implicitWidth: 160
    implicitHeight: 24
    opacity: enabled ? 1 : Theme.disabledOpacity

    Keys.onLeftPressed: root.askSteps(-1)
    Keys.onDownPressed: root.askSteps(-1)
    Keys.onRightPressed: root.askSteps(1)
    Keys.onUpPressed: root.askSteps(1)
    Keys.onPressed: event => {
        const pages = [Qt.Key_Home, Qt.Key_PageDown, -1, Qt.Key_PageUp, Qt.Key_End].indexOf(event.key);
        event.accepted = pages >= 0;
        if (event.accepted)
            root.askSteps([-100, -10, 0, 10, 100][pages]);
    }

    SliderTrack {
        anchors.fill: parent
        filled: Math.max(0, Math.min(root.value, 1))
        onPointed: share => root.ask(share)
        onStepped: steps => root.askSteps(steps)
    }

    FocusRing {}
}
