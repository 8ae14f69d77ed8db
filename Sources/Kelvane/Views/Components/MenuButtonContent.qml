pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The inside of a menu button: the symbol and text of the choice and the sign that there are others.
Item {
    id: root

    required property string text
    required property string symbol
    required property TypeStyle type
    required property color ink
    readonly property real textStart: root.symbol === "" ? 0 : 24

    implicitWidth: root.textStart + label.implicitWidth + 24
    implicitHeight: label.implicitHeight

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        visible: root.symbol !== ""
        name: root.symbol
    }
    StyledText {
        id: label
        x: root.textStart
        width: Math.min(implicitWidth, root.width - root.textStart - 24)
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        type: root.type
        color: root.ink
        elide: Text.ElideRight
    }
    Symbol {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.up.chevron.down"
        size: 14
    }
}
