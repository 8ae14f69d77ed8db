pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What the Dock would be with the edited profile.
Column {
    id: root

    spacing: 8

    SectionTitle {
        width: root.width
        title: "Preview"
    }
    Shelf {
        width: root.width
        tiles: ProfilesViewModel.editor.preview
        suggested: true
        dense: ProfilesViewModel.editor.isPreviewDense
        emptyText: ProfilesViewModel.editor.emptyText
        Accessible.name: "Preview"
    }
}
