pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The icon of an application, by its identifier or by a source that a view model made.
Image {
    id: root

    property string bundleID: ""
    property string name: ""
    property real size: 28
    property bool dimmed: false

    width: root.size
    height: root.size
    sourceSize.width: root.size * Theme.pixelRatio
    sourceSize.height: root.size * Theme.pixelRatio
    source: App.iconSource(root.bundleID, root.name)
    asynchronous: true
    opacity: root.dimmed ? 0.4 : 1
}
