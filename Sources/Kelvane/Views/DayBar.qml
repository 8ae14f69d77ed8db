pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// One day of the chart: its bar, the label below it, and over the highest bar its time.
Item {
    id: root

    required property int index
    required property real share
    required property string label
    required property string peak
    required property string description
    required property bool isToday
    required property bool isTracked
    required property real highest
    required property real grown
    /// Labels are wider than their bars: the first starts at its bar, today's ends there.
    required property bool labelsFill
    required property bool first

    Accessible.role: Accessible.StaticText
    Accessible.name: root.description

    Rectangle {
        id: bar
        width: Math.min(28, root.width)
        height: Math.max(3, Math.round(root.highest * root.share * root.grown))
        x: (root.width - width) / 2
        y: root.highest - height
        radius: Math.min(5, height / 2, width / 2)
        color: !root.isTracked ? Theme.line : root.isToday ? Theme.accent : Theme.accentMute
    }
    StyledText {
        anchors { horizontalCenter: bar.horizontalCenter; bottom: bar.top; bottomMargin: 3 }
        visible: root.peak !== ""
        text: root.peak
        type: Theme.small
        color: Theme.text2
    }
    StyledText {
        x: !root.labelsFill ? (root.width - width) / 2 : root.first ? 0 : root.isToday ? root.width - width
                                                                            : (root.width - width) / 2
        y: root.highest + 6
        text: root.label
        type: root.isToday ? Theme.smallStrong : Theme.small
        color: root.isToday ? Theme.text : Theme.text2
    }
    HoverHandler {
        id: pointer
    }
    Hint {
        text: root.description
        shown: pointer.hovered
    }
}
