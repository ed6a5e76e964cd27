pragma Strict
import QtQuick
import Tocca.UI

/// The words of a hint on a dark ground.
Rectangle {
    id: root

    property string text

    implicitWidth: words.width + 16
    implicitHeight: words.implicitHeight + 10
    color: Theme.textPrimary
    radius: 6

    Label {
        id: words
        anchors.centerIn: parent
        width: Math.min(implicitWidth, 240)
        color: Theme.panelBg
        elide: Text.ElideNone
        size: Theme.captionSize
        text: root.text
        wrapMode: Text.Wrap
    }
}
