pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// One application that can be picked; its plus or a double click adds it, a check mark says it is there.
T.ItemDelegate {
    id: root

    required property int index
    required property string section
    required property string bundleID
    required property string name
    required property bool isAdded
    required property bool current
    required property bool followed

    signal addClicked

    implicitHeight: 40
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: root.name
    Accessible.description: root.section
    Accessible.checked: root.isAdded
    Accessible.onPressAction: root.addClicked()

    background: Rectangle {
        color: root.current || root.hovered ? Theme.hover : Theme.clear
        Hairline {
            visible: root.followed
            x: 50
            y: 39
            width: parent.width - 50
        }
    }
    contentItem: Item {
        AppIcon {
            x: 14
            anchors.verticalCenter: parent.verticalCenter
            bundleID: root.bundleID
            name: root.name
        }
        StyledText {
            x: 52
            width: root.width - x - 52
            anchors.verticalCenter: parent.verticalCenter
            text: root.name
            elide: Text.ElideRight
        }
    }
    IconButton {
        visible: !root.isAdded
        anchors { right: parent.right; rightMargin: 5; verticalCenter: parent.verticalCenter }
        symbol: "plus"
        symbolSize: 14
        ink: Theme.accentText
        focusPolicy: Qt.NoFocus
        text: "Add"
        Accessible.description: root.name
        onClicked: root.addClicked()
    }
    Symbol {
        visible: root.isAdded
        anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
        name: "checkmark"
        size: 14
        tint: Theme.text3
        Accessible.ignored: false
        Accessible.role: Accessible.StaticText
        Accessible.name: "Already added"
    }
}
