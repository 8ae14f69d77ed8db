pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import Kelvane

// The content of the main window: the sidebar with the chosen pane, or the first run, and over both the toast.
FocusScope {
    id: root

    // What shows, which follows what is chosen.
    property bool firstRun: false
    // A new window is there before what it shows.
    property bool seen: false

    Component.onCompleted: root.firstRun = App.firstRun

    Connections {
        enabled: !root.seen
        target: root.Window.window
        function onFrameSwapped() {
            root.seen = true;
        }
    }

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

        Content {
            objectName: "content"
            anchors.fill: parent
            source: root.seen ? App.contentSource : ""
            focus: true
            onTurned: root.firstRun = App.firstRun
        }
        Toast {
            anchors.horizontalCenter: parent.horizontalCenter
            restingY: detail.height - height - (root.firstRun ? Theme.firstRunBarHeight + 8 : App.paneHasBar ? Theme.barHeight + 8 : 24)
        }
    }
}
