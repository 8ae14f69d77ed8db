pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The keyboard's focus, drawn round its parent or, `edge`, on the parent's own edge.
Rectangle {
    id: root

    required property bool shown
    property real controlRadius: 8
    property bool edge: false

    visible: root.shown
    anchors.fill: parent
    anchors.margins: root.edge ? 0 : -4
    radius: root.edge ? root.controlRadius : root.controlRadius + 3
    color: Theme.clear
    border.width: root.edge ? 2 : 2.5
    border.color: Theme.ring
}
