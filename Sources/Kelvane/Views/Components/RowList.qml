pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window

// A list that takes the keys: the arrow keys go from row to row, Delete or Backspace asks to take one out. Where the order
// counts, rows are moved by dragging or with Alt and the arrow keys. A row hands its keys and its drags to the list.
ListView {
    id: root

    required property string name
    property bool ordered: false
    property real rowHeight: 44
    property int dragRow: -1
    property int dropRow: -1
    // The ring shows where the keys go, to those who use them.
    property bool byPointer: false

    signal removeRequested(int row)
    signal moveRequested(int from, int to)

    function takePointer() {
        root.byPointer = true;
        root.forceActiveFocus(Qt.MouseFocusReason);
    }
    function takeKey(event: KeyEvent, row: int) {
        const moves = root.ordered && (event.modifiers & Qt.AltModifier) !== 0;
        event.accepted = true;
        root.byPointer = false;
        if (event.key === Qt.Key_Delete || event.key === Qt.Key_Backspace)
            root.removeRequested(row);
        else if (moves && event.key === Qt.Key_Up)
            root.moveRequested(row, row - 1);
        else if (moves && event.key === Qt.Key_Down)
            root.moveRequested(row, row + 1);
        else
            event.accepted = false;
    }
    function drag(row: int, distance: real) {
        root.dragRow = row;
        root.dropRow = Math.max(0, Math.min(root.count - 1, row + Math.round(distance / root.rowHeight)));
    }
    function drop() {
        const from = root.dragRow;
        const to = root.dropRow;
        root.dragRow = -1;
        if (from >= 0 && from !== to)
            root.moveRequested(from, to);
    }
    // How far a row gives way to the one that is dragged.
    function shift(row: int): real {
        return root.dragRow < 0 || root.dragRow === row ? 0
               : row > root.dragRow && row <= root.dropRow ? -root.rowHeight
               : row < root.dragRow && row >= root.dropRow ? root.rowHeight : 0;
    }

    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: true
    currentIndex: -1
    activeFocusOnTab: root.count > 0
    highlightMoveDuration: 0
    Accessible.role: Accessible.List
    Accessible.name: root.name
    Keys.onPressed: event => root.takeKey(event, root.currentIndex)
    onActiveFocusChanged: {
        if (!activeFocus)
            root.byPointer = false;
        else if (root.currentIndex < 0 && root.Window.activeFocusItem === root)
            root.currentIndex = 0;
    }
}
