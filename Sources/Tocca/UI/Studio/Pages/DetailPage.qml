import QtQuick
import Tocca.UI

/// The page of a tab, which is made when it is first shown, and stays.
Loader {
    id: root

    required property string file
    required property int tab
    required property MainWindowViewModel model
    required property int headerInset

    function load(): void {
        if (root.visible && root.status === Loader.Null)
            root.setSource(root.file, { model: root.model });
    }

    visible: root.model.selectedTab === root.tab
    onVisibleChanged: root.load()
    Component.onCompleted: root.load()

    Binding {
        property: "headerInset"
        target: root.item
        value: root.headerInset
        when: root.status === Loader.Ready
    }
}
