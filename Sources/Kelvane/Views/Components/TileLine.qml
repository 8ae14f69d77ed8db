pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The sign of a spacer.
Rectangle {
    id: root

    required property Tile tile

    // On a whole pixel of the screen.
    x: Math.floor(7.5 * Theme.pixelRatio) / Theme.pixelRatio
    y: 11
    width: 1
    height: root.tile.metrics.icon - 16
    visible: root.tile.spacer
    color: Theme.lineStrong
}
