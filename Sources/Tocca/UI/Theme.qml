pragma Singleton
import QtQuick

/// Every colour, face, measure and motion of the views, named once.
QtObject {
    // The shared set; StudioTheme.h holds the same values for the controllers.
    readonly property color chassisBg: "#f6f8fa"
    readonly property color panelBg: "#ffffff"
    readonly property color cardBg: "#ffffff"
    readonly property color cardBorder: "#e2e8f0"
    readonly property color amberAccent: "#d97706"
    readonly property color amberGlow: "#f59e0b"
    readonly property color mintStatus: "#059669"
    readonly property color textPrimary: "#0f172a"
    readonly property color textSecondary: "#334155"
    readonly property color textMuted: "#64748b"
    readonly property color warning: "#ea580c" // the system orange
    readonly property color cyanAccent: "#06b6d4" // the brand mark's second stroke

    readonly property string textFace: "Inter"
    readonly property string monoFace: "JetBrains Mono"

    // Points on a grid of 4.
    readonly property int pageMargin: 24
    readonly property int cardPadding: 16
    readonly property int cardGap: 12
    readonly property int titleGap: 8
    readonly property int rowGap: 12
    readonly property int cardRadius: 10
    readonly property int buttonRadius: 7

    readonly property real disabledOpacity: 0.4

    /// Set where the desktop asks for less motion; every change is then immediate.
    property bool reducesMotion: false
    readonly property int stateChange: reducesMotion ? 0 : 120 // milliseconds
}
