pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// The cards shown now, in as many columns of 260 to 360 points as fit.
ScrollArea {
    id: root

    required property ShowroomViewModel model
    readonly property int gap: 14
    readonly property real room: width - 2 * Theme.pageMargin
    readonly property int columns: Math.max(1, Math.floor((room + gap) / (260 + gap)))
    readonly property real columnWidth: Math.min(360, Math.floor((room - (columns - 1) * gap) / columns))

    readonly property int shownPage: root.model.currentPage

    onShownPageChanged: root.contentY = 0
    contentHeight: Math.max(grid.height + 2 * Theme.pageMargin, height)

    Grid {
        id: grid
        x: Theme.pageMargin
        y: Theme.pageMargin
        columns: root.columns
        spacing: root.gap

        Repeater {
            model: root.model.cards

            SwitchSpecCard {
                required property int index

                objectName: "card" + index
                width: root.columnWidth
                onSelectAsked: root.model.select(index)
            }
        }
    }

    Column {
        x: Theme.pageMargin
        y: Math.round((root.height - height) / 2)
        width: root.room
        spacing: 6
        visible: root.model.isEmpty

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.textMuted
            name: "magnifyingglass"
            size: 28
        }

        Label {
            width: parent.width
            color: Theme.textPrimary
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            size: Theme.sectionTitleSize
            text: "No switch matches"
        }

        Label {
            width: parent.width
            color: Theme.textMuted
            horizontalAlignment: Text.AlignHCenter
            text: "Try another word, or another filter."
        }
    }
}
