pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What would change, in three figures with the discs that are the legend of the marks, and the names of what would
// leave. `highlight` is the mark whose figure the pointer rests on; without room for words only the numbers show.
Column {
    id: root

    required property int added
    required property int leaving
    required property int moved
    property string leavingLine: ""
    property bool terse: false
    readonly property string highlight: addedFigure.hovered ? "arriving" : leavingFigure.hovered ? "leaving"
                                        : movedFigure.hovered ? "moved" : ""
    readonly property real figuresWidth: addedFigure.fullWidth + leavingFigure.fullWidth + movedFigure.fullWidth + 44
    readonly property real shownWidth: addedFigure.implicitWidth + leavingFigure.implicitWidth + movedFigure.implicitWidth + 44

    component ChangeFigure: Item {
        id: change

        required property string mark
        required property int count
        required property string label
        readonly property alias hovered: hover.hovered
        readonly property real fullWidth: words.x + words.implicitWidth
        // What is on show: it runs down to none when the change was made.
        property real shownCount: change.count
        Behavior on shownCount {
            id: counting
            enabled: counting.targetValue === 0
            NumberAnimation { duration: Theme.applyTime; easing.type: Easing.InOutCubic }
        }

        implicitWidth: root.terse ? figure.x + figure.width : change.fullWidth
        implicitHeight: Math.max(18, Theme.figure.lineHeight)
        Accessible.role: Accessible.StaticText
        Accessible.name: change.count + " " + change.label

        ChangeMark {
            anchors.verticalCenter: parent.verticalCenter
            mark: change.mark
            idle: change.count === 0
        }
        StyledText {
            id: figure
            x: 25
            anchors.verticalCenter: parent.verticalCenter
            text: Math.round(change.shownCount)
            type: change.count === 0 ? Theme.figureZero : Theme.figure
            color: change.count === 0 ? Theme.text3 : Theme.text
        }
        StyledText {
            id: words
            x: figure.x + figure.width + 7
            anchors.verticalCenter: parent.verticalCenter
            visible: !root.terse
            text: change.label
            color: Theme.text2
        }
        HoverHandler {
            id: hover
        }
        Hint {
            text: change.label
            shown: root.terse && hover.hovered
        }
    }

    spacing: 3

    Row {
        spacing: 22
        ChangeFigure {
            id: addedFigure
            mark: "arriving"
            count: root.added
            label: "added"
        }
        ChangeFigure {
            id: leavingFigure
            mark: "leaving"
            count: root.leaving
            label: "leaving"
        }
        ChangeFigure {
            id: movedFigure
            mark: "moved"
            count: root.moved
            label: "moved"
        }
    }
    Label {
        width: root.width
        visible: root.leavingLine !== ""
        text: root.leavingLine
        type: Theme.caption
        color: Theme.text2
        elide: Text.ElideRight
        maximumLineCount: 1
    }
}
