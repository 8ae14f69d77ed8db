pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// One list of a profile's applications, with what adds to it. A removed one can be brought back.
Column {
    id: root

    required property string title
    required property string explanation
    required property RowListModel apps
    property string emptyText: ""
    property bool ordered: false

    signal addRequested
    signal removeRequested(int row)
    signal moveRequested(int from, int to)

    spacing: 10
    Accessible.role: Accessible.Grouping
    Accessible.name: root.title

    SectionHeader {
        width: root.width
        title: root.title
        explanation: root.explanation
        undoText: root.apps === ProfilesViewModel.editor.undoList ? ProfilesViewModel.editor.undoText : ""
        onUndoRequested: ProfilesViewModel.editor.undoRemove()
    }
    Card {
        width: root.width

        RowList {
            id: list
            width: root.width
            implicitHeight: list.count * list.rowHeight
            interactive: false
            name: root.title
            model: root.apps
            ordered: root.ordered
            onRemoveRequested: row => root.removeRequested(row)
            onMoveRequested: (from, to) => root.moveRequested(from, to)
            delegate: AppRow {
                width: list.width
                rows: list
            }
        }
        Item {
            visible: list.count === 0 && root.emptyText !== ""
            width: root.width
            height: 40
            Label {
                x: 16
                anchors.verticalCenter: parent.verticalCenter
                text: root.emptyText
                type: Theme.caption
                color: Theme.text2
            }
            Hairline {
                x: 16
                y: 39
                width: root.width - 16
            }
        }
        T.AbstractButton {
            id: adding
            width: root.width
            implicitHeight: 40
            text: "Add Apps…"
            focusPolicy: Qt.StrongFocus
            onClicked: root.addRequested()
            Accessible.name: adding.text
            Accessible.onPressAction: adding.clicked()
            Keys.onReturnPressed: adding.clicked()

            background: Rectangle {
                anchors.fill: parent
                anchors.margins: 4
                radius: 8
                color: adding.down ? Theme.selected : adding.hovered ? Theme.hover : Theme.clear
                FocusRing {
                    shown: adding.visualFocus
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
                text: adding.text
                type: Theme.button
                color: Theme.accentText
            }
        }
    }
}
