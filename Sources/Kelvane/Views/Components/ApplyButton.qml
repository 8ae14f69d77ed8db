pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Applies the suggestion. While a change runs it says so and waits; when the Dock is as suggested it is a check mark, as
// wide as the words.
PushButton {
    id: root

    required property bool working
    required property bool matches
    readonly property bool done: root.matches && !root.working

    component Inside: Item {
        implicitWidth: words.implicitWidth
        implicitHeight: words.implicitHeight

        ButtonContent {
            id: words
            anchors.fill: parent
            visible: !root.done
            text: root.text
            type: root.type
            ink: root.currentInk
            symbol: root.working ? "progress" : ""
            symbolSize: 14
            NumberAnimation on symbolRotation {
                running: root.working && words.visible && !Theme.reducedMotion
                loops: Animation.Infinite
                from: 0
                to: 360
                duration: 900
            }
        }
        Symbol {
            anchors.centerIn: parent
            visible: root.done
            name: "checkmark"
            size: 18
            strong: true
            tint: Theme.add
        }
    }

    kind: PushButton.Primary
    text: root.working ? "Updating Dock…" : "Apply to Dock"
    enabled: !root.working && !root.matches
    disabledFill: root.done ? Theme.addSoft : Theme.selected
    Accessible.name: root.done ? "Matches your Dock" : root.text

    contentItem: Inside {}
}
