import QtQuick
import Tocca.UI

/// The console's card for switch lube and desk surface.
ConsoleSection {
    id: root

    required property SettingsViewModel model

    icon: "drop.fill"
    spacing: 8
    title: "The Modder Suite (Lube & Deskmat Acoustics)"

    Item {
        width: parent.width
        height: lubeTitle.implicitHeight

        Label {
            id: lubeTitle
            anchors.left: parent.left
            anchors.right: lube.left
            anchors.rightMargin: 12
            color: Theme.textPrimary
            font.weight: Font.Bold
            size: Theme.rowTitleSize
            text: "Krytox 205g0 Switch Stem Lube"
        }

        Label {
            objectName: "lubeReading"
            id: lube
            anchors.baseline: lubeTitle.baseline
            anchors.right: parent.right
            color: Theme.amberAccent
            font.weight: Font.Bold
            text: root.model.lubeReading
        }
    }

    Slider {
        objectName: "lube"
        width: parent.width
        title: "Krytox 205g0 Switch Stem Lube"
        level: root.model.lubeLevel
        onMoved: level => root.model.setLubeLevel(level)
    }

    Label {
        width: parent.width
        size: Theme.captionSize
        text: "Simulates buttery Krytox 205g0 friction dampening, smoothing scratchiness and deepening acoustic thock."
        wrapMode: Text.WordWrap
    }

    Item {
        width: 1
        height: 4
    }

    Label {
        width: parent.width
        color: Theme.textPrimary
        font.weight: Font.Bold
        size: Theme.rowTitleSize
        text: "Acoustic Desk Surface & Plate Material"
    }

    SegmentedPicker {
        objectName: "deskSurface"
        width: parent.width
        currentIndex: root.model.deskSurface
        labelLines: width < 680 ? 2 : 1
        options: root.model.deskSurfaces
        title: "Acoustic Desk Surface & Plate Material"
        onChosen: index => root.model.chooseDeskSurface(index)
    }

    Label {
        objectName: "deskSurfaceLine"
        width: parent.width
        size: Theme.captionSize
        text: root.model.deskSurfaceDescription
        wrapMode: Text.WordWrap
    }
}
