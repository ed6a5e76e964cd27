pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// The console's card for the volume, by slider and by presets.
ConsoleSection {
    id: root

    required property SettingsViewModel model

    icon: "speaker.wave.3.fill"
    title: "Master Audio Attenuator"

    Slider {
        objectName: "volume"
        width: parent.width
        title: "Master Audio Attenuator"
        level: root.model.volume
        onMoved: level => root.model.setVolume(level)
    }

    Item {
        width: parent.width
        height: Theme.controlHeight

        Label {
            id: presetsLabel
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.textMuted
            font.family: Theme.monoFace
            font.weight: Font.Bold
            size: 10
            text: "PRESETS:"
        }

        Row {
            id: presets
            anchors.left: presetsLabel.right
            anchors.leftMargin: 10
            spacing: 6

            Repeater {
                model: root.model.presetLabels

                PushButton {
                    required property int index
                    required property string modelData

                    objectName: "preset" + index
                    Accessible.checkable: true
                    Accessible.checked: on
                    on: root.model.activePreset === index
                    text: modelData
                    onActivated: root.model.choosePreset(index)
                }
            }
        }

        Row {
            anchors.right: parent.right
            height: parent.height
            spacing: 8

            CapitalLabel {
                anchors.baseline: reading.baseline
                text: "STUDIO LEVEL"
            }

            Label {
                objectName: "volumeReading"
                id: reading
                anchors.verticalCenter: parent.verticalCenter
                width: 56
                color: Theme.textPrimary
                font.weight: Font.ExtraBold
                horizontalAlignment: Text.AlignRight
                size: 16
                text: root.model.volumeReading
            }
        }
    }
}
