pragma Strict
import QtQuick
import Tocca.UI

/// How a button looks: symbols around a text.
Item {
    id: root

    property string text
    property string symbol
    property string trailingSymbol
    property color color: Theme.textPrimary
    property int padding: 10

    implicitWidth: row.implicitWidth + 2 * padding
    implicitHeight: Theme.controlHeight

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 6

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            color: root.color
            name: root.symbol
            size: Theme.symbolSize
            visible: root.symbol !== ""
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, Math.max(0, root.width > 0 ? root.width - 2 * root.padding - 2 * (Theme.symbolSize + 6) : implicitWidth))
            color: root.color
            font.weight: Font.DemiBold
            text: root.text
            visible: root.text !== ""
        }

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            color: root.color
            name: root.trailingSymbol
            size: Theme.symbolSize
            visible: root.trailingSymbol !== ""
        }
    }
}
