pragma Strict
import QtQuick
import Tocca.UI

/// The card of a sound: what it is, whether it plays, and the button that lets it be heard.
Card {
    id: root

    required property string title
    required property string subtitle
    required property string tag
    required property string weight
    required property string profile
    required property bool isCustom
    required property bool isSelected
    readonly property color ink: isSelected ? Theme.amberAccent : Theme.textMuted

    signal selectAsked

    Accessible.name: root.title
    Accessible.role: Accessible.Grouping
    borderColor: root.isSelected ? Theme.amberAccent : Theme.cardBorder
    borderWidth: root.isSelected ? 1.5 : 1
    implicitHeight: 132
    padding: 12
    radius: 8

    Rectangle {
        id: tile
        width: 32
        height: 32
        radius: 6
        color: Blend.alpha(root.ink, 0.15)
        border.color: Blend.alpha(root.ink, 0.35)

        SwitchStemShape {
            anchors.centerIn: parent
            width: 14
            height: 14
            color: root.ink
            lineWidth: 1.5
        }
    }

    NameLabel {
        id: name
        anchors.left: tile.right
        anchors.leftMargin: 10
        anchors.right: active.visible ? active.left : parent.right
        anchors.rightMargin: active.visible ? 8 : 0
        anchors.top: tile.top
        anchors.topMargin: -1
        color: Theme.textPrimary
        font.weight: Font.Bold
        size: 13
        text: root.title
    }

    Row {
        anchors.bottom: tile.bottom
        anchors.left: name.left
        spacing: 5

        CapitalLabel {
            id: tagLabel
            color: Theme.amberAccent
            font.letterSpacing: 0.4
            size: 8.5
            text: root.tag
        }

        Label {
            anchors.baseline: tagLabel.baseline
            color: Theme.textSecondary
            size: 8
            text: "•"
        }

        Label {
            anchors.baseline: tagLabel.baseline
            color: Theme.textSecondary
            font.weight: Font.Medium
            size: 8.5
            text: root.weight
        }
    }

    Badge {
        id: active
        anchors.right: parent.right
        anchors.top: tile.top
        dotted: true
        size: 8.5
        text: "ACTIVE"
        visible: root.isSelected
    }

    Label {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: tile.bottom
        anchors.topMargin: 8
        lineHeight: 1.15
        maximumLineCount: 2
        text: root.subtitle
        wrapMode: Text.WordWrap
    }

    AuditionButton {
        id: audition
        objectName: "audition " + root.title
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        copied: root.title
        hint: name.truncated ? root.title : ""
        title: "Audition " + root.title
        onActivated: root.selectAsked()
    }

    Row {
        anchors.right: parent.right
        anchors.verticalCenter: audition.verticalCenter
        spacing: 5

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            Accessible.name: "Imported pack"
            Accessible.role: Accessible.Graphic
            color: Theme.textMuted
            name: "folder.fill"
            size: 11
            visible: root.isCustom
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.textMuted
            font.letterSpacing: 0.4
            font.weight: Font.Medium
            size: 8.5
            text: root.profile
        }
    }
}
