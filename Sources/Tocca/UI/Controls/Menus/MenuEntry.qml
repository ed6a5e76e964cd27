pragma Strict
import QtQuick
import Tocca.UI

/// An item of an open menu: check mark, title, and the keys that choose it; or a line between items.
MouseArea {
    id: root

    required property int index
    property string title
    property string shortcut
    property bool isSeparator
    property bool isEnabled: true
    property bool isCheckable
    property bool isChecked
    readonly property bool current: ListView.isCurrentItem
    readonly property bool canBeChosen: isEnabled && !isSeparator

    signal chosen

    function choose(): void {
        if (root.canBeChosen)
            root.chosen();
    }

    objectName: "menuItem" + root.index
    Accessible.role: root.isSeparator ? Accessible.Separator : Accessible.MenuItem
    Accessible.name: root.title
    Accessible.checkable: root.isCheckable
    Accessible.focusable: root.canBeChosen
    Accessible.checked: root.isChecked
    Accessible.onPressAction: root.choose()
    width: ListView.view ? ListView.view.width : 0
    implicitHeight: isSeparator ? 9 : 28
    hoverEnabled: true
    onClicked: root.choose()

    Divider {
        anchors.verticalCenter: parent.verticalCenter
        x: 8
        width: root.width - 16
        visible: root.isSeparator
    }

    Item {
        anchors.fill: parent
        opacity: root.isEnabled ? 1 : Theme.disabledOpacity
        visible: !root.isSeparator

        Rectangle {
            anchors.fill: parent
            radius: 6
            color: root.current ? Blend.alpha(Theme.amberAccent, 0.12) : "transparent"
        }

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            x: 8
            color: Theme.amberAccent
            name: "checkmark"
            size: 12
            visible: root.isChecked
        }

        Label {
            id: label
            anchors.left: parent.left
            anchors.leftMargin: 26
            anchors.right: keys.left
            anchors.rightMargin: root.shortcut === "" ? -2 : 12
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.textPrimary
            text: root.title
        }

        Label {
            id: keys
            anchors.baseline: label.baseline
            anchors.right: parent.right
            anchors.rightMargin: 10
            color: Theme.textMuted
            size: Theme.captionSize
            text: root.shortcut
        }
    }
}
