import QtQuick
import Tocca.UI

/// The menu of a picker, which makes its sheet over the window while it is open.
Item {
    id: root

    required property Item target
    property string title // for assistive programs
    property list<string> options
    property int currentIndex // the ticked option; −1 none
    readonly property bool opened: loader.active
    readonly property bool onScreen: visible && Window.visibility !== Window.Hidden

    signal chosen(int index)

    function open(): void {
        loader.parent = root.Window.contentItem; // not bound: a window that ends would move it about
        // Made from its file: this version of the engine makes no bound component in a loader.
        loader.setSource("PopupMenuSheet.qml", { title: root.title, target: root.target, options: root.options, currentIndex: root.currentIndex });
        loader.active = true;
    }

    function close(): void {
        loader.active = false;
        root.target.forceActiveFocus(Qt.PopupFocusReason);
    }

    function take(index: int): void {
        root.close();
        root.chosen(index);
    }

    onOnScreenChanged: if (!onScreen && Window.window) loader.active = false // a window that ends takes the sheet with it

    Loader {
        id: loader
        anchors.fill: parent
        z: 900
        active: false
        onLoaded: {
            const sheet = item as PopupMenuSheet;
            sheet.chosen.connect(root.take);
            sheet.closed.connect(root.close);
        }
    }
}
