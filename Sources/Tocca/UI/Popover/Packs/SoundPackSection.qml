pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// The popover's section for the built-in sounds, the imported ones, and how the last import went.
Section {
    id: root

    required property MenuBarViewModel model

    /// An import is under way or has ended, and `result`, which says how it goes, has its place; sent again when the new pack's row moves
    /// that.
    signal imported(result: Item)

    title: "STUDIO SOUND PACKS"
    accessory: PlainButton {
        objectName: "import"
        x: 8 // its text ends where the rows end
        implicitHeight: 28
        color: Theme.amberAccent
        symbol: "plus.circle"
        text: "Import"
        onActivated: root.model.openSoundPackImporter()
    }
    spacing: 2

    Repeater {
        id: builtIn
        model: root.model.builtInPacks

        delegate: SoundPackRow {
            objectName: "builtInPack" + index
            width: root.width
            onActivated: root.model.chooseBuiltInPack(index)
            onStepped: step => {
                const next = builtIn.itemAt(index + step) as SoundPackRow;
                next?.forceActiveFocus(Qt.TabFocusReason);
                next?.activated();
            }
        }
    }

    Repeater {
        model: root.model.hasCommunityLibrary ? 1 : 0
        delegate: CommunityLibrary {
            width: root.width
            model: root.model
        }
    }

    Connections {
        target: root.model
        function onImportActivityChanged(): void {
            if (progress.visible)
                root.imported(progress);
        }
        function onImportMessageChanged(): void {
            recently.restart();
            root.imported(message);
            if (message.isKnown)
                Announcement.tell(message);
            message.isKnown = true;
        }
    }

    Timer { id: recently; interval: 500 }

    ImportProgress {
        id: progress
        width: root.width
        model: root.model
        onYChanged: if (visible) root.imported(progress)
    }

    Label {
        id: message
        objectName: "importMessage"

        property bool isKnown // has been seen, so that a change has to be announced

        Accessible.role: Accessible.Notification
        Accessible.name: text
        width: root.width
        color: Theme.mintStatus
        elide: Text.ElideNone
        font.weight: Font.Medium
        text: root.model.importMessage
        topPadding: 6
        visible: text !== ""
        wrapMode: Text.Wrap
        onYChanged: if (recently.running) root.imported(message)
    }
}
