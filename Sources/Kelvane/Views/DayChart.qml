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
    readonly property real gap: root.labelsFill ? 5 : 14
    readonly property real slot: (root.chartWidth + root.gap) / Math.max(1, bars.count)
    readonly property real highest: 84
    readonly property real topY: root.stacked ? sum.height + 14 : 0
    readonly property real floorY: root.topY + 19 + Theme.small.lineHeight + root.highest
    // Labels are wider than their bars: the first starts at its bar, today's ends there.
    readonly property bool labelsFill: bars.count > 10
    property real grown: UsageViewModel.firstShow && !Theme.reducedMotion ? 0 : 1

    // One day: its bar, the label below it, and over the highest bar its time.
    component Day: Item {
        id: day

        required property int index
        required property real share
        required property string label
        required property string peak
        required property string description
        required property bool isToday
        required property bool isTracked

        Accessible.role: Accessible.StaticText
        Accessible.name: day.description

        Rectangle {
            id: fill
            width: Math.min(28, day.width)
            height: Math.max(3, Math.round(root.highest * day.share * root.grown))
            x: (day.width - width) / 2
            y: root.highest - height
            radius: Math.min(5, height / 2, width / 2)
            color: !day.isTracked ? Theme.line : day.isToday ? Theme.accent : Theme.accentMute
        }
        StyledText {
            anchors { horizontalCenter: fill.horizontalCenter; bottom: fill.top; bottomMargin: 3 }
            visible: day.peak !== ""
            text: day.peak
            type: Theme.small
            color: Theme.text2
        }
        StyledText {
            x: !root.labelsFill ? (day.width - width) / 2 : day.index === 0 ? 0 : day.isToday ? day.width - width
                                                                                : (day.width - width) / 2
            y: root.highest + 6
            text: day.label
            type: day.isToday ? Theme.smallStrong : Theme.small
            color: day.isToday ? Theme.text : Theme.text2
        }
        HoverHandler {
            id: pointer
        }
        Hint {
            text: day.description
            shown: pointer.hovered
        }
    }

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
        Day {
            x: root.leftEdge + index * root.slot
            y: root.floorY - root.highest
            width: root.slot - root.gap
            height: root.height - y
        }
    }
}
