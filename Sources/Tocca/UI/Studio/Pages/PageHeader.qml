pragma Strict
import QtQuick
import Tocca.UI

/// A page's title over its line. `accessory` stands at the right.
Item {
    id: root

    property string title
    property string subtitle
    property int inset
    default property alias accessory: holder.data

    implicitHeight: Math.max(words.implicitHeight, holder.height)

    Column {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: root.inset
        anchors.right: holder.left
        anchors.rightMargin: holder.width > 0 ? 16 : 0
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Label {
            Accessible.role: Accessible.Heading
            Accessible.name: text
            width: parent.width
            color: Theme.textPrimary
            font.letterSpacing: -0.3
            font.weight: Font.Bold
            size: Theme.pageTitleSize
            text: root.title
        }

        Label {
            width: parent.width
            lineHeight: 1.2
            maximumLineCount: 2
            text: root.subtitle
            wrapMode: Text.WordWrap
        }
    }

    Item {
        id: holder
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: childrenRect.width
        height: childrenRect.height
    }
}
