pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// A cap of the drawn keyboard; lit and pressed in while its key is active.
Item {
    id: root

    required property string label
    required property real labelSize
    required property real widthRatio
    required property bool isActive
    required property real factor
    readonly property real depth: press.value // 0 up … 1 down; may swing beyond

    objectName: label
    transform: [
        Scale {
            origin.x: root.width / 2
            origin.y: root.height / 2
            xScale: 1 - 0.1 * root.depth
            yScale: xScale
        },
        Translate {
            y: 1.2 * root.factor * root.depth
        }
    ]

    SpringFollow {
        id: press
        dampingFraction: 0.55
        enabled: !Theme.reducesMotion
        response: 0.12
        to: root.isActive ? 1 : 0
    }

    // A soft shadow: layers that add up towards the cap, which hides what is under it.
    Repeater {
        model: 4

        Rectangle {
            required property int index
            readonly property real spread: (root.isActive ? 4 : 1) * root.factor * (index + 1) / 4

            anchors.fill: parent
            anchors.margins: -spread
            anchors.topMargin: -spread + (root.isActive ? 0 : root.factor)
            anchors.bottomMargin: -spread - (root.isActive ? 0 : root.factor)
            radius: 3.5 * root.factor + spread
            color: root.isActive ? Blend.alpha(Theme.amberAccent, 0.5 / 4) : Blend.alpha("black", 0.15 / 4)
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: 3.5 * root.factor
        gradient: Gradient {
            GradientStop {
                position: 0
                color: root.isActive ? Theme.amberAccent : Blend.tint(Theme.chassisBg, Blend.alpha(Theme.textSecondary, 0.25))
            }
            GradientStop {
                position: 1
                color: Blend.tint(Theme.chassisBg, root.isActive ? Blend.alpha(Theme.amberAccent, 0.8) : Blend.alpha(Theme.textSecondary, 0.18))
            }
        }
    }

    Label {
        anchors.centerIn: parent
        color: root.isActive ? "white" : Blend.alpha(Theme.textPrimary, 0.85)
        elide: Text.ElideNone
        font.family: Theme.monoFace
        font.weight: root.isActive ? Font.Bold : Font.Medium
        size: root.labelSize * root.factor
        text: root.label
    }
}
