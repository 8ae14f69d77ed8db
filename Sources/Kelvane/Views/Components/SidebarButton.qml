pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// One row of the sidebar; choosing it shows its pane.
T.TabButton {
    id: root

    required property string pane
    required property string symbol
    readonly property bool current: App.pane === root.pane

    implicitWidth: 180
    implicitHeight: Math.max(32, label.implicitHeight + 8)
    focusPolicy: Qt.StrongFocus
    checkable: false
    checked: root.current
    onClicked: App.pane = root.pane
    Accessible.name: root.text
    Accessible.selected: root.current
    Accessible.onPressAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()
    Keys.onDownPressed: root.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onUpPressed: root.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    background: Rectangle {
        radius: 8
        color: root.current || root.down ? Theme.selected : root.hovered ? Theme.hover : Theme.clear
        Behavior on color { ColorAnimation { duration: Theme.colourTime } }
        FocusRing {
            shown: root.visualFocus
            edge: true
        }
    }
    Symbol {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        size: 18
        tint: root.current ? Theme.accentText : Theme.text2
    }
    Words {
        id: label
        x: 38
        width: root.width - 48
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        type: root.current ? Theme.heading : Theme.body
        elide: Text.ElideRight
    }
}
