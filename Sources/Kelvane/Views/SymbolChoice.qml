pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// One of the symbols a profile can have.
T.RadioButton {
    id: root

    required property string symbol
    required property bool chosen

    implicitWidth: 30
    implicitHeight: 30
    focusPolicy: Qt.StrongFocus
    checkable: false
    checked: root.chosen
    Accessible.name: root.symbol
    Accessible.onPressAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onLeftPressed: root.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    Keys.onRightPressed: root.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)

    background: Rectangle {
        radius: 7
        color: root.chosen ? Theme.accent : root.down ? Theme.selected : root.hovered ? Theme.hover : Theme.clear
        FocusRing {
            shown: root.visualFocus
            controlRadius: 7
            anchors.margins: root.chosen ? -4 : -2
        }
    }
    Symbol {
        anchors.centerIn: parent
        name: root.symbol
        size: 18
        tint: root.chosen ? Theme.accentInk : Theme.text2
    }
}
