pragma Strict
import QtQuick
import Tocca.UI

/// Text as it is, never markup. `size` may be a fraction of a point.
Text {
    id: root

    property real size: Theme.bodySize

    color: Theme.textSecondary
    elide: Text.ElideRight
    font.family: Theme.textFace
    font.pointSize: root.size * Theme.typePoint
    renderType: Text.NativeRendering
    textFormat: Text.PlainText
}
