pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Dialogs
import Kelvane

// The panel that chooses any application on disk. An application is a folder that macOS shows as a file.
Item {
    id: root

    FolderDialog {
        id: folders
        title: "Choose an App"
        currentFolder: ProfilesViewModel.picker.applicationsFolder
        onAccepted: ProfilesViewModel.picker.addBundle(selectedFolder)
    }
    FileDialog {
        id: files
        title: "Choose an App"
        nameFilters: ["Applications (*.app)"]
        currentFolder: ProfilesViewModel.picker.applicationsFolder
        onAccepted: ProfilesViewModel.picker.addBundle(selectedFile)
    }
    Component.onCompleted: Qt.platform.os === "osx" ? files.open() : folders.open()
}
