pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// One profile of the list.
T.ItemDelegate {
    id: root

    required property string profileId
    required property string name
    required property string symbol
    required property string ordinal
    required property string title
    required property bool isActive
    required property bool selected
    required property bool focused

    implicitHeight: Math.max(36, label.implicitHeight + 12)
    focusPolicy: Qt.NoFocus
    Accessible.name: root.title
    Accessible.description: root.isActive ? "Active" : ""
    Accessible.selectable: true
    Accessible.selected: root.selected
    Accessible.onPressAction: root.clicked()

    background: Rectangle {
        radius: 8
        color: root.selected ? Theme.selected : root.hovered ? Theme.hover : Theme.clear
        Behavior on color { ColorAnimation { duration: Theme.colourTime } }
        FocusRing {
            shown: root.focused
            edge: true
        }
    }
    Symbol {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        size: 18
        tint: root.selected ? Theme.accentText : Theme.text2
    }
    StyledText {
        id: label
        x: 38
        width: Math.min(implicitWidth, (tag.visible ? tag.x - 8 : root.width - 10) - x - ordinalLabel.width)
        anchors.verticalCenter: parent.verticalCenter
        text: root.name
        type: root.selected ? Theme.heading : Theme.body
        elide: Text.ElideRight
    }
    StyledText {
        id: ordinalLabel
        visible: root.ordinal !== ""
        width: visible ? implicitWidth + 6 : 0
        x: label.x + label.width + 6
        anchors.verticalCenter: parent.verticalCenter
        text: root.ordinal
        color: Theme.text2
    }
    Tag {
        id: tag
        visible: root.isActive
        anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
        text: "Active"
        kind: "active"
    }
}
