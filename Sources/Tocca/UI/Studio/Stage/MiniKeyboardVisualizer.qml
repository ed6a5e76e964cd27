pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// A small keyboard whose caps light up and sink with the keys. `factor` enlarges the whole drawing.
Item {
    id: root

    required property MiniKeyboardViewModel model
    property real factor: 1
    property bool isSeen: true // caps move

    Accessible.name: "Keyboard"
    Accessible.description: "A picture whose caps light up with the keys that are pressed"
    Accessible.role: Accessible.Graphic
    implicitWidth: model.fullWidth * factor
    implicitHeight: model.fullHeight * factor

    Rectangle {
        anchors.fill: parent
        radius: 8 * root.factor
        color: Blend.alpha(Theme.chassisBg, 0.6)
        border.color: Blend.alpha("white", 0.1)
        border.width: root.factor
    }

    Column {
        id: rows
        anchors.centerIn: parent
        spacing: root.model.rowGap * root.factor

        Repeater {
            model: root.model.rowCount

            Row {
                id: row

                required property int index
                readonly property real unit: root.model.unitWidth(index, root.width / root.factor - 2 * root.model.padding) * root.factor

                anchors.horizontalCenter: rows.horizontalCenter
                spacing: root.model.keyGap * root.factor

                Repeater {
                    model: root.model.row(row.index)

                    MiniKeyCap {
                        factor: root.factor
                        isSeen: root.isSeen
                        width: row.unit * widthRatio
                        height: root.model.keyHeight * root.factor
                    }
                }
            }
        }
    }
}
