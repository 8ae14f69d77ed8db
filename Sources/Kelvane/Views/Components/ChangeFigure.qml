pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// One figure of the change summary, with the disc that is its legend.
Item {
    id: root

    required property string mark
    required property int count
    required property string label
    // Only the number: for bars without room for words.
    property bool terse: false
    readonly property alias hovered: hover.hovered

    // What is on show: it runs down to none when the change was made.
    property real shownCount: root.count
    Behavior on shownCount {
        id: counting
        enabled: counting.targetValue === 0
        NumberAnimation { duration: Theme.applyTime; easing.type: Easing.InOutCubic }
    }

    readonly property real fullWidth: words.x + words.implicitWidth

    implicitWidth: root.terse ? figure.x + figure.width : root.fullWidth
    implicitHeight: Math.max(18, Theme.figure.lineHeight)
    Accessible.role: Accessible.StaticText
    Accessible.name: root.count + " " + root.label

    ChangeMark {
        id: disc
        anchors.verticalCenter: parent.verticalCenter
        mark: root.mark
        idle: root.count === 0
    }
    StyledText {
        id: figure
        x: 25
        anchors.verticalCenter: parent.verticalCenter
        text: Math.round(root.shownCount)
        type: root.count === 0 ? Theme.figureZero : Theme.figure
        color: root.count === 0 ? Theme.text3 : Theme.text
    }
    StyledText {
        id: words
        x: figure.x + figure.width + 7
        anchors.verticalCenter: parent.verticalCenter
        visible: !root.terse
        text: root.label
        color: Theme.text2
    }
    HoverHandler {
        id: hover
    }
    Hint {
        text: root.label
        shown: root.terse && hover.hovered
    }
}
