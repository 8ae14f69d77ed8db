pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What becomes of a tile. A mark that goes fades as it was.
ChangeMark {
    id: root

    required property Tile tile
    // The tile had none before, so this one comes in visibly.
    required property bool isNew
    property bool completed: !root.isNew

    mark: root.tile.lastMark
    x: root.tile.iconX + root.tile.metrics.markX - root.rimWidth
    y: 2 - root.rimWidth
    size: root.tile.metrics.mark
    rim: root.tile.rim
    opacity: root.completed && root.tile.changes ? 1 : 0
    visible: opacity > 0
    Behavior on opacity {
        SequentialAnimation {
            PauseAnimation { duration: root.tile.changes ? 80 : 0 }
            NumberAnimation { duration: Theme.fadeTime }
        }
    }
    Component.onCompleted: root.completed = true
}
