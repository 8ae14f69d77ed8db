pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What lies behind a tile while it is one that arrives.
Rectangle {
    id: root

    required property Tile tile

    anchors.fill: parent
    anchors.leftMargin: 2
    anchors.rightMargin: 2
    z: -1
    radius: 14
    color: Theme.addSoft
    opacity: root.tile.arriving ? 1 : 0
    visible: opacity > 0
    Behavior on opacity { NumberAnimation { duration: Theme.fadeTime } }
}
