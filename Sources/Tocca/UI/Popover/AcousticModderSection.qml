pragma Strict
import QtQuick
import Tocca.UI

/// The popover's section for switch lube and desk surface.
Section {
    id: root

    required property SettingsViewModel model
    readonly property int indent: Theme.symbolColumn + 10

    title: "THE MODDER SUITE"
    spacing: 8

    IconTitleRow {
        width: root.width
        icon: "drop.fill"
        title: "Krytox 205g0 Switch Lube"
        value: root.model.lubeReading
        valueColor: Theme.mintStatus
        valueName: "lubeReading"
    }

    Slider {
        objectName: "lubeLevel"
        x: root.indent
        width: root.width - x
        title: "Krytox 205g0 Switch Lube"
        level: root.model.lubeLevel
        onMoved: level => root.model.setLubeLevel(level)
    }

    IconTitleRow {
        width: root.width
        icon: "rectangle.fill.on.rectangle.fill"
        title: "Deskmat & Acoustic Case Surface"
    }

    MenuPicker {
        objectName: "deskSurface"
        x: root.indent
        width: root.width - x
        currentIndex: root.model.deskSurface
        options: root.model.deskSurfaces
        title: "Deskmat & Acoustic Case Surface"
        onChosen: index => root.model.chooseDeskSurface(index)
    }

    Label {
        objectName: "deskSurfaceDescription"
        x: root.indent
        width: root.width - x
        color: Theme.textMuted
        maximumLineCount: 2
        size: Theme.captionSize
        text: root.model.deskSurfaceDescription
        wrapMode: Text.WordWrap
    }
}
