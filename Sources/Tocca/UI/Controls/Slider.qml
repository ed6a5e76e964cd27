import QtQuick
import Tocca.UI

/// A slider from 0 to 1. It shows `level` and asks for another one: by drag, wheel, arrows (1 %), Page keys (10 %), Home and End.
Item {
    id: root

    property string title // for assistive programs
    property real level
    property real value: level // which assistive programs set
    readonly property real minimumValue: 0
    readonly property real maximumValue: 1
    readonly property real stepSize: 0.01

    signal moved(real level)

    function ask(wanted: real): void {
        const limited = Math.max(0, Math.min(wanted, 1));
        if (limited !== root.level)
            root.moved(limited);
    }

    /// From whole per cent to whole per cent, counted as the level reads.
    function askSteps(steps: real): void {
        root.ask((Math.floor(root.level * 100 + 0.001) + steps) / 100);
    }

    onValueChanged: {
        if (value !== level) {
            root.ask(value);
            value = Qt.binding(() => root.level);
        }
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
        filled: Math.max(0, Math.min(root.level, 1))
        onPointed: share => root.ask(share)
        onStepped: steps => root.askSteps(steps)
    }

    FocusRing {}
}
