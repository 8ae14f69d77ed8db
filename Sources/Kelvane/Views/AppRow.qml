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
    required property RowList rows
    readonly property bool dragged: root.rows.dragRow === root.index
    readonly property real shift: root.rows.shift(root.index)
    property real dragOffset: 0

    component RowButton: IconButton {
        symbolSize: 14
        ink: Theme.text3
        Accessible.description: root.name
    }

    implicitHeight: root.rows.rowHeight
    z: root.dragged ? 1 : 0
    Accessible.role: Accessible.ListItem
    Accessible.name: root.name
    Accessible.description: root.isInstalled ? "" : "not installed"
    Accessible.focusable: true
    Accessible.focused: root.activeFocus
    // The keys come from the row itself or from one of its buttons.
    Keys.onPressed: event => root.rows.takeKey(event, root.index)

    transform: Translate {
        y: root.dragged ? root.dragOffset : root.shift
        Behavior on y {
            enabled: !root.dragged && root.shift !== 0
            NumberAnimation { duration: Theme.slideTime; easing.type: Easing.OutCubic }
        }
    }

    // What lifts the row off its list while it is dragged.
    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        visible: root.dragged
        radius: 8
        color: Theme.raised
        border.color: Theme.lineStrong
    }
    MouseArea {
        id: area
        property real startY: 0
        anchors.fill: parent
        hoverEnabled: true
        preventStealing: root.rows.ordered
        cursorShape: root.dragged ? Qt.ClosedHandCursor : Qt.ArrowCursor
        onPressed: mouse => {
            root.rows.currentIndex = root.index;
            root.rows.takePointer();
            area.startY = area.mapToItem(null, mouse.x, mouse.y).y;
        }
        onPositionChanged: mouse => {
            if (!area.pressed || !root.rows.ordered)
                return;
            const distance = area.mapToItem(null, mouse.x, mouse.y).y - area.startY;
            if (!root.dragged && Math.abs(distance) < 6)
                return;
            root.dragOffset = distance;
            root.rows.drag(root.index, distance);
        }
        onReleased: if (root.dragged) root.rows.drop()
        onCanceled: if (root.dragged) root.rows.drop()
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
        width: (tag.visible ? tag.x : buttons.x) - x - 8
        anchors.verticalCenter: parent.verticalCenter
        text: root.name
        color: root.isInstalled ? Theme.text : Theme.text2
        elide: Text.ElideRight
    }
    Tag {
        id: tag
        visible: !root.isInstalled
        anchors { right: buttons.left; rightMargin: 10; verticalCenter: parent.verticalCenter }
        text: root.isInstalled ? "" : "not installed"
    }
    Row {
        id: buttons
        anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
        spacing: 2

        RowButton {
            visible: root.rows.ordered
            enabled: !root.isFirst
            symbol: "chevron.up"
            text: "Move up"
            onClicked: root.rows.moveRequested(root.index, root.index - 1)
        }
        RowButton {
            visible: root.rows.ordered
            enabled: !root.isLast
            symbol: "chevron.down"
            text: "Move down"
            onClicked: root.rows.moveRequested(root.index, root.index + 1)
        }
        Item {
            width: 2
            height: 1
        }
        RowButton {
            symbol: "xmark"
            text: "Remove"
            onClicked: root.rows.removeRequested(root.index)
        }
    }
    Hairline {
        visible: !root.dragged
        x: 50
        y: root.height - 1
        width: root.width - 50
    }
    FocusRing {
        shown: root.activeFocus && !root.rows.byPointer
        edge: true
        anchors.margins: 3
    }
}
