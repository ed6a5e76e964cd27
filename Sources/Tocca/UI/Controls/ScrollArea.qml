import QtQuick
import Tocca.UI

/// A view on a column that is higher than itself. It follows wheel and touchpad, the bar at its right edge, Page keys and the keyboard's focus.
FocusScope {
    id: root

    default property alias content: flick.flickableData
    property alias contentY: flick.contentY
    property alias contentHeight: flick.contentHeight
    readonly property real lowest: Math.max(0, flick.contentHeight - flick.height)

    function scrollTo(y: real): void {
        glide.to = Math.max(0, Math.min(y, root.lowest));
        glide.restart();
    }

    function scrollBy(points: real): void {
        root.scrollTo((glide.running ? glide.to : flick.contentY) + points);
    }

    /// Follows a notch of the wheel smoothly, and fingers on a touchpad at once. Units: eighths of a degree, upwards positive.
    function turn(angle: real): void {
        held.restart();
        if (angle % 120 === 0) {
            root.scrollBy(-angle / 2);
        } else {
            glide.stop();
            flick.contentY = Math.max(0, Math.min(flick.contentY - angle / 2, root.lowest));
        }
    }

    function reveal(item: Item): void {
        for (let above = item; above; above = above.parent) {
            if (above === flick.contentItem) {
                const y = item.mapToItem(flick.contentItem, 0, 0).y;
                if (y < flick.contentY + 12)
                    root.scrollTo(y - 12);
                else if (y + item.height > flick.contentY + root.height - 12)
                    root.scrollTo(y + item.height + 12 - root.height);
            }
        }
    }

    readonly property Item focused: Window.activeFocusItem
    onFocusedChanged: if (focused) root.reveal(focused)
    onLowestChanged: if (flick.contentY > lowest) flick.contentY = lowest

    Keys.onPressed: event => {
        const page = root.height - 60;
        const steps = new Map([[Qt.Key_PageDown, page], [Qt.Key_PageUp, -page], [Qt.Key_End, lowest], [Qt.Key_Home, -lowest]]);
        event.accepted = steps.has(event.key);
        if (event.accepted)
            root.scrollBy(steps.get(event.key));
    }

    Flickable {
        id: flick
        anchors.fill: parent
        clip: true
        interactive: false
        NumberAnimation on contentY { id: glide; running: false; duration: Theme.reducesMotion ? 0 : 160; easing.type: Easing.OutCubic }
    }

    // A control that the page brings under the pointer does not take over the wheel.
    MouseArea { anchors.fill: parent; acceptedButtons: Qt.NoButton; enabled: glide.running || held.running; onWheel: wheel => root.turn(wheel.angleDelta.y) }
    WheelHandler { acceptedDevices: PointerDevice.AllDevices; enabled: root.lowest > 0; onWheel: event => root.turn(event.angleDelta.y) }
    Timer { id: held; interval: 400 } // milliseconds
    ScrollBar { flickable: flick; moving: glide.running || held.running }
}
