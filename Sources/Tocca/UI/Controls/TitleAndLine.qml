pragma Strict
import QtQuick
import Tocca.UI

/// A row's title over the line that explains it, when there is one.
Column {
    id: root

    property string title
    property string line
    property color lineColor: Theme.textMuted
    property int titleWeight: Font.DemiBold
    property real titleInset // kept free at the title's right
    property int mostLines: 2 // of the explanation
    readonly property alias isCut: name.truncated // the title

    spacing: 2

    Label {
        id: name
        width: root.width - root.titleInset
        color: Theme.textPrimary
        font.weight: root.titleWeight
        size: Theme.rowTitleSize
        text: root.title
    }

    Label {
        width: root.width
        color: root.lineColor
        maximumLineCount: root.mostLines
        size: Theme.captionSize
        text: root.line
        visible: root.line !== ""
        wrapMode: Text.WordWrap
    }
}
