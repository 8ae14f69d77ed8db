pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// A tinted strip that says what needs the user, with the one thing to do about it.
Rectangle {
    id: root

    required property string symbol
    required property string text
    required property string action
    signal triggered

    implicitHeight: Math.max(label.implicitHeight, button.height) + 26
    radius: 12
    color: Theme.warnBg
    border.color: Theme.warnLine
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.text

    Symbol {
        id: symbol
        x: 15
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        size: 22
        tint: Theme.warnIcon
    }
    Label {
        id: label
        anchors.left: symbol.right
        anchors.leftMargin: 12
        anchors.right: button.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        color: Theme.warnText
        wrapMode: Text.Wrap
    }
    PushButton {
        id: button
        anchors.right: parent.right
        anchors.rightMargin: 13
        anchors.verticalCenter: parent.verticalCenter
        text: root.action
        onClicked: root.triggered()
    }
}
