pragma Strict
import QtQuick
import Tocca.UI

/// A card that says that all sound is held back, and why.
Card {
    id: root

    required property StatusViewModel model

    objectName: "smartMutedCard"
    Accessible.role: Accessible.Notification
    Accessible.name: "Smart Mute Active. " + root.model.smartMuteReason
    Component.onCompleted: Announcement.tell(root)
    borderColor: Blend.tint(Theme.cardBorder, Blend.alpha(Theme.warning, 0.5))
    color: Blend.tint(Theme.cardBg, Blend.alpha(Theme.warning, 0.06))
    padding: 12

    Connections {
        target: root.model
        function onSmartMuteReasonChanged(): void { Announcement.tell(root); }
    }

    Symbol {
        id: symbol
        anchors.verticalCenter: words.verticalCenter
        x: 1
        color: Theme.warning
        name: "mic.slash.fill"
        size: 18
    }

    TitleAndLine {
        id: words
        x: Theme.symbolColumn + 10
        width: root.width - 2 * root.padding - x
        line: root.model.smartMuteReason
        title: "Smart Mute Active"
    }
}
