pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// How many places usage fills, and over which window it is measured.
Column {
    id: root

    spacing: 10

    SectionHeader {
        width: root.width
        title: "Fill the rest by usage"
        explanation: "Busiest app first. 7 days follows this week's project; 30 days gives a steadier Dock."
    }
    Card {
        width: root.width

        FormRow {
            label: "Most-used apps"
            Stepper {
                label: "Most-used apps"
                from: ProfilesViewModel.editor.fewestSlots
                to: ProfilesViewModel.editor.mostSlots
                value: ProfilesViewModel.editor.usageSlots
                valueText: ProfilesViewModel.editor.usageSlotsText
                onValueModified: ProfilesViewModel.editor.usageSlots = value
            }
        }
        FormRow {
            divided: true
            label: "Measured over"
            Segmented {
                label: "Measured over"
                options: App.usageWindows
                currentIndex: ProfilesViewModel.editor.windowIndex
                onActivated: index => ProfilesViewModel.editor.windowIndex = index
            }
        }
    }
}
