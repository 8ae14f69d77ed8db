pragma ComponentBehavior: Bound
import QtQuick

// A number in two sizes.
Item {
    id: root

    required property int index

    height: 56

    Rectangle {
        x: 48
        width: root.width - 96
        height: root.height - 1
        color: "#EAEDFC"
    }
    Text {
        x: 108
        y: 8
        text: "Application " + root.index
        font.pixelSize: 13
    }
    Text {
        x: 108
        y: 28
        text: root.index + " minutes"
        font.pixelSize: 12
    }
}
