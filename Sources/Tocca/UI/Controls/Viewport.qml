import QtQuick
import Tocca.UI

/// A view on content that needs more room than a small screen has: it scrolls both ways, and follows the keyboard's focus.
FocusScope {
    id: root

    default property alias content: flick.flickableData
    required property real leastWidth
    required property real leastHeight
    readonly property Item focused: Window.activeFocusItem

    function reveal(item: Item): void {
        for (let above = item; above; above = above.parent) {
            if (above === flick.contentItem) {
                const at = item.mapToItem(flick.contentItem, 0, 0);
                root.showAt(Math.max(Math.min(flick.contentX, at.x - 12), at.x + item.width + 12 - flick.width),
                            Math.max(Math.min(flick.contentY, at.y - 12), at.y + item.height + 12 - flick.height));
            }
        }
    }

    function showAt(x: real, y: real): void {
        flick.contentX = Math.max(0, Math.min(x, flick.contentWidth - flick.width));
        flick.contentY = Math.max(0, Math.min(y, flick.contentHeight - flick.height));
    }

    onFocusedChanged: if (focused) root.reveal(focused)
    onWidthChanged: { root.showAt(flick.contentX, flick.contentY); moved.restart(); }
    onHeightChanged: { root.showAt(flick.contentX, flick.contentY); moved.restart(); }

    Flickable {
        id: flick
        anchors.fill: parent
        clip: true
        contentWidth: Math.max(root.width, root.leastWidth)
        contentHeight: Math.max(root.height, root.leastHeight)
        interactive: false
    }

    WheelHandler {
        acceptedDevices: PointerDevice.AllDevices
        enabled: flick.contentHeight > flick.height
        onWheel: event => { root.showAt(flick.contentX, flick.contentY - event.angleDelta.y / 2); moved.restart(); }
    }
    WheelHandler {
        acceptedDevices: PointerDevice.AllDevices
        enabled: flick.contentWidth > flick.width
        orientation: Qt.Horizontal
        onWheel: event => { root.showAt(flick.contentX - event.angleDelta.x / 2, flick.contentY); moved.restart(); }
    }
    Timer { id: moved; interval: 300 } // milliseconds
    ScrollBar { flickable: flick; moving: moved.running }
    ScrollBar { flickable: flick; isHorizontal: true; moving: moved.running }
}
