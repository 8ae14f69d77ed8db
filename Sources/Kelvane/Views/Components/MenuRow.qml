pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// One choice of a menu.
T.MenuItem {
    id: root

    required property string symbol
    required property bool hasSymbol
    required property bool chosen
    readonly property color ink: root.highlighted ? Theme.accentInk : Theme.text
    readonly property real textStart: root.hasSymbol ? 54 : 30

    width: ListView.view ? ListView.view.width : implicitWidth
    implicitWidth: root.textStart + label.implicitWidth + 16
    implicitHeight: Math.max(28, label.implicitHeight + 8)
    hoverEnabled: true
    checkable: false
    checked: root.chosen
    Accessible.name: root.text
    Accessible.checked: root.chosen
    Accessible.onPressAction: root.clicked()

    background: Rectangle {
        radius: 6
        color: root.highlighted ? Theme.accent : Theme.clear
    }
    Symbol {
        x: 8
        anchors.verticalCenter: parent.verticalCenter
        visible: root.chosen
        name: "checkmark"
        size: 13
        tint: root.ink
    }
    Symbol {
        x: 30
        anchors.verticalCenter: parent.verticalCenter
        visible: root.hasSymbol
        name: root.symbol
        tint: root.ink
    }
    StyledText {
        id: label
        x: root.textStart
        width: root.width - x - 10
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        color: root.ink
        elide: Text.ElideRight
    }
}
