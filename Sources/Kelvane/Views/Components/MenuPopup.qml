pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// The menu under a menu button.
T.Popup {
    id: root

    // The button's delegate model; its type has no name in QML.
    required property var choices
    required property int current
    required property real minimumWidth

    padding: 5
    margins: 8
    width: Math.max(root.minimumWidth, 200)
    implicitHeight: contentItem.implicitHeight + 10

    background: Rectangle {
        radius: 11
        color: Theme.raised
        border.color: Theme.lineStrong
        Shadow {
            spread: 20
            drop: 6
            cornerRadius: 11
        }
    }
    contentItem: ListView {
        implicitHeight: Math.min(contentHeight, 420)
        clip: contentHeight > height
        model: root.choices
        currentIndex: root.current
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
    }
}
