pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// The Dock is saved; how it is kept in step from now on.
Flickable {
    id: root

    readonly property real startY: Math.max(24, Math.min(96, (root.height - 364) / 2))

    component SavedRow: IconStrip {
        anchors.horizontalCenter: parent.horizontalCenter
        size: 40
        gap: 2
        width: Math.min(implicitWidth, 600)
    }

    contentWidth: width
    contentHeight: choices.y + choices.height + 24
    boundsBehavior: Flickable.StopAtBounds
    clip: contentHeight > height
    T.ScrollBar.vertical: ScrollBar {}

    KeyScroll {
        area: root
    }

    StepTitle {
        id: title
        y: root.startY
        width: root.width
        title: "Your Dock is safe"
    }
    Rectangle {
        id: plate
        readonly property bool twoRows: FirstRunViewModel.savedSecondIcons.length > 0
        anchors.horizontalCenter: parent.horizontalCenter
        y: title.y + title.height + 28
        width: 640
        height: (plate.twoRows ? 88 : 44) + 20
        radius: 18
        color: Theme.shelf
        Accessible.role: Accessible.Graphic
        Accessible.name: "Your saved Dock"
        Accessible.description: FirstRunViewModel.savedNames

        Column {
            anchors.centerIn: parent
            spacing: 4
            SavedRow {
                icons: FirstRunViewModel.savedFirstIcons
            }
            SavedRow {
                visible: plate.twoRows
                icons: FirstRunViewModel.savedSecondIcons
            }
        }
    }
    Item {
        id: saved
        anchors.horizontalCenter: parent.horizontalCenter
        y: plate.y + plate.height + 20
        width: words.x + words.width
        height: words.height

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "info.circle"
            size: 18
            tint: Theme.accentText
        }
        Label {
            id: words
            x: 26
            width: Math.min(implicitWidth, root.width - 120)
            text: "We saved your current Dock as “Original”. Bring it back any time from the menu bar or History."
            type: Theme.leadSmall
            color: Theme.text2
            wrapMode: Text.Wrap
        }
    }
    Card {
        id: choices
        anchors.horizontalCenter: parent.horizontalCenter
        y: saved.y + saved.height + 32
        width: 640

        FormRow {
            minimumHeight: 56
            label: DockViewModel.suggestedTitle
            ChangeSummary {
                added: DockViewModel.added
                leaving: DockViewModel.leaving
                moved: DockViewModel.moved
            }
        }
        FormRow {
            minimumHeight: 56
            divided: true
            label: "Reorganize automatically"
            MenuButton {
                label: "Reorganize automatically"
                inCard: true
                model: SettingsViewModel.schedules
                currentIndex: SettingsViewModel.scheduleIndex
                onActivated: index => SettingsViewModel.scheduleIndex = index
            }
        }
        FormRow {
            minimumHeight: 56
            divided: true
            label: "Open at login (recommended, so usage is counted)"
            Switch {
                text: "Open at login (recommended, so usage is counted)"
                checked: SettingsViewModel.opensAtLogin
                onToggled: SettingsViewModel.opensAtLogin = checked
            }
        }
    }
}
