import QtQuick
import Tocca.UI

/// A hint that explains its target while the pointer rests on it; it stays inside the window.
Item {
    id: root

    required property Item target
    property string text
    property bool shown

    onShownChanged: if (shown) bubble.parent = root.Window.contentItem // not bound: a window that ends would move it about

    Timer {
        id: rest
        interval: 600 // milliseconds
        running: root.shown && root.text !== ""
    }

    Loader {
        id: bubble

        readonly property real gap: 6

        z: 1000
        active: root.shown && root.text !== "" && !rest.running
        onLoaded: {
            (item as ToolTipBubble).text = root.text;
            const at = root.target.mapToItem(bubble.parent, 0, root.target.height + bubble.gap);
            const fitsBelow = at.y + bubble.height + bubble.gap <= bubble.parent.height;
            const left = at.x + (root.target.width - bubble.width) / 2;
            bubble.x = Math.round(Math.max(bubble.gap, Math.min(left, bubble.parent.width - bubble.width - bubble.gap)));
            bubble.y = Math.round(fitsBelow ? at.y : at.y - root.target.height - 2 * bubble.gap - bubble.height);
        }
        source: "ToolTipBubble.qml"
    }
}
