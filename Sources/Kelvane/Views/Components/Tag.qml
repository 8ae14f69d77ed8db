pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// A short word about a row: "active" in the accent, "same" in green, anything else in gray.
Rectangle {
    id: root

    required property string text
    property string kind: "plain"

    implicitWidth: label.implicitWidth + 14
    implicitHeight: Math.max(18, label.implicitHeight + 4)
    radius: height / 2
    color: root.kind === "active" ? Theme.accentSoft : root.kind === "same" ? Theme.addSoft : Theme.hover

    Label {
        id: label
        anchors.centerIn: parent
        text: root.text
        type: Theme.smallStrong
        color: root.kind === "active" ? Theme.accentText : root.kind === "same" ? Theme.add : Theme.text2
    }
}
