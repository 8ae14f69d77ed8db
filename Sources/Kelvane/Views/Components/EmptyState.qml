pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What a pane shows while it has nothing to list.
Column {
    id: root

    required property string symbol
    required property string title
    required property string text

    spacing: 4

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: root.symbol
        size: 40
        tint: Theme.disabled
    }
    Item { width: 1; height: 10 }
    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.title
        type: Theme.figure
    }
    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.text
        color: Theme.text2
    }
}
