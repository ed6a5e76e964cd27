pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// A cap of the drawn keyboard; lit and pressed in while its key is active. All of it follows one spring.
Item {
    id: root

    required property string label
    required property real labelSize
    required property real widthRatio
    required property bool isActive
    required property real factor
    required property bool isSeen
    readonly property real depth: press.value // 0 up … 1 down; may swing beyond
    readonly property real light: Math.max(0, Math.min(depth, 1))

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
        enabled: root.isSeen && !Theme.reducesMotion
        response: 0.12
        to: root.isActive ? 1 : 0
    }

    // A soft shadow: layers that add up towards the cap, which hides what is under it.
    Repeater {
        model: 4

        Rectangle {
            required property int index
            readonly property real spread: (1 + 3 * root.light) * root.factor * (index + 1) / 4
            readonly property real drop: (1 - root.light) * root.factor

            anchors.fill: parent
            anchors.margins: -spread
            anchors.topMargin: -spread + drop
            anchors.bottomMargin: -spread - drop
            radius: 3.5 * root.factor + spread
            color: Blend.between(Blend.alpha("black", 0.15 / 4), Blend.alpha(Theme.amberAccent, 0.5 / 4), root.light)
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: 3.5 * root.factor
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Blend.between(Blend.tint(Theme.chassisBg, Blend.alpha(Theme.textSecondary, 0.25)), Theme.amberAccent, root.light)
            }
            GradientStop {
                position: 1
                color: Blend.between(Blend.tint(Theme.chassisBg, Blend.alpha(Theme.textSecondary, 0.18)),
                                     Blend.tint(Theme.chassisBg, Blend.alpha(Theme.amberAccent, 0.8)), root.light)
            }
        }
    }

    Label {
        objectName: "capLabel"
        anchors.centerIn: parent
        Accessible.ignored: true
        color: Blend.between(Blend.alpha(Theme.textPrimary, 0.85), "white", root.light)
        elide: Text.ElideNone
        font.family: Theme.monoFace
        font.weight: Math.round(Font.Medium + (Font.Bold - Font.Medium) * root.light)
        size: root.labelSize * root.factor
        text: root.label
    }
}
