pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// A slice of a card, for lists that make only the rows in view: the first slice has the upper corners, the last the
// lower ones.
Item {
    id: root

    required property bool first
    required property bool last
    property real radius: 12

    clip: true

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: root.first ? 0 : -root.radius - 1
        anchors.bottomMargin: root.last ? 0 : -root.radius - 1
        radius: root.radius
        color: Theme.surface
        border.color: Theme.line
    }
}
