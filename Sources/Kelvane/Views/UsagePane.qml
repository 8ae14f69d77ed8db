pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
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
    ListView {
        id: list
        objectName: "ranking"
        visible: !UsageViewModel.isEmpty
        anchors.fill: parent
        model: UsageViewModel.ranking
        boundsBehavior: Flickable.StopAtBounds
        reuseItems: true
        cacheBuffer: 400
        activeFocusOnTab: true
        currentIndex: -1
        keyNavigationEnabled: true
        highlightFollowsCurrentItem: true
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: "Apps by usage"
        // The ring shows where the keys go, to those who use them.
        property bool byPointer: false
        onActiveFocusChanged: {
            if (!activeFocus)
                list.byPointer = false;
            else if (list.currentIndex < 0 && list.Window.activeFocusItem === list)
                list.currentIndex = 0;
        }
        Keys.onPressed: list.byPointer = false
        Keys.onReturnPressed: list.toggleCurrent()
        Keys.onSpacePressed: list.toggleCurrent()

        function toggleCurrent() {
            const row = list.currentItem as UsageRow;
            if (row)
                row.toggle();
        }

        // Bound components of this file cannot be made by a view; those of other files can.
        header: Qt.createComponent("UsageHeader.qml", Component.PreferSynchronous, list)
        footer: Qt.createComponent("Components/ListFooter.qml", Component.PreferSynchronous, list)
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
