import QtQuick
import QtQuick.Dialogs

/// A window with nothing but the toolkit's own folder dialog in it.
Window {
    id: root

    required property string prompt

    signal chosen(url folder)
    signal cancelled

    width: 720
    height: 500
    title: qsTr("Choose a Folder")
    flags: Qt.Dialog
    color: palette.window

    Component.onCompleted: dialog.open()
    onClosing: root.cancelled()

    FolderDialog {
        id: dialog

        acceptLabel: root.prompt
        options: FolderDialog.DontUseNativeDialog
        parentWindow: root

        onAccepted: root.chosen(dialog.selectedFolder)
        onRejected: root.cancelled()
    }
}
