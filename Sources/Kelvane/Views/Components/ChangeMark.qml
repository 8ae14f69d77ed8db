pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The disc that says what becomes of a tile. `rim` is the colour of the plate behind it, `mark` one of "arriving",
// "leaving", "movedForward", "movedBack" and, in the summary, "moved"; `idle` is its look when there is nothing of it.
Item {
    id: root

    required property string mark
    property color rim: Theme.clear
    property real size: 18
    property bool idle: false

    width: root.size
    height: root.size

    Rectangle {
        anchors.fill: parent
        anchors.margins: -2
        radius: width / 2
        visible: root.rim.a > 0
        color: root.rim
    }
    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: root.idle ? Theme.selected : root.mark === "arriving" ? Theme.add
               : root.mark === "leaving" ? Theme.leave : Theme.accentSoft
    }
    Symbol {
        anchors.centerIn: parent
        size: root.size === 18 ? 11 : 10
        weight: "mark"
        name: root.mark === "arriving" ? "plus" : root.mark === "leaving" ? "minus"
              : root.mark === "movedForward" ? "arrow.left" : root.mark === "movedBack" ? "arrow.right"
              : "arrow.left.arrow.right"
        tint: root.idle ? Theme.text3 : root.mark === "arriving" || root.mark === "leaving" ? Theme.surface
              : Theme.accentText
    }
}
