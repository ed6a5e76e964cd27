pragma Strict
import QtQuick

/// A hairline.
Rectangle {
    implicitHeight: 1
    implicitWidth: 1
    color: Theme.cardBorder
}
