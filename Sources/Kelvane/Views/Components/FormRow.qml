pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// One row of a form inside a card: the label with its explanation at the left, the control put into it at the right.
Item {
    id: root

    required property string label
    property string explanation: ""
    property real minimumHeight: root.explanation === "" ? 48 : 56
    property bool divided: false
    default property alias control: slot.data

    width: parent ? parent.width : implicitWidth
    // Beside more than two lines the control stands at the first.
    readonly property bool tall: note.lineCount > 1
    readonly property real room: root.width - slot.width - 54
    // Where the label would have to break its words, the control stands below it.
    readonly property bool stacked: root.room < Math.min(title.implicitWidth, 160)
    implicitHeight: root.stacked ? words.implicitHeight + slot.implicitHeight + 32
                    : Math.max(root.minimumHeight, words.implicitHeight + (root.tall ? 30 : 20), slot.implicitHeight + 16)

    Hairline {
        visible: root.divided
        x: 16
        width: root.width - 16
    }
    Column {
        id: words
        x: 16
        width: root.stacked ? root.width - 32 : Math.min(420, root.room)
        y: root.stacked ? 12 : root.tall ? 16 : (root.height - height) / 2
        spacing: root.tall ? 4 : 0

        Label {
            id: title
            width: parent.width
            text: root.label
            wrapMode: Text.Wrap
        }
        Label {
            id: note
            width: parent.width
            visible: root.explanation !== ""
            text: root.explanation
            type: Theme.caption
            color: Theme.text2
            wrapMode: Text.Wrap
        }
    }
    Row {
        id: slot
        anchors.right: parent.right
        anchors.rightMargin: 14
        y: root.stacked ? root.height - height - 12 : root.tall ? 12 : (root.height - height) / 2
        spacing: 10
    }
}
