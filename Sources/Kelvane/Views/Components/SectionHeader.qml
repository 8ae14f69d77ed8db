pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The title of a section with what it is for; at the right, what can be undone in it.
Item {
    id: root

    required property string title
    property string explanation: ""
    property string undoText: ""

    signal undoRequested

    implicitHeight: words.height

    Column {
        id: words
        width: root.width
        spacing: 2
        Label {
            text: root.title
            type: Theme.heading
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Label {
            width: parent.width
            visible: root.explanation !== ""
            text: root.explanation
            type: Theme.caption
            color: Theme.text2
            wrapMode: Text.Wrap
        }
    }
    PushButton {
        visible: root.undoText !== ""
        anchors.right: parent.right
        anchors.rightMargin: -10
        y: -5
        width: Math.min(implicitWidth, root.width - 160)
        text: root.undoText
        symbol: "arrow.uturn.backward.circle.fill"
        kind: PushButton.Quiet
        type: Theme.captionMedium
        onClicked: root.undoRequested()
    }
}
