pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// A button that is a symbol; its text is its accessible name and its tooltip.
T.Button {
    id: root

    required property string symbol
    property real symbolSize: 16
    property color ink: Theme.text2

    padding: 0
    implicitWidth: 28
    implicitHeight: 28
    opacity: root.enabled ? 1 : 0.35
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.text
    Accessible.onPressAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    background: Rectangle {
        radius: 7
        color: root.down ? Theme.selected : root.hovered ? Theme.hover : Theme.clear
        FocusRing { shown: root.visualFocus; controlRadius: 7 }
    }
    Symbol {
        anchors.centerIn: parent
        name: root.symbol
        size: root.symbolSize
        tint: root.ink
    }
    Hint {
        text: root.text
        shown: root.hovered
    }
}
