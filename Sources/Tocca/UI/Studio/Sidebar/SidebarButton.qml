pragma Strict
import QtQuick
import Tocca.UI

/// A button that hides the sidebar, or shows it again.
PushButton {
    color: Theme.textSecondary
    hint: "Toggle Sidebar"
    implicitWidth: 28
    implicitHeight: 28
    padding: 4
    radius: 6
    symbol: "sidebar.leading"
    title: hint
}
