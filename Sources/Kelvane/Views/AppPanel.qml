pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Dialogs
import Kelvane

// The panel that chooses any application on disk; an application is a folder.
Item {
    id: root

    FolderDialog {
        id: dialog
        title: "Choose an App"
        currentFolder: ProfilesViewModel.picker.applicationsFolder
        onAccepted: ProfilesViewModel.picker.addBundle(selectedFolder)
    }
    Component.onCompleted: dialog.open()
}
