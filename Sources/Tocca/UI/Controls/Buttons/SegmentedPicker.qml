pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// A choice among options side by side, one of which it asks for. Long labels take two lines.
FocusScope {
    id: root

    property string title // for assistive programs
    property list<string> options
    property int currentIndex
    property int labelLines: 1

    signal chosen(int index)

    function chooseNear(step: int): void {
        const next = Math.max(0, Math.min(root.currentIndex + step, root.options.length - 1));
        if (next !== root.currentIndex)
            root.chosen(next);
    }

    Accessible.role: Accessible.Grouping
    Accessible.name: root.title
    Accessible.description: root.options[root.currentIndex] ?? ""
    implicitWidth: 280
    implicitHeight: Theme.controlHeight + (labelLines - 1) * 14
    opacity: enabled ? 1 : Theme.disabledOpacity

    Keys.onLeftPressed: root.chooseNear(-1)
    Keys.onRightPressed: root.chooseNear(1)

    Rectangle {
        anchors.fill: parent
        radius: Theme.buttonRadius
        color: Theme.chassisBg
        border.color: Theme.cardBorder
    }

    Row {
        anchors.fill: parent
        anchors.margins: 2

        Repeater {
            model: root.options

            delegate: Segment {
                width: parent.width / root.options.length
                height: parent.height
                lines: root.labelLines
                selected: root.currentIndex === index
                onChosen: root.chosen(index)
            }
        }
    }

    FocusRing {}
}
