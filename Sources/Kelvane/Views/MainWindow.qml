pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import Kelvane

// The main window: the sidebar with the chosen pane, or the first run, and over both the toast.
Window {
    id: root

    // What shows, which follows what is chosen.
    property bool firstRun: false
    // A new window is there before what it shows.
    property bool seen: false

    title: "Kelvane"
    width: 960
    height: 640
    minimumWidth: 860
    minimumHeight: 580
    color: Theme.window
    Component.onCompleted: root.firstRun = App.firstRun

    Connections {
        enabled: !root.seen
        target: root
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
