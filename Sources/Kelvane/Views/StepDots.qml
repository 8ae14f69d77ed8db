pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Where one is in the first run.
Row {
    id: root

    required property int count
    required property int current

    spacing: 8
    Accessible.role: Accessible.StaticText
    Accessible.name: "Step " + (root.current + 1) + " of " + root.count

    Repeater {
        model: root.count
        Rectangle {
            id: dot
            required property int index
            width: dot.index === root.current ? 20 : 7
            height: 7
            radius: 3.5
            color: dot.index === root.current ? Theme.accent : Theme.trackOff
            Behavior on width { NumberAnimation { duration: Theme.slideTime; easing.type: Easing.OutCubic } }
        }
    }
}
