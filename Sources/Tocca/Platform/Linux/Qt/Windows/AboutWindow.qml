import QtQuick

/// What the program is: icon, name, version, licence.
Item {
    id: root

    required property string version
    required property color ground
    property alias iconPlace: icon // where the icon is drawn

    component Line: Text {
        anchors.horizontalCenter: parent.horizontalCenter
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        color: "#334155"
        font.family: "Inter"
        font.pixelSize: 12
        renderType: Text.NativeRendering
        textFormat: Text.PlainText
    }

    Accessible.role: Accessible.Pane
    Accessible.name: "About Tocca"

    Rectangle {
        anchors.fill: parent
        color: root.ground
    }

    Item {
        id: icon
        anchors.horizontalCenter: parent.horizontalCenter
        y: 32
        width: 96
        height: 96
    }

    Line {
        y: 144
        color: "#0f172a"
        font.bold: true
        font.pixelSize: 22
        text: "Tocca"
    }

    Line {
        y: 178
        color: "#64748b"
        text: "Version " + root.version
    }

    Line {
        y: 204
        text: "The sound of a mechanical keyboard"
    }

    Line {
        y: 226
        color: "#64748b"
        font.pixelSize: 11
        text: "Free software under the MIT licence"
    }
}
