pragma Strict
import QtQuick
import Tocca.UI

/// What is being imported, how far that is, and a button that gives it up.
Column {
    id: root

    required property MenuBarViewModel model

    objectName: "importProgress"
    spacing: 2
    topPadding: 6
    visible: root.model.importActivity !== ""

    Item {
        width: root.width
        height: 28

        Label {
            objectName: "importActivity"
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            Accessible.ignored: !root.visible
            anchors.left: parent.left
            anchors.right: cancel.left
            anchors.verticalCenter: parent.verticalCenter
            text: root.model.importActivity
        }

        PlainButton {
            id: cancel
            objectName: "cancelImport"
            anchors.right: parent.right
            anchors.rightMargin: -8
            anchors.verticalCenter: parent.verticalCenter
            implicitHeight: 28
            text: qsTr("Cancel")
            onActivated: root.model.cancelImport()
        }
    }

    Rectangle {
        objectName: "importBar"
        Accessible.role: Accessible.ProgressBar
        Accessible.name: root.model.importActivity
        Accessible.ignored: !root.visible
        width: root.width
        height: 4
        radius: 2
        color: Theme.cardBorder

        Rectangle {
            width: parent.width * root.model.importPercent / 100
            height: parent.height
            radius: 2
            color: Theme.amberAccent
        }
    }
}
