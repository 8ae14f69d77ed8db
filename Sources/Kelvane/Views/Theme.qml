pragma Singleton
import QtQuick
import Kelvane

// Every colour, text style, measure and duration of the window, light and dark.
QtObject {
    id: root

    readonly property bool dark: Appearance.dark
    readonly property bool reducedMotion: Appearance.reducedMotion
    readonly property real pixelRatio: Appearance.pixelRatio

    readonly property color window: dark ? "#1B1B1F" : "#F8F8FA"
    readonly property color sidebar: dark ? "#222227" : "#EFEFF3"
    readonly property color shelf: sidebar
    readonly property color surface: dark ? "#26262B" : "#FFFFFF"
    readonly property color raised: dark ? "#2F2F35" : "#FFFFFF"
    readonly property color field: dark ? "#1B1B1F" : "#FFFFFF"
    readonly property color line: dark ? "#34343B" : "#E2E2E8"
    readonly property color lineStrong: dark ? "#484851" : "#CFCFD7"
    readonly property color text: dark ? "#F1F1F4" : "#1C1C21"
    readonly property color text2: dark ? "#A9A9B4" : "#5D5D68"
    readonly property color text3: dark ? "#9A9AA6" : "#696974"
    readonly property color disabled: dark ? "#62626C" : "#A9A9B3"
    readonly property color control: dark ? "#34343A" : "#FFFFFF"
    readonly property color controlHover: dark ? "#3C3C43" : "#F3F3F6"
    readonly property color controlPress: dark ? "#45454D" : "#E9E9EE"
    readonly property color hover: dark ? "#2C2C32" : "#EAEAEF"
    readonly property color selected: dark ? "#36363E" : "#E1E1E8"
    readonly property color accent: dark ? "#5068E4" : "#3F57D6"
    readonly property color accentHover: dark ? "#4A61DA" : "#364CC2"
    readonly property color accentPress: dark ? "#465CD0" : "#2D40A8"
    readonly property color accentInk: "#FFFFFF"
    readonly property color accentText: dark ? "#9DACFF" : "#3B52CC"
    readonly property color accentSoft: dark ? "#303862" : "#E9ECFB"
    readonly property color accentMute: dark ? "#4A568F" : "#B4BEF0"
    readonly property color accentBar: dark ? "#2C3048" : "#EAEDFC"
    readonly property color ring: dark ? "#7F92F5" : "#6B7EE4"
    readonly property color add: dark ? "#5CCB92" : "#1A7748"
    readonly property color addSoft: dark ? "#1F382C" : "#E1F3E9"
    readonly property color leave: dark ? "#F0A06A" : "#AE4D19"
    readonly property color danger: dark ? "#FF858A" : "#C02B36"
    readonly property color dangerSoft: dark ? "#42262A" : "#FBE6E7"
    readonly property color dangerHover: dark ? "#FF8F94" : "#B12832"
    readonly property color warnBg: dark ? "#33291A" : "#FDF3DF"
    readonly property color warnLine: dark ? "#4C3C20" : "#EFDDB4"
    readonly property color warnText: dark ? "#F2DDB0" : "#5C4310"
    readonly property color warnIcon: dark ? "#F0B052" : "#9A5B00"
    readonly property color trackOff: dark ? "#5A5A65" : "#BCBCC6"
    readonly property color knob: "#FFFFFF"
    readonly property color scrim: dark ? "#6B000000" : "#4714141A"
    readonly property color shadow: dark ? "#8C000000" : "#29141428"
    // No fill, and nothing to fade through on the way to one.
    readonly property color clear: "transparent"

    readonly property TypeStyle display: TypeStyle { size: 30; line: 36; weight: Font.Bold; tracking: -0.5 }
    readonly property TypeStyle figureLarge: TypeStyle { size: 28; line: 34; weight: Font.Bold; tracking: -0.6 }
    readonly property TypeStyle title: TypeStyle { size: 22; line: 28; weight: Font.Bold; tracking: -0.35 }
    readonly property TypeStyle figure: TypeStyle { size: 17; line: 22; weight: Font.Bold; tracking: -0.2 }
    readonly property TypeStyle figureZero: TypeStyle { size: 17; line: 22; weight: Font.Medium; tracking: -0.2 }
    readonly property TypeStyle lead: TypeStyle { size: 15; line: 22 }
    readonly property TypeStyle leadSmall: TypeStyle { size: 14; line: 20 }
    readonly property TypeStyle confirmTitle: TypeStyle { size: 15; line: 20; weight: Font.Bold }
    readonly property TypeStyle heading: TypeStyle { size: 13; line: 18; weight: Font.DemiBold }
    readonly property TypeStyle body: TypeStyle { size: 13; line: 18 }
    readonly property TypeStyle button: TypeStyle { size: 13; line: 18; weight: Font.Medium }
    readonly property TypeStyle buttonBig: TypeStyle { size: 14; line: 20; weight: Font.Medium }
    readonly property TypeStyle headingBig: TypeStyle { size: 14; line: 20; weight: Font.DemiBold }
    readonly property TypeStyle caption: TypeStyle { size: 12; line: 16 }
    readonly property TypeStyle captionMedium: TypeStyle { size: 12; line: 16; weight: Font.Medium }
    readonly property TypeStyle captionStrong: TypeStyle { size: 12; line: 16; weight: Font.DemiBold }
    readonly property TypeStyle small: TypeStyle { size: 11; line: 14 }
    readonly property TypeStyle smallStrong: TypeStyle { size: 11; line: 14; weight: Font.DemiBold }

    readonly property int paneMargin: 32
    readonly property int paneTop: 26
    readonly property int paneBottom: 24
    readonly property int sectionGap: 20
    readonly property int barHeight: figure.lineHeight + caption.lineHeight + 34
    readonly property int firstRunBarHeight: Math.max(84, buttonBig.lineHeight + 64)
    readonly property int sidebarWidth: 200
    // The window's own buttons lie over the sidebar there.
    readonly property int sidebarTop: Qt.platform.os === "osx" ? 52 : 16

    // Durations in milliseconds. A movement takes no time at all when motion is reduced; fades are short anyway.
    readonly property int colourTime: 90
    readonly property int fadeTime: 120
    readonly property int slideTime: reducedMotion ? 0 : 160
    readonly property int tileTime: reducedMotion ? 0 : 220
    readonly property int applyTime: reducedMotion ? 0 : 320
    readonly property int growTime: reducedMotion ? 0 : 200
    readonly property int barTime: reducedMotion ? 0 : 300
    readonly property int stepTime: reducedMotion ? 0 : 240
}
