import QtQuick

/// An animated change, which is immediate where nobody sees it: in a hidden window or page.
Behavior {
    id: root

    required property Item of

    enabled: root.of.visible && root.of.Window.visibility !== Window.Hidden && root.of.Window.visibility !== Window.Minimized
}
