pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// What the profile is called and which symbol stands for it.
Card {
    id: root

    readonly property real controlsX: 28 + Math.max(52, nameLabel.implicitWidth, iconLabel.implicitWidth)
    readonly property real controlsWidth: root.width - root.controlsX - 14
    readonly property int perRow: root.controlsWidth >= 12 * 30 ? 12 : 6

    function focusName() {
        field.forceActiveFocus(Qt.TabFocusReason);
        field.selectAll();
    }

    Item {
        width: root.width
        height: Math.max(48, field.height + 18)

        StyledText {
            id: nameLabel
            x: 16
            anchors.verticalCenter: parent.verticalCenter
            text: "Name"
        }
        TextEntry {
            id: field
            label: "Name"
            x: root.controlsX
            width: root.controlsWidth
            anchors.verticalCenter: parent.verticalCenter
            text: ProfilesViewModel.editor.name
            onTextEdited: ProfilesViewModel.editor.name = text
        }
    }
    Hairline {
        x: 16
        width: root.width - 16
    }
    Item {
        width: root.width
        height: icons.height + 18

        StyledText {
            id: iconLabel
            x: 16
            y: icons.y + 15 - height / 2
            text: "Icon"
        }
        Grid {
            id: icons
            x: root.controlsX
            y: 9
            columns: root.perRow
            columnSpacing: (root.controlsWidth - columns * 30) / (columns - 1)
            rowSpacing: 4
            Accessible.role: Accessible.Grouping
            Accessible.name: "Icon"

            Repeater {
                model: ProfilesViewModel.editor.symbols
                T.RadioButton {
                    id: choice

                    required property string modelData

                    implicitWidth: 30
                    implicitHeight: 30
                    focusPolicy: Qt.StrongFocus
                    checkable: false
                    checked: ProfilesViewModel.editor.symbol === choice.modelData
                    onClicked: ProfilesViewModel.editor.symbol = choice.modelData
                    Accessible.name: choice.modelData
                    Accessible.onPressAction: choice.clicked()
                    Keys.onReturnPressed: choice.clicked()
                    Keys.onLeftPressed: choice.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
                    Keys.onRightPressed: choice.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)

                    background: Rectangle {
                        radius: 7
                        color: choice.checked ? Theme.accent : choice.down ? Theme.selected
                               : choice.hovered ? Theme.hover : Theme.clear
                        FocusRing {
                            shown: choice.visualFocus
                            controlRadius: 7
                            anchors.margins: choice.checked ? -4 : -2
                        }
                    }
                    Symbol {
                        anchors.centerIn: parent
                        name: choice.modelData
                        size: 18
                        tint: choice.checked ? Theme.accentInk : Theme.text2
                    }
                }
            }
        }
    }
}
