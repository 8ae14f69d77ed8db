pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What is done with the edited profile as a whole.
Item {
    id: root

    signal deleteRequested

    implicitHeight: Theme.barHeight

    Hairline {
        width: root.width
    }
    DestructiveButton {
        x: 18
        anchors.verticalCenter: parent.verticalCenter
        text: "Delete Profile…"
        enabled: !ProfilesViewModel.editor.isOnly
        onClicked: root.deleteRequested()
    }
    Row {
        anchors { right: parent.right; rightMargin: 28; verticalCenter: parent.verticalCenter }
        spacing: 10

        SecondaryButton {
            text: "Make Active"
            enabled: !ProfilesViewModel.editor.isActive
            onClicked: ProfilesViewModel.editor.makeActive()
        }
        PrimaryButton {
            text: "Apply to Dock"
            enabled: !App.working
            onClicked: ProfilesViewModel.editor.applyToDock()
        }
    }
}
