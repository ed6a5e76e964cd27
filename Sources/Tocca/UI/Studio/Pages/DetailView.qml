pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// The part of the Studio window beside the sidebar: the page of the selected tab.
Item {
    id: root

    required property MainWindowViewModel model
    required property bool sidebarShown

    signal sidebarAsked

    clip: true

    component Page: DetailPage {
        anchors.fill: parent
        headerInset: root.sidebarShown ? 0 : 40
        model: root.model
    }

    SidebarButton {
        objectName: "showSidebar"
        x: Theme.pageMargin
        y: Theme.pageMargin
        z: 1
        visible: !root.sidebarShown
        onActivated: root.sidebarAsked()
    }

    Page { tab: StudioTab.Showroom; file: "../Showroom/ShowroomView.qml" }
    Page { tab: StudioTab.Acoustics; file: "../Acoustics/AcousticsView.qml" }
    Page { tab: StudioTab.Stage; file: "../Stage/StageView.qml" }
    Page { tab: StudioTab.Privacy; file: "PrivacyView.qml" }
    Page { tab: StudioTab.Telemetry; file: "TelemetryView.qml" }
    Page { tab: StudioTab.Settings; file: "SettingsView.qml" }

}
