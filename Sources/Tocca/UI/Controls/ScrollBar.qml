import QtQuick
import Tocca.UI

/// The thin bar over a scroll area's right edge, seen while it scrolls or is under the pointer.
MouseArea {
    id: root

    required property Flickable flickable
    required property bool moving
    readonly property real lowest: Math.max(0, flickable.contentHeight - flickable.height)
    readonly property real share: flickable.height / Math.max(1, flickable.contentHeight)
    readonly property real travel: height - knob.height
    property real grip

    anchors.bottom: parent.bottom
    anchors.right: parent.right
    anchors.top: parent.top
    width: 12
    enabled: share < 1
    hoverEnabled: true
    preventStealing: true
    onPressed: mouse => grip = mouse.y >= knob.y && mouse.y <= knob.y + knob.height ? mouse.y - knob.y : knob.height / 2
    onPositionChanged: mouse => {
        if (pressed)
            root.flickable.contentY = Math.max(0, Math.min((mouse.y - grip) / root.travel, 1)) * root.lowest;
    }

    Rectangle {
        id: knob
        anchors.right: parent.right
        anchors.rightMargin: 3
        y: root.lowest > 0 ? root.flickable.contentY / root.lowest * root.travel : 0
        width: root.containsMouse || root.pressed ? 7 : 5
        height: Math.max(28, root.height * root.share)
        radius: width / 2
        color: Blend.alpha(Theme.textMuted, root.pressed ? 0.7 : 0.45)
        opacity: root.enabled && (root.moving || root.containsMouse || root.pressed || linger.running) ? 1 : 0

        Behavior on opacity {
            NumberAnimation { duration: Theme.stateChange; easing.type: Easing.OutCubic }
        }
    }

    Timer {
        id: linger
        interval: 700 // milliseconds
    }

    onMovingChanged: if (!moving) linger.restart()
}
