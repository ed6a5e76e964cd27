import QtQuick
import Tocca.UI

/// A field for one line of text. It shows `text` and asks for what is typed; `symbol` stands before it, and a filled one may be cleared.
Item {
    id: root

    property string title // for assistive programs
    property string text
    property string placeholder
    property string symbol
    property bool clearable

    signal edited(string text)

    implicitWidth: 200
    implicitHeight: Theme.fieldHeight
    opacity: enabled ? 1 : Theme.disabledOpacity

    FieldGround {
        anchors.fill: parent
        hovered: hover.hovered
        focused: input.activeFocus
        placeholder: input.text === "" && input.preeditText === "" ? root.placeholder : ""
        symbol: root.symbol
        textX: input.x
    }

    HoverHandler { id: hover; cursorShape: Qt.IBeamCursor }
    TapHandler { onTapped: input.forceActiveFocus(Qt.MouseFocusReason) }

    TextInput {
        id: input
        Accessible.name: root.title === "" ? root.placeholder : root.title
        activeFocusOnTab: true
        anchors.left: parent.left
        anchors.leftMargin: root.symbol === "" ? 10 : 30
        anchors.right: parent.right
        anchors.rightMargin: root.clearable ? 30 : 10
        anchors.verticalCenter: parent.verticalCenter
        clip: true
        color: Theme.textPrimary
        font.family: Theme.textFace
        font.pointSize: Theme.bodySize * Theme.typePoint
        renderType: Text.NativeRendering
        selectByMouse: true
        selectedTextColor: Theme.textPrimary
        selectionColor: Blend.alpha(Theme.amberAccent, 0.3)
        text: root.text
        onTextChanged: {
            if (text !== root.text) {
                root.edited(text);
                text = Qt.binding(() => root.text); // typing, or an assistive program, has replaced what was shown
            }
        }
    }

    ClearButton {
        visible: root.clearable && root.text !== ""
        onActivated: root.edited("")
    }
}
