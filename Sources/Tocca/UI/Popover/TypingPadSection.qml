pragma Strict
import QtQuick
import Tocca.UI

/// The popover's field to try the sounds in; its keys are heard like all others.
Section {
    id: root

    property string testInput

    title: "TEST TYPING PAD"

    TextEntry {
        objectName: "testInput"
        width: root.width
        placeholder: "Type here to test audio..."
        text: root.testInput
        title: "TEST TYPING PAD"
        onEdited: text => root.testInput = text
    }
}
