pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// A white surface for what belongs together; as high as its content unless told otherwise.
Item {
    id: root

    default property alias content: holder.data
    property int padding: Theme.cardPadding
    property int radius: Theme.cardRadius
    property color color: Theme.cardBg
    property color borderColor: Theme.cardBorder
    property real borderWidth: 1

    implicitWidth: holder.childrenRect.width + 2 * padding
    implicitHeight: holder.childrenRect.height + 2 * padding

    // Three thin layers stand for a soft shadow.
    Repeater {
        model: 3

        Rectangle {
            required property int index

            anchors.fill: root
            anchors.margins: -index
            anchors.topMargin: 1 - index
            anchors.bottomMargin: -1 - index
            radius: root.radius + index
            color: Blend.alpha("black", 0.017)
        }
    }

    Rectangle {
        anchors.fill: parent
        color: root.color
        radius: root.radius
        border.color: root.borderColor
        border.width: root.borderWidth
    }

    Item {
        id: holder
        anchors.fill: parent
        anchors.margins: root.padding
    }
}
