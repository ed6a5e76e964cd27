pragma Strict
import QtQuick
import Tocca.UI

/// The bar that turns the pages of the showroom and tells which part is shown.
Rectangle {
    id: root

    required property ShowroomViewModel model

    objectName: "pagination"
    implicitHeight: Theme.controlHeight + 24
    color: Theme.panelBg

    Divider {
        width: root.width
    }

    Row {
        id: pages
        anchors.verticalCenter: parent.verticalCenter
        x: Theme.pageMargin
        spacing: 12

        PageButton {
            objectName: "previous"
            enabled: root.model.canShowPreviousPage
            symbol: "chevron.left"
            text: "PREV"
            onActivated: root.model.showPreviousPage()
        }

        Row {
            anchors.verticalCenter: parent.verticalCenter
            Accessible.name: "Page " + root.model.currentPage + " of " + root.model.pageCount
            Accessible.role: Accessible.StaticText
            spacing: 7

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.max(24, number.implicitWidth + 12)
                height: 22
                radius: 5
                color: Blend.alpha(Theme.amberAccent, 0.12)

                Label {
                    id: number
                    anchors.centerIn: parent
                    color: Theme.amberAccent
                    font.weight: Font.Bold
                    size: 11
                    text: root.model.currentPage
                }
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                font.weight: Font.Medium
                size: 11
                text: "OF " + root.model.pageCount
            }
        }

        PageButton {
            objectName: "next"
            enabled: root.model.canShowNextPage
            text: "NEXT"
            trailingSymbol: "chevron.right"
            onActivated: root.model.showNextPage()
        }
    }

    Label {
        anchors.left: pages.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.textMuted
        font.letterSpacing: 0.3
        font.weight: Font.Medium
        horizontalAlignment: Text.AlignRight
        size: 10
        text: root.model.summary
    }
}
