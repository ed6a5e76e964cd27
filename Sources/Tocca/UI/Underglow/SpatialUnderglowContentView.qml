pragma Strict
import QtQuick
import Tocca.UI

/// The glow along the screen's lower edge, and the bright line below it.
Item {
    id: root

    required property SpatialUnderglowViewModel model

    Accessible.role: Accessible.Graphic
    Accessible.name: "Underglow"

    Item {
        anchors.fill: parent
        opacity: root.model.pulseOpacity
        visible: opacity > 0

        Behavior on opacity {
            id: pulse

            enabled: !Theme.reducesMotion

            NumberAnimation {
                duration: pulse.targetValue > 0 ? 50 : 280
                easing.type: Easing.OutSine
            }
        }

        GlowLight {
            x: Math.round(root.model.pulseXRatio * parent.width - width / 2)
            height: parent.height
            primary: root.model.primaryColor
            secondary: root.model.secondaryColor
        }

        EdgeLine {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            color: root.model.primaryColor
            ratio: root.model.pulseXRatio
        }
    }
}
