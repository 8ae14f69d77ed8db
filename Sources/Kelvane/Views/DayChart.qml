pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Active time per day over the chosen window, with its sum at the left.
Rectangle {
    id: root

    // Beside bars that would become too narrow for their labels the sum stands above them.
    readonly property real besideSum: 29 + Math.max(164, sum.implicitWidth)
    readonly property bool stacked: root.width - root.besideSum - 21 < 26 * Theme.small.lineHeight
    readonly property real leftEdge: root.stacked ? 21 : root.besideSum
    readonly property real chartWidth: root.width - root.leftEdge - 21
    readonly property real gap: bars.count > 10 ? 5 : 14
    readonly property real slot: (root.chartWidth + root.gap) / Math.max(1, bars.count)
    readonly property real highest: 84
    readonly property real topY: root.stacked ? sum.height + 14 : 0
    readonly property real floorY: root.topY + 19 + Theme.small.lineHeight + root.highest
    property real grown: UsageViewModel.firstShow && !Theme.reducedMotion ? 0 : 1

    implicitHeight: root.floorY + 17 + Theme.small.lineHeight
    radius: 12
    color: Theme.surface
    border.color: Theme.line
    Accessible.role: Accessible.Chart
    Accessible.name: "Active time per day"
    Component.onCompleted: {
        if (root.grown < 1)
            grow.start();
        else
            UsageViewModel.firstShow = false;
    }

    NumberAnimation on grown {
        id: grow
        running: false
        to: 1
        duration: Theme.barTime
        easing.type: Easing.OutCubic
        onFinished: UsageViewModel.firstShow = false
    }
    Column {
        id: sum
        x: 21
        y: root.stacked ? 18 : 51
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
