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
    property int textWeight: Font.DemiBold
    property int padding: 10
    readonly property int beside: (symbol === "" ? 0 : Theme.symbolSize + 6) + (trailingSymbol === "" ? 0 : Theme.symbolSize + 6)

    implicitWidth: Math.ceil(label.implicitWidth) + beside + 2 * padding
    implicitHeight: Theme.controlHeight

    Row {
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
            id: label
            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(0, Math.min(implicitWidth, root.width - 2 * root.padding - root.beside))
            color: root.color
            font.weight: root.textWeight
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
