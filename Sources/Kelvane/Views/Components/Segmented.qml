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

    // What was chosen here slides; what was so from the start, or changed elsewhere, is just there.
    property bool sliding: false
    function choose(index: int) {
        root.sliding = true;
        root.activated(index);
    }

    implicitWidth: row.implicitWidth + 4
    implicitHeight: Math.max(30, row.implicitHeight + 4)
    Accessible.role: Accessible.Grouping
    Accessible.name: root.label

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: Theme.shelf
        border.color: Theme.line
    }
    Rectangle {
        id: thumb
        readonly property Item current: root.currentIndex < segments.made ? segments.itemAt(root.currentIndex) : null
        x: row.x + (thumb.current?.x ?? 0)
        y: row.y
        width: thumb.current?.width ?? 0
        height: row.height
        radius: 6
        visible: thumb.current !== null
        color: Theme.raised
        border.color: Theme.lineStrong
        Behavior on x { enabled: root.sliding; NumberAnimation { duration: Theme.slideTime; easing.type: Easing.OutCubic } }
        Behavior on width { enabled: root.sliding; NumberAnimation { duration: Theme.slideTime; easing.type: Easing.OutCubic } }
    }
    Row {
        id: row
        x: 2
        anchors.verticalCenter: parent.verticalCenter

        Repeater {
            id: segments
            // A pane that is made piece by piece counts its segments before it has them.
            property int made: 0
            model: root.options
            onItemAdded: segments.made += 1
            onItemRemoved: segments.made -= 1
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
                onClicked: root.choose(segment.index)
                Accessible.name: segment.text
                Accessible.onPressAction: segment.clicked()
                Keys.onLeftPressed: root.choose(Math.max(0, root.currentIndex - 1))
                Keys.onRightPressed: root.choose(Math.min(root.options.length - 1, root.currentIndex + 1))

                background: Item {
                    FocusRing {
                        shown: segment.visualFocus
                        controlRadius: 6
                    }
                }
                StyledText {
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
