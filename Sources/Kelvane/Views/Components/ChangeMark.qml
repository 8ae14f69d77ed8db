pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The disc that says what becomes of a tile. `rim` is the colour of the plate behind it, `mark` one of "arriving",
// "leaving", "movedForward", "movedBack" and, in the summary, "moved"; `idle` is its look when there is nothing of it.
Disc {
    id: root

    required property string mark
    property bool idle: false

    name: root.mark === "arriving" ? "plus" : root.mark === "leaving" ? "minus"
          : root.mark === "movedForward" ? "arrow.left" : root.mark === "movedBack" ? "arrow.right"
          : "arrow.left.arrow.right"
    fill: root.idle ? Theme.selected : root.mark === "arriving" ? Theme.add
          : root.mark === "leaving" ? Theme.leave : Theme.accentSoft
    tint: root.idle ? Theme.text3 : root.mark === "arriving" || root.mark === "leaving" ? Theme.surface
          : Theme.accentText
}
