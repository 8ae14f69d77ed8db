pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// A drawn Dock: tiles on a plate, in rows. It never scrolls; it is as high as its tiles need.
Rectangle {
    id: root

    required property RowListModel tiles
    required property bool suggested
    property bool dense: false
    property string emptyText: ""
    // One of the marks; tiles without it step back.
    property string highlight: ""
    readonly property Tile pointed: pointer.hovered ? root.tileAt(pointer.point.position) : null
    readonly property color plate: root.suggested ? Theme.surface : Theme.shelf
    // A tile is seen to arrive when it joins those that were there from the start.
    property bool joined: false
    // A suggestion follows an edit at once; the Dock as it is takes its new order visibly.
    readonly property int moveTime: root.suggested ? Theme.tileTime : Theme.applyTime
    readonly property int moveCurve: root.suggested ? Easing.OutCubic : Easing.InOutCubic

    component ShelfTile: Tile {
        id: tile

        property Item line: null
        property Item ground: null
        property Item pin: null
        property Item changeMark: null
        property bool completed: false

        cell: parts.cell
        cellHeight: parts.height
        icon: parts.icon
        plate: root.plate
        onSpacerChanged: tile.line = tile.line ?? parts.line.createObject(tile, { tile: tile })
        onArrivingChanged: tile.ground = tile.ground ?? parts.plate.createObject(tile, { tile: tile })
        onPinnedChanged: tile.pin = tile.pin ?? parts.pin.createObject(tile, { tile: tile })
        onChangesChanged: tile.changeMark = tile.changeMark ?? parts.mark.createObject(tile, { tile: tile, isNew: tile.completed })
        Component.onCompleted: tile.completed = true
    }

    function tileAt(place: point): Tile {
        return flow.childAt(place.x - flow.x, place.y - flow.y) as Tile;
    }

    implicitHeight: Math.max(parts.height, flow.height) + 17
    radius: 18
    color: root.plate
    border.width: root.suggested ? 1 : 0
    border.color: Theme.line
    Accessible.role: Accessible.List

    Connections {
        target: root.tiles as QtObject
        function onRowsInserted() {
            root.joined = true;
        }
    }
    TileParts {
        id: parts
        plateWidth: root.width
        dense: root.dense
    }
    Flow {
        id: flow
        x: 16
        y: 9
        width: root.width - 32

        Repeater {
            model: root.tiles
            onItemRemoved: (index, item) => {
                // One that goes before it was made leaves nothing behind.
                if (item && root.visible && root.moveTime > 0)
                    departing.createObject(root, {
                        x: flow.x + item.x, y: flow.y + item.y, name: item.name, iconSource: item.iconSource,
                        accessibleName: "", mark: item.mark, pinned: item.pinned, spacer: item.spacer
                    });
            }
            delegate: ShelfTile {
                faded: root.highlight !== "" && !mark.startsWith(root.highlight)
            }
        }
        // A tile that has to make room while it arrives goes on arriving.
        move: Transition {
            NumberAnimation { properties: "x,y"; duration: root.moveTime; easing.type: root.moveCurve }
            NumberAnimation { property: "presence"; to: 1; duration: root.moveTime; easing.type: root.moveCurve }
        }
        add: Transition {
            enabled: root.joined
            NumberAnimation { property: "presence"; from: 0; to: 1; duration: root.moveTime; easing.type: root.moveCurve }
        }
    }
    // A tile that is no longer in the list: it fades where it stood while the others close the gap.
    Component {
        id: departing

        ShelfTile {
            id: leftTile
            Accessible.ignored: true
            NumberAnimation on opacity {
                to: 0
                duration: root.moveTime
                easing.type: root.moveCurve
                onFinished: leftTile.destroy()
            }
        }
    }
    Label {
        anchors.centerIn: parent
        width: Math.min(implicitWidth, root.width - 48)
        visible: root.tiles.count === 0 && root.emptyText !== ""
        text: root.emptyText
        type: Theme.caption
        color: Theme.text2
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
    HoverHandler {
        id: pointer
    }
    Hint {
        parent: root.pointed ?? root
        text: root.pointed === null ? "" : root.pointed.name
        shown: root.pointed !== null && !root.pointed.spacer
    }
}
