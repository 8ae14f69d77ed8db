pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The sign on a tile that is always there, biting into its icon.
Disc {
    id: root

    required property Tile tile

    visible: root.tile.pinned
    x: root.tile.iconX - 2
    y: root.tile.metrics.icon - 13
    size: 18
    symbol: "pin.fill"
    symbolSize: 11
    weight: "regular"
    ink: Theme.text2
    fill: root.tile.rim
}
