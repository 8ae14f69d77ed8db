pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What a focus ring draws.
Rectangle {
    id: root

    readonly property FocusRing ring: root.parent as FocusRing
    readonly property bool edge: root.ring !== null && root.ring.edge
    readonly property real controlRadius: root.ring === null ? 0 : root.ring.controlRadius

    radius: root.edge ? root.controlRadius : root.controlRadius + 3
    color: Theme.clear
    border.width: root.edge ? 2 : 2.5
    border.color: Theme.ring
}
