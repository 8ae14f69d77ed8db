pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What moves an application one place or takes it out of its list.
Row {
    id: root

    required property string name
    required property bool ordered
    required property bool isFirst
    required property bool isLast

    signal moveRequested(int by)
    signal removeRequested

    spacing: 2

    IconButton {
        visible: root.ordered
        enabled: !root.isFirst
        symbol: "chevron.up"
        symbolSize: 14
        ink: Theme.text3
        text: "Move up"
        Accessible.description: root.name
        onClicked: root.moveRequested(-1)
    }
    IconButton {
        visible: root.ordered
        enabled: !root.isLast
        symbol: "chevron.down"
        symbolSize: 14
        ink: Theme.text3
        text: "Move down"
        Accessible.description: root.name
        onClicked: root.moveRequested(1)
    }
    Item {
        width: 2
        height: 1
    }
    IconButton {
        symbol: "xmark"
        symbolSize: 14
        ink: Theme.text3
        text: "Remove"
        Accessible.description: root.name
        onClicked: root.removeRequested()
    }
}
