pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// The open menu of a picker; the option it shows is ticked.
MenuSheet {
    id: root

    required property list<string> options
    required property int currentIndex

    Component.onCompleted: {
        current = Math.max(0, currentIndex);
        forceActiveFocus(Qt.PopupFocusReason);
    }
    model: root.options
    delegate: MenuEntry {
        required property string modelData

        isCheckable: true
        isChecked: root.currentIndex === index
        title: modelData
        onChosen: root.chosen(index)
        onEntered: root.current = index
    }
    onStepped: step => current = Math.max(0, Math.min(current + step, options.length - 1))
}
