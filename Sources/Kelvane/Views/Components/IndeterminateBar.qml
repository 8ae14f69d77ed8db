pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Shows that something runs whose end cannot be told: a short line travels along a long one, or, where motion is reduced,
// the long one alone.
Rectangle {
    id: root

    implicitHeight: 2
    clip: true
    color: Theme.accentSoft
    Accessible.role: Accessible.ProgressBar
    Accessible.name: "Updating Dock…"

    Rectangle {
        id: runner
        width: root.width * 0.32
        height: root.height
        visible: !Theme.reducedMotion
        color: Theme.accent
        NumberAnimation on x {
            running: root.visible && runner.visible
            loops: Animation.Infinite
            from: -runner.width
            to: root.width
            duration: 1200
            easing.type: Easing.InOutSine
        }
    }
}
