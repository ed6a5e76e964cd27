pragma Strict
import QtQuick
import Tocca.UI

/// A small heavy label; its text is given in capitals.
Label {
    size: Theme.labelSize
    color: Theme.textMuted
    font.letterSpacing: Theme.labelSpacing
    font.weight: Font.ExtraBold
}
