pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// Everything about the selected profile; each edit is saved at once.
Item {
    id: root

    property AppPicker picker: null
    readonly property bool canUndo: ProfilesViewModel.editor.undoText !== ""

    function focusName() {
        scroll.contentY = 0;
        nameCard.focusName();
    }
    function pick() {
        root.picker = apps.createObject(root) as AppPicker;
        root.picker.open();
    }
    // The command of the Edit menu.
    function undo() {
        ProfilesViewModel.editor.undoRemove();
    }
    function askToDelete() {
        (confirmation.createObject(root) as Confirmation).open();
    }

    Flickable {
        id: scroll
        objectName: "editor"
        width: root.width
        height: root.height - bar.height
        clip: true
        contentHeight: sections.y + sections.height + 28
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: ScrollBar {}

        KeyScroll {
            area: scroll
        }
        Column {
            id: sections
            x: 28
            y: 28
            width: scroll.width - 56
            spacing: 26

            ProfileNameCard {
                id: nameCard
                width: parent.width
            }
            AppSection {
                width: parent.width
                title: "Always in the Dock"
                explanation: "These come first, in this order, whatever your usage."
                apps: ProfilesViewModel.editor.pinned
                emptyText: "None. The whole Dock is chosen by usage."
                ordered: true
                onAddRequested: {
                    ProfilesViewModel.picker.openForPinned();
                    root.pick();
                }
                onRemoveRequested: row => ProfilesViewModel.editor.removePinned(row)
                onMoveRequested: (from, to) => ProfilesViewModel.editor.move(from, to)
            }
            FillSection {
                width: parent.width
            }
            AppSection {
                width: parent.width
                title: "Never in the Dock"
                explanation: "Keep these out of this profile even when you use them a lot, like chat apps in Personal."
                apps: ProfilesViewModel.editor.excluded
                onAddRequested: {
                    ProfilesViewModel.picker.openForExcluded();
                    root.pick();
                }
                onRemoveRequested: row => ProfilesViewModel.editor.removeExcluded(row)
            }
            // It may have many tiles, and it lies below what is seen first.
            Loader {
                width: parent.width
                asynchronous: true
                source: "PreviewSection.qml"
            }
        }
    }
    EditorBar {
        id: bar
        anchors.bottom: parent.bottom
        width: root.width
        onDeleteRequested: root.askToDelete()
    }
    // Most who come here open neither.
    Component {
        id: apps
        AppPicker {
            id: openPicker
            onClosed: openPicker.destroy()
        }
    }
    Component {
        id: confirmation
        Confirmation {
            id: question
            title: "Delete this profile?"
            text: "Your Dock stays as it is."
            action: "Delete"
            destructive: true
            onAccepted: ProfilesViewModel.removeSelected()
            onClosed: question.destroy()
        }
    }
}
