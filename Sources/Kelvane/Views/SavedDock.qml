pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The Dock as it was saved: its icons on a plate, in two rows where one is not enough.
Rectangle {
    id: root

    readonly property bool twoRows: FirstRunViewModel.savedSecondIcons.length > 0

    implicitHeight: (root.twoRows ? 88 : 44) + 20
    radius: 18
    color: Theme.shelf
    Accessible.role: Accessible.Graphic
    Accessible.name: "Your saved Dock"
    Accessible.description: FirstRunViewModel.savedNames

    Column {
        anchors.centerIn: parent
        spacing: 4
        IconStrip {
            anchors.horizontalCenter: parent.horizontalCenter
            size: 40
            gap: 2
            width: Math.min(implicitWidth, root.width - 40)
            icons: FirstRunViewModel.savedFirstIcons
        }
        IconStrip {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: root.twoRows
            size: 40
            gap: 2
            width: Math.min(implicitWidth, root.width - 40)
            icons: FirstRunViewModel.savedSecondIcons
        }
    }
}
