pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What stands above the ranking and scrolls with it: title, choice of the window, and the days.
Item {
    id: root

    width: ListView.view ? ListView.view.width : 0
    height: chart.y + chart.height + 16

    PaneHeader {
        id: header
        x: Theme.paneMargin
        y: Theme.paneTop
        width: root.width - 2 * Theme.paneMargin
        title: "Usage"
        subtitle: UsageViewModel.subtitle

        Segmented {
            label: "Measured over"
            options: App.usageWindows
            currentIndex: UsageViewModel.windowIndex
            onActivated: index => UsageViewModel.windowIndex = index
        }
    }
    DayChart {
        id: chart
        x: Theme.paneMargin
        y: header.y + header.height + Theme.sectionGap
        width: header.width
    }
}
