pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// One tile of a drawn Dock: its icon and its name; a spacer is a narrow cell. Most tiles are neither spacers nor pinned
// nor change, so what shows that is made by the shelf, for those that need it.
Item {
    id: root

    required property string name
    required property string iconSource
    required property string accessibleName
    required property string mark
    required property bool pinned
    required property bool spacer
    required property real cell
    required property real cellHeight
    required property real icon
    required property color plate
    property bool faded: false
    // From 0 to 1 while it arrives.
    property real presence: 1
    property real strength: root.faded ? 0.35 : 1
    // The mark it wears, and still while that fades.
    property string lastMark: "none"
    onMarkChanged: if (root.mark !== "none") root.lastMark = root.mark

    readonly property bool arriving: root.mark === "arriving"
    readonly property bool leaving: root.mark === "leaving"
    readonly property bool changes: root.mark !== "none"
    readonly property color rim: root.arriving ? Theme.addSoft : root.plate
    readonly property real iconX: (root.width - root.icon) / 2

    implicitWidth: root.spacer ? 16 : root.cell
    implicitHeight: root.cellHeight
    opacity: root.presence * root.strength
    scale: 0.85 + 0.15 * root.presence
    Accessible.role: root.spacer ? Accessible.Separator : Accessible.Graphic
    Accessible.name: root.spacer ? "" : root.accessibleName
    Behavior on strength { NumberAnimation { duration: Theme.fadeTime } }

    Image {
        visible: !root.spacer
        x: root.iconX
        y: 3
        width: root.icon
        height: root.icon
        sourceSize.width: root.icon * Theme.pixelRatio
        sourceSize.height: root.icon * Theme.pixelRatio
        source: root.iconSource
        asynchronous: true
        opacity: root.leaving ? 0.34 : 1
    }
    StyledText {
        visible: !root.spacer
        x: 2
        y: 4 + root.icon
        width: root.width - 4
        text: root.name
        type: root.arriving ? Theme.smallStrong : Theme.small
        color: root.arriving ? Theme.add : root.leaving ? Theme.text3 : Theme.text2
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
        maximumLineCount: 1
    }
}
