import QtQuick
import Tocca.UI

/// The page with a keyboard that responds to every key, and a place to type.
StudioPage {
    id: root

    required property MainWindowViewModel model
    readonly property StageViewModel stage: model.stage
    readonly property bool isSeen: visible && Window.visibility !== Window.Hidden && Window.visibility !== Window.Minimized

    title: "Keyboard Stage"
    subtitle: "Interactive mechanical keyboard responding in real time to keystrokes in any app."
    widest: 1640
    accessory: Column {
        id: soundstage
        spacing: 2

        CapitalLabel {
            anchors.right: parent.right
            text: "ACTIVE SOUNDSTAGE"
        }

        NameLabel {
            objectName: "activeSwitch"
            anchors.right: parent.right
            width: Math.min(implicitWidth, 220)
            color: Theme.amberAccent
            font.weight: Font.Bold
            size: 14
            text: root.stage.activeSwitchName
        }
    }

    Card {
        width: parent.width
        implicitHeight: board.height + 2 * padding
        padding: 20
        radius: 12

        MiniKeyboardVisualizer {
            objectName: "board"
            id: board
            anchors.horizontalCenter: parent.horizontalCenter
            factor: Math.max(1, Math.min(parent.width / model.fullWidth, (root.height - 280) / model.fullHeight, 3.2))
            height: implicitHeight
            isSeen: root.isSeen
            model: root.stage.keyboard
            width: Math.min(implicitWidth, parent.width)
        }
    }

    Card {
        width: parent.width
        implicitHeight: pad.y + pad.height + 2 * padding

        CapitalLabel {
            id: padTitle
            color: Theme.textPrimary
            size: 10
            text: "LIVE INTERACTIVE TEST PAD"
        }

        Label {
            anchors.baseline: padTitle.baseline
            anchors.left: padTitle.right
            anchors.leftMargin: 12
            anchors.right: parent.right
            color: Theme.textMuted
            size: Theme.captionSize
            text: "Type anywhere across macOS to hear acoustics"
        }

        TextEntry {
            objectName: "testPad"
            id: pad
            y: padTitle.height + 10
            width: parent.width
            implicitHeight: 40
            placeholder: "Type here to test loud mechanical acoustics & spatial panning..."
            text: root.stage.testTypingText
            title: "Test pad"
            onEdited: text => root.stage.type(text)
        }
    }
}
