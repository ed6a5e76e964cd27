pragma Strict
import QtQuick
import Tocca.UI

/// A hairline.
Rectangle {
    implicitHeight: 1
    implicitWidth: 1
    color: Theme.cardBorder
}
