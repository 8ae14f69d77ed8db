pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// One of the two ends of a stepper.
Item {
    id: root

    required property string symbol
    required property bool down
    required property bool over
    required property bool usable

    implicitWidth: 28
    implicitHeight: 28

    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        radius: 7
        visible: root.usable && (root.down || root.over)
        color: root.down ? Theme.controlPress : Theme.controlHover
    }
    Symbol {
        anchors.centerIn: parent
        name: root.symbol
        size: 14
        opacity: root.usable ? 1 : 0.35
    }
}
