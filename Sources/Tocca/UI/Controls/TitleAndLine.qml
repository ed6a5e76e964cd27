pragma Strict
import QtQuick

/// A row's title over the line that explains it, when there is one.
Column {
    id: root

    property string title
    property string line
    property color titleColor: Theme.textPrimary
    property int mostLines: 2 // of the explanation

    spacing: 2

    Label {
        width: root.width
        color: root.titleColor
        font.weight: Font.DemiBold
        size: Theme.rowTitleSize
        text: root.title
    }

    Label {
        width: root.width
        color: Theme.textMuted
        maximumLineCount: root.mostLines
        size: Theme.captionSize
        text: root.line
        visible: root.line !== ""
        wrapMode: Text.WordWrap
    }
}
