import QtQuick
import Tocca.UI

/// The page of the selected tab.
Item {
    id: root

    required property MainWindowViewModel model
    required property bool sidebarShown
    readonly property int headerInset: sidebarShown ? 0 : 40

    signal sidebarAsked

    clip: true

    DetailPage {
        anchors.fill: parent
        file: "../Showroom/ShowroomView.qml"
        headerInset: root.headerInset
        model: root.model.showroom
        visible: root.model.selectedTab === 0
    }

    DetailPage {
        anchors.fill: parent
        file: "../Acoustics/AcousticsView.qml"
        headerInset: root.headerInset
        model: root.model.acoustics
        visible: root.model.selectedTab === 1
    }

    DetailPage {
        anchors.fill: parent
        file: "../Stage/StageView.qml"
        headerInset: root.headerInset
        model: root.model.stage
        visible: root.model.selectedTab === 2
    }

    DetailPage {
        anchors.fill: parent
        file: "PrivacyView.qml"
        headerInset: root.headerInset
        model: root.model.privacy
        visible: root.model.selectedTab === 3
    }

    DetailPage {
        anchors.fill: parent
        file: "TelemetryView.qml"
        headerInset: root.headerInset
        model: root.model.telemetry
        visible: root.model.selectedTab === 4
    }

    DetailPage {
        anchors.fill: parent
        file: "SettingsView.qml"
        headerInset: root.headerInset
        model: root.model.settings
        visible: root.model.selectedTab === 5
    }

    SidebarButton {
        objectName: "showSidebar"
        x: Theme.pageMargin
        y: Theme.pageMargin
        visible: !root.sidebarShown
        onActivated: root.sidebarAsked()
    }
}
