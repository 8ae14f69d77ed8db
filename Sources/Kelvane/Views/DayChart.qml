pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Active time per day over the chosen window, with its sum at the left.
Rectangle {
    id: root

    readonly property real leftEdge: 193
    readonly property real chartWidth: root.width - root.leftEdge - 21
    readonly property real gap: bars.count > 10 ? 5 : 14
    readonly property real slot: (root.chartWidth + root.gap) / Math.max(1, bars.count)
    readonly property real highest: 84
    readonly property real floorY: 117
    property real grown: UsageViewModel.firstShow && !Theme.reducedMotion ? 0 : 1

    implicitHeight: 148
    radius: 12
    color: Theme.surface
    border.color: Theme.line
    Accessible.role: Accessible.Chart
    Accessible.name: "Active time per day"
    Component.onCompleted: {
        if (root.grown < 1)
            grow.start();
        UsageViewModel.firstShow = false;
    }

    NumberAnimation on grown {
        id: grow
        running: false
        to: 1
        duration: Theme.barTime
        easing.type: Easing.OutCubic
    }
    Column {
        x: 21
        y: 51
        width: 164
        Label {
            text: UsageViewModel.total
            type: UsageViewModel.total.length > 9 ? Theme.title : Theme.figureLarge
        }
        Label {
            text: UsageViewModel.totalCaption
            type: Theme.caption
            color: Theme.text2
        }
    }
    Repeater {
        id: bars
        model: UsageViewModel.days
        DayBar {
            x: root.leftEdge + index * root.slot
            y: root.floorY - root.highest
            width: root.slot - root.gap
            height: root.height - y
            highest: root.highest
            grown: root.grown
            labelsFill: bars.count > 10
            first: index === 0
        }
    }
}
