pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// A row of a list that one can choose; what it shows is put into it.
T.ItemDelegate {
    id: root

    property bool current: false
    property real minimumHeight: 36
    property real cornerRadius: 8

    implicitWidth: 160
    implicitHeight: Math.max(root.minimumHeight, Theme.body.lineHeight + 8)
    padding: 0
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: root.text
    Accessible.selectable: true
    Accessible.selected: root.current
    Accessible.onPressAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    background: Rectangle {
        radius: root.cornerRadius
        color: root.current || root.down ? Theme.selected : root.hovered ? Theme.hover : Theme.clear
        FocusRing {
            shown: root.visualFocus
            controlRadius: root.cornerRadius
            edge: true
        }
    }
}
