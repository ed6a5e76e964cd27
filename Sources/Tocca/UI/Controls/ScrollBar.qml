import QtQuick
import Tocca.UI

/// The thin bar over a scroll area's right or lower edge, seen while it scrolls or is under the pointer.
MouseArea {
    id: root

    required property Flickable flickable
    required property bool moving
    property bool isHorizontal
    readonly property real room: isHorizontal ? flickable.width : flickable.height
    readonly property real whole: isHorizontal ? flickable.contentWidth : flickable.contentHeight
    readonly property real at: isHorizontal ? flickable.contentX : flickable.contentY
    readonly property real last: Math.max(0, whole - room)
    readonly property real share: room / Math.max(1, whole)
    readonly property real knobLength: Math.max(28, (isHorizontal ? width : height) * share)
    readonly property real travel: (isHorizontal ? width : height) - knobLength
    readonly property real knobPlace: last > 0 ? at / last * travel : 0
    property real grip

    function show(place: real): void {
        const to = Math.max(0, Math.min((place - root.grip) / root.travel, 1)) * root.last;
        if (root.isHorizontal)
            root.flickable.contentX = to;
        else
            root.flickable.contentY = to;
    }

    anchors.bottom: parent.bottom
    anchors.left: isHorizontal ? parent.left : undefined
    anchors.right: parent.right
    anchors.top: isHorizontal ? undefined : parent.top
    width: 12
    height: 12
    enabled: share < 1
    hoverEnabled: true
    preventStealing: true
    onPressed: mouse => {
        const place = isHorizontal ? mouse.x : mouse.y;
        grip = place >= knobPlace && place <= knobPlace + knobLength ? place - knobPlace : knobLength / 2;
    }
    onPositionChanged: mouse => {
        if (pressed)
            root.show(isHorizontal ? mouse.x : mouse.y);
    }

    Rectangle {
        readonly property int thickness: root.containsMouse || root.pressed ? 7 : 5

        x: root.isHorizontal ? root.knobPlace : root.width - thickness - 3
        y: root.isHorizontal ? root.height - thickness - 3 : root.knobPlace
        width: root.isHorizontal ? root.knobLength : thickness
        height: root.isHorizontal ? thickness : root.knobLength
        radius: thickness / 2
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
