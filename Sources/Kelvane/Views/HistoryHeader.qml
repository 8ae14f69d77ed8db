pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What stands above the saved Docks and scrolls with them.
Item {
    id: root

    width: ListView.view ? ListView.view.width : 0
    height: header.y + header.height + Theme.sectionGap

    PaneHeader {
        id: header
        x: Theme.paneMargin
        y: Theme.paneTop
        width: root.width - 2 * Theme.paneMargin
        title: "History"
        subtitle: "Every change is saved first. Restore any earlier Dock."

        PushButton {
            text: "Restore Previous Dock"
            enabled: HistoryViewModel.hasPrevious && !App.working
            onClicked: HistoryViewModel.restorePrevious()
        }
    }
}
