pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// The list of imported sounds, a page at a time.
Column {
    id: root

    required property MenuBarViewModel model

    objectName: "communityLibrary"
    spacing: 2
    topPadding: 8

    Item {
        width: root.width
        height: 28

        CapitalLabel {
            anchors.left: parent.left
            anchors.right: pager.left
            anchors.verticalCenter: parent.verticalCenter
            text: root.model.communityTitle
        }

        Row {
            id: pager
            anchors.right: parent.right
            anchors.rightMargin: -8
            anchors.verticalCenter: parent.verticalCenter

            PlainButton {
                objectName: "previousPage"
                implicitHeight: 28
                enabled: root.model.canTurnBack
                symbol: "chevron.left"
                title: qsTr("Previous page")
                onActivated: root.model.turnBack()
            }

            Label {
                objectName: "communityPosition"
                anchors.verticalCenter: parent.verticalCenter
                width: Math.max(28, implicitWidth)
                font.weight: Font.DemiBold
                horizontalAlignment: Text.AlignHCenter
                size: Theme.captionSize
                text: root.model.communityPosition
            }

            PlainButton {
                objectName: "nextPage"
                implicitHeight: 28
                enabled: root.model.canTurnForward
                symbol: "chevron.right"
                title: qsTr("Next page")
                onActivated: root.model.turnForward()
            }
        }
    }

    Repeater {
        id: community
        model: root.model.communityPacks

        delegate: SoundPackRow {
            objectName: "communityPack" + index
            width: root.width
            onActivated: root.model.chooseCommunityPack(index)
            onStepped: step => {
                const next = community.itemAt(index + step) as SoundPackRow;
                next?.forceActiveFocus(Qt.TabFocusReason);
                next?.activated();
            }
        }
    }
}
