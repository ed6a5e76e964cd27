pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// The main menu in a slim bar, for desktops that do not show it themselves. F10 or Alt alone opens it; the Tab key comes to its titles last.
Rectangle {
    id: root

    required property MainMenuViewModel model
    required property Item sheetParent // the open menu covers it
    property Item editing // has the focus back before anything is performed
    property int reached // the title that the Tab key comes to

    function open(index: int): void {
        if (root.model.openMenu < 0)
            root.editing = root.Window.activeFocusItem;
        root.model.open((index + root.model.titles.length) % root.model.titles.length);
        sheet.forceActiveFocus(Qt.PopupFocusReason);
    }

    function close(): void {
        root.model.close();
        root.editing?.forceActiveFocus(Qt.PopupFocusReason);
        root.editing = null;
    }

    function perform(row: int): void {
        root.close();
        root.model.perform(row);
    }

    function toggle(): void {
        if (root.model.openMenu >= 0)
            root.close();
        else if (root.visible)
            root.open(0);
    }

    /// Whether a key that nothing else took belongs to the menu.
    function handlePress(key: int, modifiers: int, isRepeated: bool): bool {
        if (key !== Qt.Key_F10 || modifiers !== Qt.NoModifier || !root.visible)
            return false;
        if (!isRepeated)
            root.open(0);
        return true;
    }

    function goTo(title: int): void {
        root.reached = (title + titles.count) % titles.count;
        titles.itemAt(root.reached).forceActiveFocus(Qt.TabFocusReason);
    }

    Accessible.role: Accessible.MenuBar
    Accessible.name: "Main menu"
    implicitHeight: 30
    color: Theme.panelBg

    Row {
        id: row
        x: 10
        height: root.height - 1

        Repeater {
            id: titles
            model: root.model.titles

            MenuBarTitle {
                height: row.height
                isApplication: index === 0
                isOpen: root.model.openMenu === index
                activeFocusOnTab: root.reached === index
                onPressed: isOpen ? root.close() : root.open(index)
                onAsked: root.open(index)
                onStepped: step => root.goTo(index + step)
                onEntered: if (root.model.openMenu >= 0) root.open(index)
            }
        }
    }

    Divider {
        anchors.bottom: parent.bottom
        width: root.width
    }

    MenuSheet {
        id: sheet
        parent: root.sheetParent
        anchors.fill: parent
        gap: 3
        leastWidth: 268
        model: root.model.items
        padding: 5
        radius: 9
        title: root.model.titles[Math.max(0, root.model.openMenu)] ?? ""
        target: titles.itemAt(root.model.openMenu)
        uncovered: root.height
        visible: root.model.openMenu >= 0
        z: 800
        delegate: MenuEntry {
            required title
            required shortcut
            required isSeparator
            required isEnabled
            required isCheckable
            required isChecked

            onChosen: root.perform(index)
            onEntered: sheet.current = canBeChosen ? index : -1
        }
        onChosen: row => root.perform(row)
        onClosed: root.close()
        onStepped: step => current = root.model.nextItem(step < 0 && current < 0 ? 0 : current, step)

        Keys.onLeftPressed: root.open(root.model.openMenu - 1)
        Keys.onRightPressed: root.open(root.model.openMenu + 1)
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_F10;
            if (event.accepted && !event.isAutoRepeat)
                root.close();
        }
    }

    Connections {
        target: root.model
        function onOpenMenuChanged(): void { sheet.current = -1; }
    }
}
