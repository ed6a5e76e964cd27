import QtQuick
import Tocca.UI

/// The page with every setting of the sound.
StudioPage {
    id: root

    required property MainWindowViewModel model
    readonly property SettingsViewModel settings: model.settings
    readonly property bool isWide: width >= 1040
    readonly property real cardWidth: isWide ? (columnWidth - Theme.cardGap) / 2 : columnWidth

    title: "Acoustic Console"
    subtitle: "Broadcast peak-normalized output with precision attenuator and Presence EQ."
    widest: 1640
    accessory: Badge {
        ink: Theme.mintStatus
        text: "-0.5 dBFS TRUE PEAK"
    }

    Flow {
        width: parent.width
        spacing: Theme.cardGap

        Column {
            width: root.cardWidth
            spacing: Theme.cardGap

            MasterAttenuator {
                width: parent.width
                model: root.settings
            }

            ConsoleSection {
                width: parent.width
                icon: "waveform.path"
                title: "Acoustic Presence Contour (EQ)"

                CheckToggle {
                    objectName: "presenceEQ"
                    width: parent.width
                    badge: "+3dB 100Hz / +2.5dB 3kHz"
                    checked: root.settings.isPresenceEQEnabled
                    line: "Contoured equal-loudness curve ensures keystroke resonance cuts through ambient sound and background music, even at low system volume."
                    title: "Thock & Clack Frequency Contour"
                    onToggled: root.settings.togglePresenceEQ()
                }
            }

            ConsoleSection {
                width: parent.width
                icon: "arrow.up.circle.fill"
                title: "Key Release Acoustics"

                CheckToggle {
                    objectName: "upstroke"
                    width: parent.width
                    checked: root.settings.playsUpstroke
                    line: "Triggers authentic tactile leaf spring release clack upon key depress."
                    title: "Mechanical Spring Recoil (Upstroke)"
                    onToggled: root.settings.toggleUpstroke()
                }
            }

            ConsoleSection {
                width: parent.width
                icon: "headphones"
                title: "Binaural Stereo Spatial Field"

                CheckToggle {
                    objectName: "spatialAudio"
                    width: parent.width
                    checked: root.settings.isSpatialAudioEnabled
                    line: "Audio accurately follows the physical coordinate of each key across your stereo field."
                    title: "Physical Keystroke Panning (-55% Left to +55% Right)"
                    onToggled: root.settings.toggleSpatialAudio()
                }
            }

            ConsoleSection {
                width: parent.width
                icon: "hand.tap.fill"
                title: "Force Touch Trackpad Haptics"

                CheckToggle {
                    objectName: "haptics"
                    width: parent.width
                    checked: root.settings.isHapticsEnabled
                    line: "Triggers a microscopic physical feedback pulse under your fingers on every actuation."
                    title: "Tactile Mechanical Switch Pulse on Trackpad"
                    onToggled: root.settings.toggleHaptics()
                }
            }
        }

        Column {
            width: root.cardWidth
            spacing: Theme.cardGap

            ModderSuite {
                width: parent.width
                model: root.settings
            }

            PeripheralAudio {
                width: parent.width
                model: root.settings
            }

            VisualFlair {
                width: parent.width
                model: root.settings
            }
        }
    }
}
