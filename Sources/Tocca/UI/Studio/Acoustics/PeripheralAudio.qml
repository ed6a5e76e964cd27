import QtQuick
import Tocca.UI

/// The console's card for the sounds of mouse and wheel.
ConsoleSection {
    id: root

    required property SettingsViewModel model

    icon: "computermouse.fill"
    title: "Omni-Peripheral Sensory Audio"

    CheckToggle {
        objectName: "mouseAudio"
        width: parent.width
        checked: root.model.isMouseAudioEnabled
        line: "Generates authentic tactile microswitch actuation clicks on mouse clicks."
        title: "Pro Mouse Microswitch Audio"
        onToggled: root.model.toggleMouseAudio()
    }

    Item {
        width: parent.width
        height: profile.height + 6 + profileLine.height

        Label {
            id: profileTitle
            anchors.left: parent.left
            anchors.right: profile.left
            anchors.rightMargin: 12
            anchors.verticalCenter: profile.verticalCenter
            color: Theme.textPrimary
            font.weight: Font.Bold
            size: Theme.rowTitleSize
            text: "Microswitch Profile"
        }

        MenuPicker {
            objectName: "mouseProfile"
            id: profile
            anchors.right: parent.right
            width: Math.min(240, parent.width * 0.6)
            currentIndex: root.model.mouseProfile
            options: root.model.mouseProfiles
            title: "Microswitch Profile"
            onChosen: index => root.model.chooseMouseProfile(index)
        }

        Label {
            objectName: "mouseProfileLine"
            id: profileLine
            anchors.bottom: parent.bottom
            width: parent.width
            size: Theme.captionSize
            text: root.model.mouseProfileDescription
            wrapMode: Text.WordWrap
        }
    }

    CheckToggle {
        objectName: "scrollRatchet"
        width: parent.width
        checked: root.model.isScrollRatchetEnabled
        line: "Tactile mechanical encoder ratchet ticks scaled by scroll velocity."
        title: "Inertial Alps Rotary Scroll Ratchet"
        onToggled: root.model.toggleScrollRatchet()
    }
}
