pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// A pane's title with its subtitle; a control put into it stands at the right, centred on both lines.
Item {
    id: root

    required property string title
    property string subtitle: ""
    default property alias trailing: slot.data

    implicitHeight: Math.max(words.height, slot.height)

    Column {
        id: words
        width: root.width - (slot.width > 0 ? slot.width + 24 : 0)
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        Label {
            width: parent.width
            text: root.title
            type: Theme.title
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: root.title
        }
        Label {
            width: parent.width
            visible: root.subtitle !== ""
            text: root.subtitle
            color: Theme.text2
            wrapMode: Text.Wrap
        }
    }
    Row {
        id: slot
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: root.subtitle === "" ? 0 : -1
    }
}
