pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What would change, in three figures, and the names of what would leave. `highlight` is the mark whose figure the
// pointer rests on.
Column {
    id: root

    required property int added
    required property int leaving
    required property int moved
    required property string leavingLine
    readonly property string highlight: addedFigure.hovered ? "arriving" : leavingFigure.hovered ? "leaving"
                                        : movedFigure.hovered ? "moved" : ""

    readonly property real figuresWidth: addedFigure.fullWidth + leavingFigure.fullWidth + movedFigure.fullWidth + 44
    readonly property real shownWidth: addedFigure.implicitWidth + leavingFigure.implicitWidth + movedFigure.implicitWidth + 44
    property bool terse: false

    spacing: 3

    Row {
        spacing: 22
        ChangeFigure {
            id: addedFigure
            terse: root.terse
            mark: "arriving"
            count: root.added
            label: "added"
        }
        ChangeFigure {
            id: leavingFigure
            terse: root.terse
            mark: "leaving"
            count: root.leaving
            label: "leaving"
        }
        ChangeFigure {
            id: movedFigure
            terse: root.terse
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
