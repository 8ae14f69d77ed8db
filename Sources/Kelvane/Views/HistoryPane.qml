pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// The saved Docks, newest first: what they hold, what restoring one would change, and the way back to it.
Item {
    id: root

    property string openedId: ""
    property string askedId: ""

    function ask(id: string) {
        root.askedId = id;
        (confirmation.createObject(root) as Confirmation).open();
    }

    ListView {
        id: list
        objectName: "snapshots"
        anchors.fill: parent
        model: HistoryViewModel.snapshots
        boundsBehavior: Flickable.StopAtBounds
        bottomMargin: Theme.paneBottom
        cacheBuffer: 400
        Accessible.role: Accessible.List
        Accessible.name: "Saved Docks"

        // A bound component of this file cannot be made by the view; one of another file can.
        header: Qt.createComponent("HistoryHeader.qml", Component.PreferSynchronous, list)
        delegate: SnapshotRow {
            width: list.width
            count: list.count
            opened: root.openedId === snapshotId
            onToggled: root.openedId = opened ? "" : snapshotId
            onRestoreRequested: root.ask(snapshotId)
        }
        T.ScrollBar.vertical: ScrollBar {}
    }
    KeyScroll {
        area: list
    }
    EmptyState {
        visible: HistoryViewModel.isEmpty
        anchors.centerIn: parent
        anchors.verticalCenterOffset: 9
        symbol: "clock.arrow.circlepath"
        title: "No saved Docks yet"
        text: "Each change of your Dock is saved here first."
    }
    Component {
        id: confirmation
        Confirmation {
            id: question
            title: "Restore this Dock?"
            text: "Your current Dock is saved first, so you can come back to it."
            action: "Restore"
            onAccepted: HistoryViewModel.restore(root.askedId)
            onClosed: question.destroy()
        }
    }
}
