pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// The profiles at the left, the selected one's editor at the right.
FocusScope {
    id: root

    focus: true
    readonly property bool canUndo: editor.canUndo

    function undo() {
        editor.undo();
    }

    Item {
        id: column
        width: 210
        height: root.height

        Label {
            x: 20
            y: Theme.paneTop
            text: "Profiles"
            type: Theme.title
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        RowList {
            id: list
            objectName: "profiles"
            y: Theme.paneTop + Theme.title.lineHeight + 15
            width: parent.width
            height: parent.height - y - Theme.barHeight
            clip: true
            spacing: 2
            model: ProfilesViewModel.profiles
            currentIndex: ProfilesViewModel.selectedRow
            name: "Profiles"
            onRemoveRequested: editor.askToDelete()
            Keys.onUpPressed: ProfilesViewModel.selectRow(list.currentIndex - 1)
            Keys.onDownPressed: ProfilesViewModel.selectRow(list.currentIndex + 1)
            Keys.onReturnPressed: editor.focusName()
            delegate: ProfileRow {
                x: 10
                width: list.width - 20
                selected: ListView.isCurrentItem
                focused: activeFocus && !list.byPointer
                onClicked: {
                    list.takePointer();
                    ProfilesViewModel.select(profileId);
                }
            }
            T.ScrollBar.vertical: ScrollBar {}
        }
        Hairline {
            y: parent.height - Theme.barHeight
            width: parent.width
        }
        Row {
            x: 12
            y: parent.height - Theme.barHeight / 2 - 14
            spacing: 4
            IconButton {
                symbol: "plus"
                text: "New profile"
                onClicked: ProfilesViewModel.add()
            }
            IconButton {
                symbol: "plus.square.on.square"
                text: "Duplicate profile"
                onClicked: ProfilesViewModel.duplicateSelected()
            }
        }
        Hairline {
            anchors.right: parent.right
            height: parent.height
        }
    }
    ProfileEditor {
        id: editor
        anchors { left: column.right; right: parent.right; top: parent.top; bottom: parent.bottom }
    }
    Connections {
        target: ProfilesViewModel
        function onProfileMade() {
            editor.focusName();
        }
    }
}
