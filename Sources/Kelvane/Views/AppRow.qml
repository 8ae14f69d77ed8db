pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// One application of a profile's list.
Item {
    id: root

    required property int index
    required property string bundleID
    required property string name
    required property bool isInstalled
    required property bool isFirst
    required property bool isLast
    required property bool ordered
    required property bool focused
    required property bool dragged
    required property real shift
    property real dragOffset: 0

    signal keyUsed
    signal pressedAt
    signal draggedBy(real distance)
    signal dropped
    signal removeRequested
    signal moveRequested(int by)

    z: root.dragged ? 1 : 0
    Accessible.role: Accessible.ListItem
    Accessible.name: root.name
    Accessible.description: root.isInstalled ? "" : "not installed"
    Accessible.focusable: true
    Accessible.focused: root.activeFocus
    // The keys come from the row itself or from one of its buttons.
    Keys.onPressed: event => {
        const moves = root.ordered && (event.modifiers & Qt.AltModifier) !== 0;
        event.accepted = true;
        root.keyUsed();
        if (event.key === Qt.Key_Delete || event.key === Qt.Key_Backspace)
            root.removeRequested();
        else if (moves && event.key === Qt.Key_Up)
            root.moveRequested(-1);
        else if (moves && event.key === Qt.Key_Down)
            root.moveRequested(1);
        else
            event.accepted = false;
    }

    transform: Translate {
        y: root.dragged ? root.dragOffset : root.shift
        Behavior on y {
            enabled: !root.dragged && root.shift !== 0
            NumberAnimation { duration: Theme.slideTime; easing.type: Easing.OutCubic }
        }
    }

    Loader {
        anchors.fill: parent
        anchors.margins: 1
        active: root.dragged
        source: "DraggedPlate.qml"
    }
    MouseArea {
        id: area
        property real startY: 0
        anchors.fill: parent
        hoverEnabled: true
        preventStealing: root.ordered
        cursorShape: root.dragged ? Qt.ClosedHandCursor : Qt.ArrowCursor
        onPressed: mouse => {
            root.pressedAt();
            area.startY = area.mapToItem(null, mouse.x, mouse.y).y;
        }
        onPositionChanged: mouse => {
            if (!area.pressed || !root.ordered)
                return;
            const distance = area.mapToItem(null, mouse.x, mouse.y).y - area.startY;
            if (!root.dragged && Math.abs(distance) < 6)
                return;
            root.dragOffset = distance;
            root.draggedBy(distance);
        }
        onReleased: if (root.dragged) root.dropped()
        onCanceled: if (root.dragged) root.dropped()
    }
    AppIcon {
        x: 13
        anchors.verticalCenter: parent.verticalCenter
        bundleID: root.bundleID
        name: root.name
        dimmed: !root.isInstalled
    }
    StyledText {
        x: 50
        width: (tag.active ? tag.x : buttons.x) - x - 8
        anchors.verticalCenter: parent.verticalCenter
        text: root.name
        color: root.isInstalled ? Theme.text : Theme.text2
        elide: Text.ElideRight
    }
    Loader {
        id: tag
        active: !root.isInstalled
        anchors { right: buttons.left; rightMargin: 10; verticalCenter: parent.verticalCenter }
        source: "NotInstalledTag.qml"
    }
    AppRowButtons {
        id: buttons
        anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
        name: root.name
        ordered: root.ordered
        isFirst: root.isFirst
        isLast: root.isLast
        onMoveRequested: by => root.moveRequested(by)
        onRemoveRequested: root.removeRequested()
    }
    Hairline {
        visible: !root.dragged
        x: 50
        y: root.height - 1
        width: root.width - 50
    }
    FocusRing {
        shown: root.focused
        edge: true
        anchors.margins: 3
    }
}
