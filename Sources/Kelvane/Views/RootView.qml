pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The content of the main window: the sidebar with the chosen pane, or the first run, and over both the toast.
FocusScope {
    id: root

    readonly property bool firstRun: App.firstRun
    property bool opened: false

    Sidebar {
        id: sidebar
        visible: !root.firstRun
        height: root.height
    }
    Item {
        id: detail
        x: root.firstRun ? 0 : sidebar.width
        width: root.width - x
        height: root.height

        Loader {
            id: content
            objectName: "content"
            anchors.fill: parent
            source: App.contentSource
            // A new window is there before what it shows.
            asynchronous: !root.opened
            focus: true
            onLoaded: {
                root.opened = true;
                fade.restart();
            }

            NumberAnimation {
                id: fade
                target: content
                property: "opacity"
                from: 0
                to: 1
                duration: Theme.fadeTime
                easing.type: Easing.OutQuad
            }
        }
        Toast {
            anchors.horizontalCenter: parent.horizontalCenter
            restingY: detail.height - height - (root.firstRun ? Theme.firstRunBarHeight + 8 : App.paneHasBar ? Theme.barHeight + 8 : 24)
        }
    }
}
