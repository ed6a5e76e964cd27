import QtQuick
import Tocca.UI

/// The page of the selected tab. A page is made when it is first shown, and stays.
Item {
    id: root

    required property MainWindowViewModel model
    required property bool sidebarShown
    readonly property int headerInset: sidebarShown ? 0 : 40

    signal sidebarAsked

    clip: true

    component Page: Loader {
        required property int tab

        anchors.fill: parent
        active: false
        visible: root.model.selectedTab === tab
        onVisibleChanged: if (visible) active = true
        Component.onCompleted: if (visible) active = true
    }

    Page {
        tab: 0
        sourceComponent: ShowroomView {
            headerInset: root.headerInset
            model: root.model.showroom
        }
    }

    Page {
        tab: 1
        sourceComponent: AcousticsView {
            headerInset: root.headerInset
            model: root.model.acoustics
        }
    }

    Page {
        tab: 2
        sourceComponent: StageView {
            headerInset: root.headerInset
            model: root.model.stage
        }
    }

    Page {
        tab: 3
        sourceComponent: PrivacyView {
            headerInset: root.headerInset
            model: root.model.privacy
        }
    }

    Page {
        tab: 4
        sourceComponent: TelemetryView {
            headerInset: root.headerInset
            model: root.model.telemetry
        }
    }

    Page {
        tab: 5
        sourceComponent: SettingsView {
            headerInset: root.headerInset
            model: root.model.settings
        }
    }

    SidebarButton {
        objectName: "showSidebar"
        x: Theme.pageMargin
        y: Theme.pageMargin
        visible: !root.sidebarShown
        onActivated: root.sidebarAsked()
    }
}
