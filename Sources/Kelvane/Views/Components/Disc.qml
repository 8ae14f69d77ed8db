pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// A symbol on a disc, drawn as one image because there are many. The rim lies outside `size`; none where it is clear.
Image {
    id: root

    property string symbol
    property real size: 18
    property real symbolSize: 11
    property string weight: "mark"
    property color ink
    property color fill
    property color rim: Theme.clear
    readonly property real rimWidth: root.rim.a > 0 ? 2 : 0

    width: root.size + 2 * root.rimWidth
    height: root.width
    sourceSize.width: root.width * Theme.pixelRatio
    sourceSize.height: root.width * Theme.pixelRatio
    source: "image://disc/" + root.symbol + "/" + root.weight + "/" + root.symbolSize / root.width + "/" + root.rimWidth / root.width
            + "/" + root.ink + "/" + root.fill + "/" + root.rim
}
