pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The soft edge under its parent, `drop` further down.
BorderImage {
    id: root

    required property int spread
    required property int drop
    required property int cornerRadius
    // What has not been shown yet has no shadow to draw.
    property bool wanted: true

    anchors.fill: parent
    anchors.margins: -root.spread
    anchors.topMargin: root.drop - root.spread
    anchors.bottomMargin: -root.drop - root.spread
    z: -1
    source: !root.wanted ? "" : "image://shadow/" + root.spread + "/" + root.cornerRadius + "/" + Theme.shadow
    border.left: 2 * root.spread + root.cornerRadius
    border.right: border.left
    border.top: border.left
    border.bottom: border.left
}
