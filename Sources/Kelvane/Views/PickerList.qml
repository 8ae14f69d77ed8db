pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// The applications that can be picked, under their headings. The keyboard stays in the search field above it.
ListView {
    id: root

    function step(by: int) {
        const next = root.currentIndex + by;
        if (next >= 0 && next < root.count) {
            root.currentIndex = next;
            root.positionViewAtIndex(next, ListView.Contain);
        }
    }
    function addCurrent() {
        if (root.currentIndex >= 0)
            ProfilesViewModel.picker.add(root.currentIndex);
    }

    clip: true
    model: ProfilesViewModel.picker.apps
    currentIndex: -1
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    reuseItems: true
    activeFocusOnTab: true
    Accessible.role: Accessible.List
    Accessible.name: "Apps"
    Keys.onReturnPressed: root.addCurrent()
    Keys.onSpacePressed: root.addCurrent()
    T.ScrollBar.vertical: ScrollBar {}

    section.property: "section"
    // A bound component of this file cannot be made by the view; one of another file can.
    section.delegate: Qt.createComponent("PickerHeading.qml", Component.PreferSynchronous, root)
    delegate: PickerRow {
        width: root.width
        current: ListView.isCurrentItem
        followed: ListView.nextSection === ListView.section
        onClicked: root.currentIndex = index
        // A row that waits to be used again is not there, also not for screen readers.
        ListView.onPooled: visible = false
        ListView.onReused: visible = true
        onDoubleClicked: ProfilesViewModel.picker.add(index)
        onAddClicked: ProfilesViewModel.picker.add(index)
    }
}
