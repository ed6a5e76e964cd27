pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// The popover's section for the sounds of mouse and wheel.
Section {
    id: root

    required property SettingsViewModel model

    title: "OMNI-PERIPHERAL AUDIO"

    ToggleRow {
        objectName: "isMouseAudioEnabled"
        width: root.width
        checked: root.model.isMouseAudioEnabled
        icon: "computermouse.fill"
        line: "Tactile mechanical clicks on left & right buttons"
        title: "Pro Mouse Microswitch Audio"
        onToggled: root.model.toggleMouseAudio()
    }

    Repeater {
        model: root.model.isMouseAudioEnabled ? 1 : 0
        delegate: Column {
            width: root.width
            spacing: 6

            PickerRow {
                width: root.width
                currentIndex: root.model.mouseProfile
                options: root.model.mouseProfiles
                pickerName: "mouseProfile"
                pickerWidth: 214
                title: "Microswitch"
                onChosen: index => root.model.chooseMouseProfile(index)
            }

            Label {
                objectName: "mouseProfileDescription"
                x: Theme.symbolColumn + 10
                width: root.width - x
                color: Theme.textMuted
                maximumLineCount: 2
                size: Theme.captionSize
                text: root.model.mouseProfileDescription
                wrapMode: Text.WordWrap
            }
        }
    }

    ToggleRow {
        objectName: "isScrollRatchetEnabled"
        width: root.width
        checked: root.model.isScrollRatchetEnabled
        icon: "gearshape.fill"
        line: "Mechanical rotary encoder ticks during page scrolls"
        title: "Inertial Alps Scroll Ratchet"
        onToggled: root.model.toggleScrollRatchet()
    }
}
