pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// A tile with all that its shelf has for it.
Tile {
    id: root

    required property TileParts parts
    property Item line: null
    property Item plateItem: null
    property Item pin: null
    property Item markItem: null
    property bool completed: false

    onSpacerChanged: root.line = root.line ?? root.parts.line.createObject(root, { tile: root })
    onArrivingChanged: root.plateItem = root.plateItem ?? root.parts.plate.createObject(root, { tile: root })
    onPinnedChanged: root.pin = root.pin ?? root.parts.pin.createObject(root, { tile: root })
    onChangesChanged: root.markItem = root.markItem ?? root.parts.mark.createObject(root, { tile: root, isNew: root.completed })
    Component.onCompleted: root.completed = true
}
