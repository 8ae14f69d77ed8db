pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import Kelvane

// The applications of one list. Where their order counts they are moved by dragging, by their buttons, or with Alt and
// the arrow keys; Delete takes one out.
ListView {
    id: root

    required property string name
    required property RowListModel apps
    required property bool ordered
    property int dragRow: -1
    property int dropRow: -1
    // The ring shows where the keys go, to those who use them.
    property bool byPointer: false
    readonly property real rowHeight: 44

    signal removeRequested(int row)
    signal moveRequested(int from, int to)

    implicitHeight: root.count * root.rowHeight
    interactive: false
    keyNavigationEnabled: true
    model: root.apps
    currentIndex: -1
    activeFocusOnTab: root.count > 0
    highlightMoveDuration: 0
    Accessible.role: Accessible.List
    Accessible.name: root.name
    onActiveFocusChanged: {
        if (!activeFocus)
            root.byPointer = false;
        else if (root.currentIndex < 0 && root.Window.activeFocusItem === root)
            root.currentIndex = 0;
    }

    delegate: AppRow {
        width: root.width
        height: root.rowHeight
        ordered: root.ordered
        focused: activeFocus && !root.byPointer
        dragged: root.dragRow === index
        shift: root.dragRow < 0 || root.dragRow === index ? 0
             : index > root.dragRow && index <= root.dropRow ? -root.rowHeight
             : index < root.dragRow && index >= root.dropRow ? root.rowHeight : 0
        onKeyUsed: root.byPointer = false
        onPressedAt: {
            root.byPointer = true;
            root.currentIndex = index;
            root.forceActiveFocus(Qt.MouseFocusReason);
        }
        onDraggedBy: distance => {
            root.dragRow = index;
            root.dropRow = Math.max(0, Math.min(root.count - 1, index + Math.round(distance / root.rowHeight)));
        }
        onDropped: {
            const from = root.dragRow;
            const to = root.dropRow;
            root.dragRow = -1;
            if (from >= 0 && from !== to)
                root.moveRequested(from, to);
        }
        onRemoveRequested: root.removeRequested(index)
        onMoveRequested: by => root.moveRequested(index, index + by)
    }
}
