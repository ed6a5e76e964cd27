pragma Strict
import QtQuick
import Tocca.UI

/// The popover's section for what silences the sounds by itself.
Section {
    id: root

    required property SettingsViewModel model

    title: "SMART MUTE & PRIVACY"

    ToggleRow {
        objectName: "autoMuteOnCalls"
        width: root.width
        checked: root.model.autoMuteOnCalls
        icon: "mic.slash"
        line: "Silences clicks during Zoom, Meet, Teams & FaceTime"
        title: "Auto-Mute on Calls"
        onToggled: root.model.toggleAutoMuteOnCalls()
    }

    ToggleRow {
        objectName: "muteOnSensitiveApps"
        width: root.width
        checked: root.model.muteOnSensitiveApps
        icon: "lock.shield"
        line: "Auto-silences inside 1Password, Bitwarden & Keychain"
        title: "Mute on Password Managers"
        onToggled: root.model.toggleMuteOnSensitiveApps()
    }
}
