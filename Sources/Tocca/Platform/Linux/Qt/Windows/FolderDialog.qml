import QtQuick
import QtQuick.Dialogs

/// A window with nothing in it but Qt's own folder dialog.
Window {
    id: root

    required property string prompt
    required property url home

    signal chosen(url folder)
    signal cancelled

    // As large as the dialog, which Qt centres.
    width: 600
    height: 400
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    title: qsTr("Choose a Folder")
    flags: Qt.Dialog
    color: palette.window
    palette.highlightedText: "#1c2026"

    onVisibleChanged: if (root.visible) dialog.open()
    onClosing: root.cancelled()

    FolderDialog {
        id: dialog

        acceptLabel: root.prompt
        currentFolder: root.home
        // Qt's own description of the type leaves these options out.
        options: FolderDialog.DontUseNativeDialog // qmllint disable
        parentWindow: root

        onAccepted: root.chosen(dialog.selectedFolder)
        onRejected: root.cancelled()
    }
}
