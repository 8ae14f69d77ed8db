pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What only some of the tiles of a shelf need; each tile makes itself what it shows.
QtObject {
    readonly property Component line: TileLine {}
    readonly property Component plate: TilePlate {}
    readonly property Component pin: TilePin {}
    readonly property Component mark: TileMark {}
}
