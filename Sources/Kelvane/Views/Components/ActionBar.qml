pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The bar below a pane: what is put into `leading` at the left, and the buttons at the right. While something runs, a
// runner travels on its hairline.
Item {
    id: root

    property bool running: false
    property real margin: 32
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
    IndeterminateBar {
        width: root.width
        visible: root.running
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
