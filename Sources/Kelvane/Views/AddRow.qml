pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// The last row of a list of applications: it opens the picker.
T.AbstractButton {
    id: root

    text: "Add Apps…"
    implicitHeight: 40
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.text
    Accessible.onPressAction: root.clicked()
    Keys.onReturnPressed: root.clicked()

    background: Rectangle {
        anchors.fill: parent
        anchors.margins: 4
        radius: 8
        color: root.down ? Theme.selected : root.hovered ? Theme.hover : Theme.clear
        FocusRing {
            shown: root.visualFocus
            edge: true
        }
    }
    Symbol {
        x: 16
        anchors.verticalCenter: parent.verticalCenter
        name: "plus"
        size: 14
        tint: Theme.accentText
    }
    StyledText {
        x: 36
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        type: Theme.button
        color: Theme.accentText
    }
}
