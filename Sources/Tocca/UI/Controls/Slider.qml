pragma Strict
import QtQuick
import Tocca.UI

/// A level between two ends. It shows `value` and asks for another one: by drag, wheel, arrows (1 %), Page keys (10 %), Home and End.
Item {
    id: root

    property string title // for assistive programs
    property real value
    property real minimumValue: 0
    property real maximumValue: 1
    readonly property real stepSize: (maximumValue - minimumValue) / 100
    readonly property real position: Math.max(0, Math.min((value - minimumValue) / (maximumValue - minimumValue), 1))

    signal moved(real value)

    function ask(wanted: real): void {
        const limited = Math.max(root.minimumValue, Math.min(wanted, root.maximumValue));
        if (limited !== root.value)
            root.moved(limited);
    }

    function askSteps(steps: real): void {
        root.ask(root.value + steps * root.stepSize);
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
        filled: root.position
        onPointed: share => root.ask(root.minimumValue + share * (root.maximumValue - root.minimumValue))
        onStepped: steps => root.askSteps(steps)
    }

    FocusRing {}
}
