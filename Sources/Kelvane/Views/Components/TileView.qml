pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import Kelvane

// One tile of a drawn Dock: its icon and name, a pin when it is always there, and a mark when it changes. A spacer is a
// narrow cell with a line.
Item {
    id: root

    required property string name
    required property string iconSource
    required property string accessibleName
    required property string mark
    required property bool pinned
    required property bool spacer
    required property TileMetrics metrics
    required property color plate
    property bool faded: false
    // From 0 to 1 while it arrives.
    property real presence: 1
    property real strength: root.faded ? 0.35 : 1
    // The mark it wears, and still while that fades.
    property string lastMark: "none"
    Binding on lastMark {
        when: root.mark !== "none"
        value: root.mark
        restoreMode: Binding.RestoreNone
    }

    readonly property bool arriving: root.mark === "arriving"
    readonly property bool leaving: root.mark === "leaving"
    readonly property real iconX: (root.width - root.metrics.icon) / 2

    implicitWidth: root.spacer ? 16 : root.metrics.cell
    implicitHeight: root.metrics.height
    opacity: root.presence * root.strength
    scale: 0.85 + 0.15 * root.presence
    Accessible.role: root.spacer ? Accessible.Separator : Accessible.Graphic
    Accessible.name: root.spacer ? "" : root.accessibleName
    Behavior on strength { NumberAnimation { duration: Theme.fadeTime } }

    Rectangle {
        visible: root.spacer
        // On a whole pixel of the screen.
        x: Math.floor(7.5 * Screen.devicePixelRatio) / Screen.devicePixelRatio
        y: 11
        width: 1
        height: root.metrics.icon - 16
        color: Theme.lineStrong
    }
    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 2
        anchors.rightMargin: 2
        radius: 14
        color: Theme.addSoft
        opacity: root.arriving ? 1 : 0
        visible: opacity > 0
        Behavior on opacity { NumberAnimation { duration: Theme.fadeTime } }
    }
    Image {
        id: icon
        visible: !root.spacer
        x: root.iconX
        y: 3
        width: root.metrics.icon
        height: root.metrics.icon
        sourceSize.width: root.metrics.icon * Screen.devicePixelRatio
        sourceSize.height: root.metrics.icon * Screen.devicePixelRatio
        source: root.iconSource
        asynchronous: true
        opacity: root.leaving ? 0.34 : 1
        Accessible.ignored: true
    }
    Label {
        visible: !root.spacer
        x: 2
        y: 4 + root.metrics.icon
        width: root.width - 4
        text: root.name
        type: root.arriving ? Theme.smallStrong : Theme.small
        color: root.arriving ? Theme.add : root.leaving ? Theme.text3 : Theme.text2
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
        maximumLineCount: 1
        Accessible.ignored: true
    }
    Rectangle {
        visible: root.pinned
        x: root.iconX - 2
        y: root.metrics.icon - 13
        width: 18
        height: 18
        radius: 9
        color: root.arriving ? Theme.addSoft : root.plate
        Symbol {
            anchors.centerIn: parent
            name: "pin.fill"
            size: 11
            weight: "regular"
        }
    }
    ChangeMark {
        x: root.iconX + root.metrics.markX
        y: 2
        size: root.metrics.mark
        rim: root.arriving ? Theme.addSoft : root.plate
        mark: root.lastMark
        opacity: root.mark === "none" ? 0 : 1
        visible: opacity > 0
        Behavior on opacity {
            SequentialAnimation {
                PauseAnimation { duration: root.mark === "none" ? 0 : 80 }
                NumberAnimation { duration: Theme.fadeTime }
            }
        }
    }
    HoverHandler {
        id: hover
    }
    ToolTip {
        text: root.name
        visible: hover.hovered && !root.spacer
    }
}
