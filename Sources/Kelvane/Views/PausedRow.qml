pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Says that updates wait, and lets them go on. It folds away when they do.
Item {
    id: root

    clip: true
    visible: height > 0
    height: App.autoPaused ? Math.max(48, button.height + 18) : 0
    opacity: App.autoPaused ? 1 : 0
    Behavior on opacity { NumberAnimation { duration: Theme.growTime; easing.type: Easing.OutCubic } }
    Behavior on height { NumberAnimation { duration: Theme.growTime; easing.type: Easing.OutCubic } }

    Hairline {
        anchors { left: parent.left; leftMargin: 16; right: parent.right }
    }
    Symbol {
        x: 17
        anchors.verticalCenter: parent.verticalCenter
        name: "pause.circle"
        size: 18
        tint: Theme.warnIcon
    }
    Label {
        x: 46
        width: button.x - x - 12
        anchors.verticalCenter: parent.verticalCenter
        text: "Paused: the Dock was changed outside Kelvane."
        elide: Text.ElideRight
    }
    PushButton {
        id: button
        anchors { right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
        text: "Resume"
        size: PushButton.Small
        onClicked: App.resume()
    }
}
