pragma Singleton
import QtQuick
import Tocca.UI

/// Every colour, face, measure and motion of the views, named once; the colours of both windows come from StudioTheme.h.
StudioColours {
    readonly property color warning: "#c2410c" // the system orange, dark enough to be read on white
    readonly property color controlBorder: "#808ea3" // of boxes, knobs and tracks: 3 : 1 on chassis and cards
    readonly property color focusRing: "#b45309" // the accent, dark enough to be seen around everything

    // The HUD over the desktop.
    readonly property color hudFill: "#f50c0d10"
    readonly property color hudLine: "#8cf59e0b"
    readonly property color hudLineEnd: "#404040"
    readonly property color hudBadge: "#16181e"
    readonly property color hudText: "#ffffff"
    readonly property color hudWarning: "#ea580c"
    readonly property color hudWaveform: "#d9f59e0b"
    readonly property color hudSymbol: "#999999"
    readonly property color hudLabel: "#808080"
    readonly property color hudPill: "#1f1f1f"
    readonly property color hudPillLine: "#383838"

    readonly property string textFace: "Inter"
    readonly property string monoFace: "JetBrains Mono"

    /// Type sizes are given in points of the screen's grid, Qt's in 72nds of an inch.
    readonly property real typePoint: 0.75
    readonly property real pageTitleSize: 22
    readonly property real sectionTitleSize: 13
    readonly property real rowTitleSize: 12.5
    readonly property real bodySize: 12
    readonly property real captionSize: 11
    readonly property real labelSize: 9.5
    readonly property real labelSpacing: 0.6
    readonly property real bodyLineHeight: 1.35

    // Points on a grid of 4.
    readonly property int pageMargin: 24
    readonly property int cardPadding: 16
    readonly property int cardGap: 12
    readonly property int titleGap: 8
    readonly property int rowGap: 12
    readonly property int cardRadius: 10
    readonly property int buttonRadius: 7
    readonly property int fieldRadius: 8
    readonly property int controlHeight: 30
    readonly property int fieldHeight: 32
    readonly property int rowHeight: 36
    readonly property int symbolColumn: 20
    readonly property int symbolSize: 13
    readonly property int switchWidth: 36
    readonly property int switchHeight: 20
    readonly property int knobSize: 16
    readonly property int focusWidth: 2

    readonly property real disabledOpacity: 0.4
    readonly property real pressedShade: 0.04 // black over what is pressed
    readonly property real hoverShade: 0.025
    readonly property real hoverBorder: 0.35 // accent

    /// Set where the desktop asks for less motion; every change is then immediate.
    property bool reducesMotion: false
    readonly property int stateChange: reducesMotion ? 0 : 120 // milliseconds
}
