pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// The built-in sounds, the imported ones, and how the last import went.
Section {
    id: root

    required property MenuBarViewModel model

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
        model: root.model.builtInPacks

        delegate: SoundPackRow {
            objectName: "builtInPack" + index
            width: root.width
            onActivated: root.model.chooseBuiltInPack(index)
        }
    }

    Repeater {
        model: root.model.hasCommunityLibrary ? 1 : 0
        delegate: CommunityLibrary {
            width: root.width
            model: root.model
        }
    }

    Label {
        objectName: "importMessage"
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        width: root.width
        color: Theme.mintStatus
        elide: Text.ElideNone
        font.weight: Font.Medium
        text: root.model.importMessage
        topPadding: 6
        visible: text !== ""
        wrapMode: Text.Wrap
    }
}
