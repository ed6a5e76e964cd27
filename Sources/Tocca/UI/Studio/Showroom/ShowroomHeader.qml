import QtQuick
import Tocca.UI

/// The showroom's title, and what narrows the cards down. The controls take a row of their own where the window is narrow.
Item {
    id: root

    required property ShowroomViewModel model
    required property SettingsViewModel settings
    property int inset
    readonly property bool isNarrow: width < inset + 226 + controls.fixedWidth + 150

    implicitHeight: isNarrow ? title.height + 14 + controls.height : title.height

    PageHeader {
        id: title
        inset: root.inset
        subtitle: "27+ authentic mechanical switches."
        title: "Switch Showroom"
        width: root.isNarrow ? root.width : root.width - controls.width - 16
    }

    Row {
        id: controls

        readonly property real fixedWidth: hud.width + filter.width + 2 * spacing

        x: root.isNarrow ? 0 : root.width - width
        y: root.isNarrow ? title.height + 14 : Math.round((title.height - height) / 2)
        height: Theme.fieldHeight
        spacing: 8

        PushButton {
            id: hud
            objectName: "notchHUD"
            Accessible.checkable: true
            Accessible.checked: on
            color: on ? Theme.amberAccent : Theme.textMuted
            height: parent.height
            hint: "Toggle MacBook Notch Dynamic Island HUD (Off by default)"
            on: root.settings.isNotchHUDEnabled
            symbol: on ? "camera.badge.ellipsis" : "camera"
            text: on ? "NOTCH HUD: ON" : "NOTCH HUD: OFF"
            textWeight: Font.Bold
            onActivated: root.settings.toggleNotchHUD()
        }

        MenuPicker {
            id: filter
            objectName: "filter"
            width: 124
            height: parent.height
            accented: currentIndex > 0
            chevronSize: 11
            currentIndex: root.model.filterIndex
            options: root.model.filterOptions
            symbol: "line.3.horizontal.decrease.circle"
            textSize: Theme.captionSize
            textWeight: Font.DemiBold
            title: "Filter"
            onChosen: index => root.model.chooseFilter(index)
        }

        TextEntry {
            objectName: "search"
            width: root.isNarrow ? root.width - controls.fixedWidth : Math.min(220, root.width - root.inset - 226 - controls.fixedWidth)
            height: parent.height
            clearable: true
            placeholder: "Search switches..."
            symbol: "magnifyingglass"
            text: root.model.searchText
            onEdited: text => root.model.search(text)
        }
    }
}
