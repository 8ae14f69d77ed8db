pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// A choice of one among two or three, all in sight. `activated` reports the user's choice; arrow keys choose, too.
FocusScope {
    id: root

    required property list<string> options
    required property int currentIndex
    required property string label
    signal activated(int index)

    implicitWidth: row.implicitWidth + 4
    implicitHeight: Math.max(30, row.implicitHeight + 6)
    Accessible.role: Accessible.Grouping
    Accessible.name: root.label

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: Theme.shelf
        border.color: Theme.line
    }
    Row {
        id: row
        x: 2
        anchors.verticalCenter: parent.verticalCenter

        Repeater {
            model: root.options
            delegate: T.RadioButton {
                id: segment

                required property int index
                required property string modelData
                readonly property bool current: segment.index === root.currentIndex

                text: segment.modelData
                implicitWidth: words.implicitWidth + 24
                implicitHeight: Math.max(26, words.implicitHeight + 6)
                focusPolicy: Qt.StrongFocus
                checkable: false
                checked: segment.current
                focus: segment.current
                onClicked: root.activated(segment.index)
                Accessible.name: segment.text
                Accessible.onPressAction: segment.clicked()
                Keys.onLeftPressed: root.activated(Math.max(0, root.currentIndex - 1))
                Keys.onRightPressed: root.activated(Math.min(root.options.length - 1, root.currentIndex + 1))

                background: Rectangle {
                    radius: 6
                    visible: segment.current
                    color: Theme.raised
                    border.color: Theme.lineStrong
                    FocusRing {
                        shown: segment.visualFocus
                        controlRadius: 6
                    }
                }
                Words {
                    id: words
                    anchors.centerIn: parent
                    text: segment.text
                    type: segment.current ? Theme.captionStrong : Theme.captionMedium
                    color: segment.current ? Theme.text : Theme.text2
                }
            }
        }
    }
}
