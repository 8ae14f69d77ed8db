pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What the tiles on a plate share: their measures, and what only some of them need; each tile makes itself what it shows.
// Two plates of the same width and density have the same columns.
QtObject {
    id: root

    required property real plateWidth
    required property bool dense
    readonly property int columns: Math.max(4, Math.floor((root.plateWidth - 48) / (root.dense ? 58 : 72)))
    readonly property real cell: Math.floor((root.plateWidth - 48) / root.columns)
    readonly property real icon: root.dense ? 42 : 52
    readonly property real height: root.icon + 4 + Theme.small.lineHeight + (root.dense ? 2 : 4)

    // The sign of a spacer, on a whole pixel of the screen.
    readonly property Component line: Rectangle {
        required property Tile tile

        x: Math.floor(7.5 * Theme.pixelRatio) / Theme.pixelRatio
        y: 11
        width: 1
        height: root.icon - 16
        visible: tile.spacer
        color: Theme.lineStrong
    }

    // What lies behind a tile while it is one that arrives.
    readonly property Component plate: Rectangle {
        required property Tile tile

        x: 2
        width: tile.width - 4
        height: tile.height
        z: -1
        radius: 14
        color: Theme.addSoft
        opacity: tile.arriving ? 1 : 0
        visible: opacity > 0
        Behavior on opacity { NumberAnimation { duration: Theme.fadeTime } }
    }

    // The sign on a tile that is always there, biting into its icon.
    readonly property Component pin: Disc {
        required property Tile tile

        visible: tile.pinned
        x: tile.iconX - 2
        y: root.icon - 13
        name: "pin.fill"
        tint: Theme.text2
        fill: tile.rim
    }

    // What becomes of a tile. A mark that goes fades as it was.
    readonly property Component mark: ChangeMark {
        id: changeMark

        required property Tile tile
        // The tile had none before, so this one comes in visibly.
        required property bool isNew
        property bool completed: !changeMark.isNew

        mark: tile.lastMark
        x: tile.iconX + (root.dense ? 33 : 40) - rimWidth
        y: 2 - rimWidth
        size: root.dense ? 16 : 18
        rim: tile.rim
        opacity: changeMark.completed && tile.changes ? 1 : 0
        visible: opacity > 0
        Behavior on opacity {
            SequentialAnimation {
                PauseAnimation { duration: changeMark.tile.changes ? 80 : 0 }
                NumberAnimation { duration: Theme.fadeTime }
            }
        }
        Component.onCompleted: changeMark.completed = true
    }
}
