pragma Strict
import QtQuick
import Tocca.UI

/// A rail with a dot where the last key sounded, which fades after each.
Item {
    id: root

    required property real pan // −1 left … +1 right
    required property real trigger
    required property bool isSeen

    onTriggerChanged: {
        glow.stop();
        if (isSeen) {
            dot.strength = 1;
            glow.start();
        }
    }
    onIsSeenChanged: {
        glow.stop();
        dot.strength = 0;
    }
    implicitHeight: 30

    component Caption: Label {
        color: Theme.textMuted
        font.letterSpacing: Theme.labelSpacing
        font.weight: Font.Bold
        size: 8
    }

    Caption { anchors.left: parent.left; text: "◀ STEREO LEFT" }
    Caption { anchors.horizontalCenter: parent.horizontalCenter; text: "AUDIOPHILE SOUNDSTAGE" }
    Caption { anchors.right: parent.right; text: "STEREO RIGHT ▶" }

    Rectangle {
        id: rail
        anchors.left: parent.left
        anchors.right: parent.right
        y: 22
        height: 2
        radius: 1
        color: Theme.cardBorder

        Rectangle {
            anchors.centerIn: parent
            width: 2
            height: 8
            radius: 1
            color: Theme.cardBorder
        }
    }

    SpringFollow {
        id: follow
        dampingFraction: 0.8
        enabled: root.isSeen && !Theme.reducesMotion
        response: 0.25
        to: Math.max(-1, Math.min(root.pan, 1))
    }

    Rectangle {
        id: dot

        property real strength

        objectName: "soundstageDot"
        anchors.verticalCenter: rail.verticalCenter
        x: (root.width - width) / 2 * (1 + follow.value)
        width: 10
        height: 10
        radius: 5
        color: Blend.tint(Theme.cardBorder, Blend.alpha(Theme.amberAccent, 0.25 + 0.75 * strength))
        border.color: Theme.panelBg
        border.width: 2

        NumberAnimation on strength {
            id: glow
            running: false
            duration: Theme.reducesMotion ? 0 : 1200
            easing.type: Easing.InQuad
            to: 0
        }
    }
}
