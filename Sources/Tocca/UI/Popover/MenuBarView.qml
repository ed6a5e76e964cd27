pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// The popover: every everyday setting in one column.
Rectangle {
    id: root

    required property MenuBarViewModel model
    readonly property bool shown: visible && Window.window !== null && Window.visibility !== Window.Hidden

    onShownChanged: if (shown) root.model.aboutToShow()

    color: Theme.chassisBg
    implicitWidth: 360
    implicitHeight: 560
    Accessible.role: Accessible.Pane
    Accessible.name: "Tocca"

    FocusKeeper {}

    ScrollArea {
        id: scroll
        objectName: "scrollArea"
        anchors.fill: parent
        contentHeight: column.height
        focus: true

        Column {
            id: column

            readonly property int margin: 16

            width: root.width
            spacing: 14
            topPadding: 14
            bottomPadding: 14

            component Rule: Divider { width: column.width }

            /// A card that is there at times, and the rule below it.
            component CardAtTimes: Column {
                x: column.margin
                width: column.width - 2 * x
                spacing: column.spacing
            }

            HeaderSection { x: column.margin; width: column.width - 2 * x; isSeen: root.shown; model: root.model }
            Rule {}
            Repeater {
                model: root.model.status.isSmartMuted ? 1 : 0
                delegate: CardAtTimes {
                    SmartMutedCard { width: parent.width; model: root.model.status }
                    Rule { x: -column.margin }
                }
            }
            QuickTestBar { x: column.margin; width: column.width - 2 * x; model: root.model }
            Rule {}
            Repeater {
                model: root.model.status.hasAccessibilityPermission ? 0 : 1
                delegate: CardAtTimes {
                    PermissionCard { width: parent.width; model: root.model }
                    Rule { x: -column.margin }
                }
            }
            SoundPackSection {
                x: column.margin
                width: column.width - 2 * x
                model: root.model
                onImported: result => scroll.reveal(result)
            }
            Rule {}
            SmartMuteControlsSection { x: column.margin; width: column.width - 2 * x; model: root.model.settings }
            Rule {}
            ImmersionControlsSection { x: column.margin; width: column.width - 2 * x; model: root.model.settings }
            Rule {}
            VisualFlairSection { x: column.margin; width: column.width - 2 * x; model: root.model.settings }
            Rule {}
            AcousticModderSection { x: column.margin; width: column.width - 2 * x; model: root.model.settings }
            Rule {}
            PeripheralAudioSection { x: column.margin; width: column.width - 2 * x; model: root.model.settings }
            Rule {}
            AudioControlsSection { x: column.margin; width: column.width - 2 * x; model: root.model.settings }
            Rule {}
            TypingPadSection { x: column.margin; width: column.width - 2 * x }
            Rule {}
            FooterSection { x: column.margin; width: column.width - 2 * x; model: root.model }
        }
    }

    PackDropTarget {
        anchors.fill: parent
        model: root.model
    }

    // Its window has no frame, and what lies beneath may have the same colour.
    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.color: Blend.alpha(Theme.textMuted, 0.35)
    }
}
