pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The inside of a push button: an optional symbol and the text, centred, elided when there is no room.
Item {
    id: root

    required property string text
    required property TypeStyle type
    required property color ink
    required property string symbol
    property real symbolSize: 16
    property real symbolRotation: 0
    readonly property real symbolSpace: root.symbol === "" ? 0 : root.symbolSize + 6

    implicitWidth: label.implicitWidth + root.symbolSpace
    implicitHeight: label.implicitHeight

    Symbol {
        x: label.x - root.symbolSpace
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        size: root.symbolSize
        tint: root.ink
        rotation: root.symbolRotation
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
