pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// As many icons as fit in a row, then how many more there are.
Item {
    id: root

    required property list<string> icons
    property real size: 30
    property real gap: 4
    readonly property int fitting: Math.floor((root.width + root.gap) / (root.size + root.gap))
    readonly property int shown: root.icons.length <= root.fitting ? root.icons.length : Math.max(0, root.fitting - 1)

    implicitHeight: root.size
    implicitWidth: Math.max(0, root.icons.length * (root.size + root.gap) - root.gap)

    Row {
        spacing: root.gap
        Repeater {
            model: root.icons.slice(0, root.shown)
            AppIcon {
                required property string modelData
                size: root.size
                source: modelData
            }
        }
        Label {
            visible: root.shown < root.icons.length
            height: root.size
            text: "+" + (root.icons.length - root.shown)
            type: Theme.caption
            color: Theme.text2
        }
    }
}
