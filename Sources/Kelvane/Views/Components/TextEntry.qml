pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// A line of text to type, with an optional symbol before it.
T.TextField {
    id: root

    required property string label
    property string symbol: ""

    leftPadding: root.symbol === "" ? 10 : 34
    rightPadding: 10
    topPadding: 0
    bottomPadding: 0
    implicitWidth: 180
    implicitHeight: Math.max(30, contentHeight + 8)
    verticalAlignment: TextInput.AlignVCenter
    font: Theme.body.font
    color: root.enabled ? Theme.text : Theme.disabled
    placeholderTextColor: Theme.text3
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentInk
    selectByMouse: true
    Accessible.name: root.label

    background: Rectangle {
        radius: 8
        color: Theme.field
        border.color: Theme.lineStrong
        FocusRing {
            shown: root.activeFocus
        }
    }
    StyledText {
        x: root.leftPadding
        width: root.width - root.leftPadding - root.rightPadding
        anchors.verticalCenter: parent.verticalCenter
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        color: root.placeholderTextColor
        elide: Text.ElideRight
    }
    Symbol {
        x: 11
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        tint: Theme.text2
    }
}
