pragma Strict
import QtQuick
import Tocca.UI

/// A ring around its parent while the keyboard acts there.
Rectangle {
    id: root

    property real around: Theme.buttonRadius // radius of what it surrounds

    anchors.fill: parent
    anchors.margins: -2 * Theme.focusWidth
    color: "transparent"
    radius: root.around + 2 * Theme.focusWidth
    border.width: Theme.focusWidth
    border.color: Theme.focusRing
    visible: parent && parent.activeFocus
}
