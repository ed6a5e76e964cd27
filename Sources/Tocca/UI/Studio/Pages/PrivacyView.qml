import QtQuick
import Tocca.UI

/// The page for when the sound falls silent by itself.
StudioPage {
    id: root

    required property MainWindowViewModel model

    title: "Smart Mute & Privacy"
    subtitle: "Intelligent background muting so conference calls and sensitive credentials remain quiet."

    ConsoleSection {
        width: parent.width
        icon: "mic.slash.fill"
        title: "Hardware Microphone Call Protection"

        CheckToggle {
            objectName: "autoMuteOnCalls"
            width: parent.width
            checked: root.model.settings.autoMuteOnCalls
            line: "Automatically silences keystrokes when microphone streams are detected (Zoom, Meet, Teams, Discord, FaceTime)."
            title: "Auto-Mute on Active Voice/Video Streams"
            onToggled: root.model.settings.toggleAutoMuteOnCalls()
        }

        Item {
            id: mute
            objectName: "muteStatus"
            Accessible.name: reason.text
            Accessible.role: Accessible.Notification
            width: parent.width
            height: reason.height
            visible: root.model.status.isSmartMuted

            // One that comes into sight is read anyway.
            Connections {
                target: root.model.status
                function onMuteStatusChanged(): void { Announcement.tell(mute); }
            }

            Rectangle {
                x: 6
                y: Math.round((reason.firstLineHeight - height) / 2)
                width: 6
                height: 6
                radius: 3
                color: Theme.warning
            }

            Label {
                id: reason

                readonly property real firstLineHeight: implicitHeight / Math.max(1, lineCount)

                x: 26
                width: parent.width - x
                color: Theme.warning
                font.family: Theme.monoFace
                font.weight: Font.Bold
                maximumLineCount: 2
                size: 11
                text: root.model.status.muteStatus
                wrapMode: Text.Wrap
            }
        }
    }

    ConsoleSection {
        width: parent.width
        icon: "lock.shield.fill"
        title: "Sensitive App Privacy"

        CheckToggle {
            objectName: "muteOnSensitiveApps"
            width: parent.width
            checked: root.model.settings.muteOnSensitiveApps
            line: "Automatically silences audio inside 1Password, Bitwarden, Keychain, and screen recording utilities."
            title: "Auto-Silence in Password Managers"
            onToggled: root.model.settings.toggleMuteOnSensitiveApps()
        }
    }
}
