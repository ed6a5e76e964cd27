import QtQuick

/// A title, a few sentences and a button.
Window {
    id: root

    property string text

    width: 440
    height: column.implicitHeight + 48
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    flags: Qt.Dialog
    color: "#f6f8fa"

    Column {
        id: column

        x: 24
        y: 24
        width: root.width - 48
        spacing: 16

        Text {
            width: column.width
            text: root.title
            color: "#1c2026"
            wrapMode: Text.Wrap
            font { family: "Inter"; pixelSize: 17; weight: Font.Bold }
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Text {
            width: column.width
            text: root.text
            color: "#3c444e"
            wrapMode: Text.Wrap
            lineHeight: 1.25
            font { family: "Inter"; pixelSize: 13 }
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Rectangle {
            id: button

            anchors.right: column.right
            width: 88
            height: 32
            radius: 8
            color: press.pressed ? "#2f3740" : "#1c2026"
            border { width: activeFocus ? 2 : 0; color: "#b45309" }
            focus: true
            Accessible.role: Accessible.Button
            Accessible.name: label.text
            Accessible.focusable: true
            Accessible.onPressAction: root.close()
            Keys.onReturnPressed: root.close()
            Keys.onEnterPressed: root.close()
            Keys.onSpacePressed: root.close()
            Keys.onEscapePressed: root.close()

            Text {
                id: label

                anchors.centerIn: button
                text: "Close"
                color: "white"
                font { family: "Inter"; pixelSize: 13; weight: Font.Medium }
                Accessible.ignored: true
            }

            TapHandler {
                id: press

                onTapped: root.close()
            }
        }
    }
}
