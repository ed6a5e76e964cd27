pragma Strict
import QtQuick
import Tocca.UI

/// The end of the sidebar, which says whether the keys of the session are heard.
Item {
    id: root

    required property bool isHookActive
    readonly property color status: isHookActive ? Theme.mintStatus : Theme.amberAccent

    objectName: "status"
    Accessible.name: label.text
    Accessible.role: Accessible.StaticText
    implicitHeight: 1 + 12 + label.implicitHeight + 12

    Divider {
        width: root.width
    }

    Rectangle {
        id: dot
        anchors.verticalCenter: label.verticalCenter
        x: 14
        width: 7
        height: 7
        radius: 3.5
        color: root.status
    }

    Label {
        id: label
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        anchors.left: dot.right
        anchors.leftMargin: 8
        anchors.right: parent.right
        anchors.rightMargin: 14
        color: root.status
        font.letterSpacing: Theme.labelSpacing
        font.weight: Font.Bold
        size: 9.5
        text: root.isHookActive ? "GLOBAL HOOK ACTIVE" : "PERMISSION PENDING"
    }
}
