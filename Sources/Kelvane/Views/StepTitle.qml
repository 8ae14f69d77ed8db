pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The title of a step with the text below it, centred.
Column {
    id: root

    required property string title
    property string text: ""
    property TypeStyle type: Theme.leadSmall

    spacing: 8
    leftPadding: 40
    rightPadding: 40

    Label {
        width: root.width - 80
        text: root.title
        type: Theme.display
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Label {
        width: root.width - 80
        visible: root.text !== ""
        text: root.text
        type: root.type
        color: Theme.text2
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
}
