import QtQuick
import Tocca.UI

/// A text that can be selected and copied. Where it does not fit, its middle is left out until it has the focus, and a hint tells all of it.
Item {
    id: root

    property string title // for assistive programs
    property string text
    property string face: Theme.textFace
    property real size: Theme.captionSize

    implicitHeight: field.implicitHeight

    Label {
        id: shown
        anchors.fill: parent
        Accessible.ignored: true
        elide: Text.ElideMiddle
        font.family: root.face
        size: root.size
        text: root.text
        verticalAlignment: Text.AlignVCenter
        visible: !field.activeFocus
    }

    TextInput {
        id: field
        Accessible.name: root.title
        Accessible.readOnly: true
        activeFocusOnTab: true
        anchors.fill: parent
        clip: true
        color: Theme.textSecondary
        font.family: root.face
        font.pointSize: root.size * Theme.typePoint
        opacity: activeFocus ? 1 : 0
        readOnly: true
        renderType: Text.NativeRendering
        selectByMouse: true
        selectedTextColor: Theme.textPrimary
        selectionColor: Blend.alpha(Theme.amberAccent, 0.3)
        text: root.text
        verticalAlignment: TextInput.AlignVCenter
        onActiveFocusChanged: activeFocus ? selectAll() : deselect()
    }

    HoverHandler { id: hover; cursorShape: Qt.IBeamCursor }

    ToolTip {
        target: root
        text: shown.truncated ? root.text : ""
        shown: hover.hovered && !field.activeFocus
    }

    FocusRing { visible: field.activeFocus }
}
