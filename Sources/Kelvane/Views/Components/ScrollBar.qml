pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// A slim sign of where one is; it fades when nothing moves.
T.ScrollBar {
    id: root

    implicitWidth: 10
    padding: 2
    minimumSize: 0.08
    visible: root.size < 1

    contentItem: Rectangle {
        implicitWidth: 6
        radius: 3
        color: Theme.trackOff
        opacity: root.active || root.hovered ? 1 : 0
        Behavior on opacity { NumberAnimation { duration: Theme.growTime } }
    }
}
