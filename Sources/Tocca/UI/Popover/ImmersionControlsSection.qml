pragma Strict
import QtQuick
import Tocca.UI

/// The popover's section for panning, haptics and burst dynamics.
Section {
    id: root

    required property SettingsViewModel model

    title: "SENSORY IMMERSION"

    ToggleRow {
        objectName: "isSpatialAudioEnabled"
        width: root.width
        checked: root.model.isSpatialAudioEnabled
        icon: "headphones"
        line: "Audio pans left/right matching physical keys"
        title: "Binaural Stereo Spatial Panning"
        onToggled: root.model.toggleSpatialAudio()
    }

    ToggleRow {
        objectName: "isHapticsEnabled"
        width: root.width
        checked: root.model.isHapticsEnabled
        icon: "hand.tap.fill"
        line: "Feel tactile switch click under your finger"
        title: "Force Touch Trackpad Haptics"
        onToggled: root.model.toggleHaptics()
    }

    ToggleRow {
        objectName: "isBurstDynamicsEnabled"
        width: root.width
        checked: root.model.isBurstDynamicsEnabled
        icon: "bolt.horizontal.fill"
        line: "Dynamic acoustic punch during fast typing"
        title: "Typing Burst Dynamics"
        onToggled: root.model.toggleBurstDynamics()
    }
}
