pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import Kelvane

// The main window; its content is the root view.
Window {
    id: root

    title: "Kelvane"
    width: 960
    height: 640
    minimumWidth: 860
    minimumHeight: 580
    color: Theme.window

    RootView {
        anchors.fill: parent
        focus: true
    }
}
