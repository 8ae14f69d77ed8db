pragma ComponentBehavior: Bound
import QtQuick
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

        AppList {
            width: root.width
            name: root.title
            apps: root.apps
            ordered: root.ordered
            onRemoveRequested: row => root.removeRequested(row)
            onMoveRequested: (from, to) => root.moveRequested(from, to)
        }
        Item {
            visible: root.apps.count === 0 && root.emptyText !== ""
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
        AddRow {
            width: root.width
            onClicked: root.addRequested()
        }
    }
}
