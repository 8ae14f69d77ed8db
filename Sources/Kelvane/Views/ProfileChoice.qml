pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// One profile to start with: what it is, how it fills, and the first icons of what it would make of the Dock.
T.RadioButton {
    id: root

    required property string profileId
    required property string name
    required property string symbol
    required property string line
    required property list<string> icons
    required property bool isChosen

    implicitHeight: Theme.headingBig.lineHeight + Theme.caption.lineHeight + 32
    focusPolicy: Qt.StrongFocus
    checkable: false
    checked: root.isChosen
    text: root.name
    Accessible.name: root.name
    Accessible.description: root.line
    Accessible.onPressAction: root.clicked()
    Keys.onDownPressed: root.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onUpPressed: root.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    background: Rectangle {
        radius: 14
        color: root.down ? Theme.hover : Theme.surface
        border.width: root.isChosen ? 2 : 1
        border.color: root.isChosen ? Theme.accent : root.hovered ? Theme.lineStrong : Theme.line
        FocusRing {
            shown: root.visualFocus
            controlRadius: 14
        }
    }
    Rectangle {
        x: 16
        anchors.verticalCenter: parent.verticalCenter
        width: 38
        height: 38
        radius: 10
        color: root.isChosen ? Theme.accent : Theme.hover
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            size: 20
            tint: root.isChosen ? Theme.accentInk : Theme.text2
        }
    }
    Column {
        x: 69
        width: strip.x - x - 16
        anchors.verticalCenter: parent.verticalCenter
        StyledText {
            width: parent.width
            text: root.name
            type: Theme.headingBig
            elide: Text.ElideRight
        }
        StyledText {
            width: parent.width
            text: root.line
            type: Theme.caption
            color: Theme.text2
            elide: Text.ElideRight
        }
    }
    IconStrip {
        id: strip
        anchors { right: parent.right; rightMargin: 60; verticalCenter: parent.verticalCenter }
        width: Math.min(implicitWidth, root.width - 330)
        gap: 2
        icons: root.icons
    }
    Rectangle {
        anchors { right: parent.right; rightMargin: 18; verticalCenter: parent.verticalCenter }
        width: 20
        height: 20
        radius: 10
        color: Theme.clear
        border.width: root.isChosen ? 0 : 1.5
        border.color: Theme.lineStrong
        Symbol {
            visible: root.isChosen
            anchors.centerIn: parent
            name: "checkmark.circle.fill"
            size: 20
            tint: Theme.accent
        }
    }
}
