pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The Dock as it is, the Dock that the active profile suggests, what would change, and the button that applies it.
FocusScope {
    id: root

    focus: true

    component Space: Item {
        width: 1
    }

    PaneScroll {
        width: root.width
        height: root.height - bar.height

        PaneHeader {
            width: parent.width
            title: "Your Dock"
            subtitle: "Most-used apps move up front. Apps you've stopped using step aside."

            MenuButton {
                label: "Profile"
                model: DockViewModel.profiles
                textRole: "name"
                valueRole: "symbol"
                currentIndex: DockViewModel.activeRow
                width: Math.min(implicitWidth, 220)
                onActivated: index => DockViewModel.chooseRow(index)
            }
        }
        Item {
            width: parent.width
            height: App.autoPaused ? banner.height + 18 : 0
            opacity: App.autoPaused ? 1 : 0
            visible: opacity > 0
            Behavior on height { NumberAnimation { duration: Theme.growTime; easing.type: Easing.OutCubic } }
            Behavior on opacity { NumberAnimation { duration: Theme.growTime; easing.type: Easing.OutCubic } }

            Banner {
                id: banner
                y: 18
                width: parent.width
                symbol: "pause.circle.fill"
                text: "Automatic updates are paused because the Dock was changed outside Kelvane. Your change is safe until you resume."
                action: "Resume"
                onTriggered: App.resume()
            }
        }
        Space { height: 20 }
        SectionTitle {
            width: parent.width
            title: "Now"
            caption: DockViewModel.nowCaption
        }
        Space { height: 8 }
        Shelf {
            width: parent.width
            tiles: DockViewModel.now
            suggested: false
            dense: DockViewModel.dense
            highlight: summary.highlight
            Accessible.name: "Now"
        }
        Space { height: 20 }
        SectionTitle {
            width: parent.width
            title: DockViewModel.suggestedTitle
            caption: DockViewModel.suggestion
        }
        Space { height: 8 }
        Shelf {
            width: parent.width
            tiles: DockViewModel.suggested
            suggested: true
            dense: DockViewModel.dense
            emptyText: DockViewModel.emptyText
            highlight: summary.highlight
            Accessible.name: DockViewModel.suggestedTitle
        }
        Space { height: 10 }
        Note {
            width: parent.width
            symbol: "lock.shield"
            text: DockViewModel.dataNote
        }
    }
    ActionBar {
        id: bar
        width: root.width
        anchors.bottom: parent.bottom
        running: App.working
        leading: ChangeSummary {
            id: summary
            width: bar.leadingWidth
            // The words give way to a narrow window, after the names on the buttons.
            terse: figuresWidth + edit.narrowest + apply.width + 98 > bar.width
            anchors.verticalCenter: parent.verticalCenter
            added: DockViewModel.added
            leaving: DockViewModel.leaving
            moved: DockViewModel.moved
            leavingLine: DockViewModel.leavingLine
        }

        PushButton {
            id: edit
            readonly property real narrowest: Math.min(implicitWidth, 90)
            width: Math.max(edit.narrowest, Math.min(implicitWidth, 180, bar.width - 98 - apply.width - summary.shownWidth))
            text: DockViewModel.editText
            onClicked: {
                ProfilesViewModel.selectActive();
                DockViewModel.editProfile();
            }
        }
        ApplyButton {
            id: apply
            focus: true
            working: App.working
            matches: DockViewModel.matches
            onClicked: DockViewModel.apply()
        }
    }
}
