pragma Strict
import QtQuick
import Tocca.UI

/// A menu picker behind its label, in the column of the titles.
Item {
    id: root

    property alias pickerName: picker.objectName
    property real pickerWidth: 168
    required property string title
    required property list<string> options
    required property int currentIndex

    signal chosen(int index)

    implicitHeight: Theme.controlHeight

    Label {
        anchors.left: parent.left
        anchors.leftMargin: Theme.symbolColumn + 10
        anchors.right: picker.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        text: root.title
    }

    MenuPicker {
        id: picker
        anchors.right: parent.right
        width: root.pickerWidth
        currentIndex: root.currentIndex
        options: root.options
        title: root.title
        onChosen: index => root.chosen(index)
    }
}
