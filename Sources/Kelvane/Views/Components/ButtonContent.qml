pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The inside of a push button: an optional symbol and the text, centred, elided when there is no room.
Item {
    id: root

    required property string text
    required property TypeStyle type
    required property color ink
    property string symbol: ""
    property real symbolSize: 16
    // The symbol turns, to show that something runs.
    property bool turning: false
    readonly property real symbolSpace: root.symbol === "" ? 0 : root.symbolSize + 6

    implicitWidth: label.implicitWidth + root.symbolSpace
    implicitHeight: label.implicitHeight

    // Few buttons have one.
    Loader {
        x: label.x - root.symbolSpace
        anchors.verticalCenter: parent.verticalCenter
        active: root.symbol !== ""
        source: "ButtonSymbol.qml"
    }
    StyledText {
        id: label
        width: Math.min(implicitWidth, root.width - root.symbolSpace)
        x: Math.round((root.width - width + root.symbolSpace) / 2)
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        type: root.type
        color: root.ink
        elide: Text.ElideRight
    }
}
