pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Applies the suggestion. While a change runs it says so and waits; when the Dock is as suggested it is a check mark.
PrimaryButton {
    id: root

    required property bool working
    required property bool matches

    text: root.working ? "Updating Dock…" : "Apply to Dock"
    enabled: !root.working && !root.matches
    disabledFill: root.matches && !root.working ? Theme.addSoft : Theme.selected
    Accessible.name: root.matches && !root.working ? "Matches your Dock" : root.text

    contentItem: ApplyButtonContent {
        text: root.text
        type: root.type
        ink: root.currentInk
        working: root.working
        matches: root.matches
    }
}
