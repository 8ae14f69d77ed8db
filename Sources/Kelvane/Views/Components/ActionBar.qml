pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The bar below a pane: what is put into `leading` at the left, and the buttons at the right. While something runs whose
// end cannot be told, a short line travels along its hairline, or, where motion is reduced, a tinted line lies there.
Item {
    id: root

    required property bool running
    readonly property real margin: 32
    default property alias buttons: slot.data
    property alias leading: leadingSlot.data
    readonly property real leadingWidth: root.width - slot.width - 2 * root.margin - 24

    implicitHeight: Theme.barHeight

    Rectangle {
        anchors.fill: parent
        color: Theme.window
    }
    Hairline {
        width: root.width
    }
    Rectangle {
        width: root.width
        height: 2
        visible: root.running
        clip: true
        color: Theme.accentSoft
        Accessible.role: Accessible.ProgressBar
        Accessible.name: "Updating Dock…"

        Rectangle {
            id: runner
            width: root.width * 0.32
            height: 2
            visible: !Theme.reducedMotion
            color: Theme.accent
            NumberAnimation on x {
                running: root.running && runner.visible
                loops: Animation.Infinite
                from: -runner.width
                to: root.width
                duration: 1200
                easing.type: Easing.InOutSine
            }
        }
    }
    Item {
        id: leadingSlot
        x: root.margin
        y: 1
        width: root.leadingWidth
        height: root.height - 1
    }
    Row {
        id: slot
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        anchors.verticalCenter: parent.verticalCenter
        spacing: 10
    }
}
