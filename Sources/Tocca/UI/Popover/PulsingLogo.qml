pragma Strict
import QtQuick
import Tocca.UI

/// The brand mark, which beats with every change of `trigger`.
ToccaBrandLogoView {
    id: root

    required property real trigger
    required property bool isSeen

    onTriggerChanged: if (isSeen && !Theme.reducesMotion) beat.restart()
    objectName: "pulsingLogo"
    transformOrigin: Item.Center

    SequentialAnimation on scale {
        id: beat
        running: false

        NumberAnimation {
            to: 1.08
            duration: 60
            easing.type: Easing.OutCubic
        }

        NumberAnimation {
            to: 1
            duration: 160
            easing.type: Easing.OutCubic
        }
    }
}
