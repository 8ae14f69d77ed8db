import QtQuick

// The measures of tiles on a plate of a given width; many tiles are drawn denser. Two plates with the same numbers have
// the same columns.
QtObject {
    id: root

    required property real plateWidth
    required property bool dense
    readonly property real narrowest: root.dense ? 58 : 72
    readonly property int columns: Math.max(4, Math.floor((root.plateWidth - 48) / root.narrowest))
    readonly property real cell: Math.floor((root.plateWidth - 48) / root.columns)
    readonly property real height: root.icon + 4 + Theme.small.lineHeight + (root.dense ? 2 : 4)
    readonly property real icon: root.dense ? 42 : 52
    readonly property real mark: root.dense ? 16 : 18
    // From the icon's left edge.
    readonly property real markX: root.dense ? 33 : 40
}
