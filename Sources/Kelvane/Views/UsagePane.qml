pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// What the ranking sees: the days of the chosen window and the applications in their order.
Item {
    id: root

    PaneHeader {
        id: header
        visible: UsageViewModel.isEmpty
        x: Theme.paneMargin
        y: Theme.paneTop
        width: root.width - 2 * Theme.paneMargin
        title: "Usage"
        subtitle: UsageViewModel.subtitle
    }
    EmptyState {
        visible: UsageViewModel.isEmpty
        anchors.centerIn: parent
        anchors.verticalCenterOffset: 9
        symbol: "chart.bar"
        title: "No usage yet"
        text: "Use your Mac as normal. Apps appear here as you use them."
    }
    RowList {
        id: list
        objectName: "ranking"
        visible: !UsageViewModel.isEmpty
        anchors.fill: parent
        model: UsageViewModel.ranking
        name: "Apps by usage"
        reuseItems: true
        bottomMargin: Theme.paneBottom
        cacheBuffer: 400
        Keys.onReturnPressed: list.toggleCurrent()
        Keys.onSpacePressed: list.toggleCurrent()

        function toggleCurrent() {
            const row = list.currentItem as UsageRow;
            if (row)
                row.toggle();
        }

        // A bound component of this file cannot be made by the view; one of another file can.
        header: Qt.createComponent("UsageHeader.qml", Component.PreferSynchronous, list)
        delegate: UsageRow {
            width: list.width
            count: list.count
            focused: activeFocus && !list.byPointer
            opened: UsageViewModel.openedApp === bundleID
            // A row that waits to be used again is not there, also not for screen readers.
            ListView.onPooled: visible = false
            ListView.onReused: visible = true
        }
        T.ScrollBar.vertical: ScrollBar {}
    }
    KeyScroll {
        area: list
    }
}
