pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// The schedule, the switches, the data and the version.
Item {
    id: root

    Flickable {
        id: scroll
        anchors.fill: parent
        contentHeight: form.y + form.height + Theme.paneBottom
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: ScrollBar {}

        KeyScroll {
            area: scroll
        }
        PaneHeader {
            id: header
            x: Theme.paneMargin
            y: Theme.paneTop
            width: scroll.width - 2 * Theme.paneMargin
            title: "Settings"
        }
        Column {
            id: form
            x: Theme.paneMargin
            y: header.y + header.height + 18
            width: header.width
            spacing: 16

            Card {
                width: form.width
                FormRow {
                    label: "Reorganize automatically"
                    explanation: "Keeps the active profile in step with your usage. It waits until you stop typing or clicking for a moment, so the Dock never shifts while you're reaching for it. If you rearrange the Dock yourself, updates pause."
                    MenuButton {
                        label: "Reorganize automatically"
                        inCard: true
                        model: SettingsViewModel.schedules
                        currentIndex: SettingsViewModel.scheduleIndex
                        onActivated: index => SettingsViewModel.scheduleIndex = index
                    }
                }
                PausedRow {
                    width: form.width
                }
            }
            Card {
                width: form.width
                FormRow {
                    label: "Open at login"
                    Switch {
                        text: "Open at login"
                        checked: SettingsViewModel.opensAtLogin
                        onToggled: SettingsViewModel.opensAtLogin = checked
                    }
                }
                FormRow {
                    divided: true
                    label: "Track app usage"
                    Switch {
                        text: "Track app usage"
                        checked: SettingsViewModel.tracksUsage
                        onToggled: SettingsViewModel.tracksUsage = checked
                    }
                }
            }
            Column {
                width: form.width
                topPadding: 8
                spacing: 8
                Label {
                    text: "Data"
                    type: Theme.heading
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                Card {
                    width: form.width
                    FormRow {
                        label: "Stored in"
                        explanation: SettingsViewModel.folder
                        PushButton {
                            text: "Show in Finder"
                            size: PushButton.Small
                            onClicked: SettingsViewModel.showData()
                        }
                    }
                    FormRow {
                        divided: true
                        label: "Usage history"
                        explanation: "Your usage stays on this Mac."
                        PushButton {
                            text: "Erase"
                            size: PushButton.Small
                            ink: Theme.danger
                            onClicked: (confirmation.createObject(root) as Confirmation).open()
                        }
                    }
                }
            }
            Card {
                width: form.width
                FormRow {
                    label: "Version"
                    Label {
                        text: SettingsViewModel.version
                        color: Theme.text2
                    }
                }
            }
        }
    }
    Component {
        id: confirmation
        Confirmation {
            id: question
            title: "Erase your usage history?"
            text: "Profiles and saved Docks are kept. Suggestions fall back to macOS's own record of opened apps."
            action: "Erase"
            destructive: true
            onAccepted: SettingsViewModel.eraseUsage()
            onClosed: question.destroy()
        }
    }
}
