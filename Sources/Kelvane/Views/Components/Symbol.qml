pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// One of the symbols, tinted. Its weight follows from its size; the discs of the change marks ask for "mark".
Image {
    id: root

    required property string name
    property real size: 16
    property color tint: Theme.text2
    property string weight: root.size < 15 ? "small" : "regular"

    width: root.size
    height: root.size
    sourceSize.width: root.size * Theme.pixelRatio
    sourceSize.height: root.size * Theme.pixelRatio
    source: root.name === "" ? "" : "image://symbol/" + root.name + "/" + root.weight + "/" + root.tint
}
