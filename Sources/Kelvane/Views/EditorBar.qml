pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What is done with the edited profile as a whole.
Item {
    id: root

    signal deleteRequested

    // Where the buttons do not fit beside each other, the one that deletes stands above the others.
    readonly property bool narrow: deletion.implicitWidth + buttons.implicitWidth + 62 > root.width

    implicitHeight: Theme.barHeight + (root.narrow ? deletion.height + 8 : 0)

    Hairline {
        width: root.width
    }
    PushButton {
        id: deletion
        x: 18
        y: (Theme.barHeight - height) / 2
        text: "Delete Profile…"
        kind: PushButton.Destructive
        enabled: !ProfilesViewModel.editor.isOnly
        onClicked: root.deleteRequested()
    }
    Row {
        id: buttons
        anchors { right: parent.right; rightMargin: 28 }
        y: root.height - (Theme.barHeight + height) / 2
        spacing: 10

        PushButton {
            text: "Make Active"
            enabled: !ProfilesViewModel.editor.isActive
            onClicked: ProfilesViewModel.editor.makeActive()
        }
        PushButton {
            text: "Apply to Dock"
            kind: PushButton.Primary
            enabled: !App.working
            onClicked: ProfilesViewModel.editor.applyToDock()
        }
    }
}
