pragma Strict
import QtQuick
import Tocca.UI

/// A card with a figure, what it measures above it and its unit behind it.
Card {
    id: root

    property string title
    property string value
    property string unit
    property color ink: Theme.textPrimary

    Accessible.name: root.title + ": " + root.value + " " + root.unit
    Accessible.role: Accessible.StaticText
    implicitHeight: 100
    padding: 14
    radius: 8

    CapitalLabel {
        width: parent.width
        text: root.title
    }

    Label {
        id: figure
        anchors.bottom: parent.bottom
        width: Math.min(implicitWidth, parent.width - label.implicitWidth - label.anchors.leftMargin)
        color: root.ink
        elide: Text.ElideNone
        font.letterSpacing: -0.5
        font.weight: Font.ExtraBold
        fontSizeMode: Text.HorizontalFit
        minimumPointSize: 12
        size: 30
        text: root.value
    }

    Label {
        id: label
        anchors.baseline: figure.baseline
        anchors.left: figure.right
        anchors.leftMargin: 5
        color: Theme.textMuted
        font.weight: Font.Medium
        size: 9
        text: root.unit
    }
}
