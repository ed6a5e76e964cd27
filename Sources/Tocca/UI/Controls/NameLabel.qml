import QtQuick
import Tocca.UI

/// A label for a name of any length, which a hint tells in full where it is cut short.
Label {
    id: root

    HoverHandler { id: hover }

    ToolTip {
        target: root
        text: root.truncated ? root.text : ""
        shown: hover.hovered
    }
}
