pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Chooses applications for a profile's list: by search, from the list, or any bundle on disk. It stays open until done.
Dialog {
    id: root

    component Inside: FocusScope {
        id: inside

        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: "Add Apps"

        TextEntry {
            id: search
            x: 16
            y: 16
            width: inside.width - 32
            focus: true
            label: "Search apps"
            placeholderText: "Search apps"
            symbol: "magnifyingglass"
            text: ProfilesViewModel.picker.search
            onTextEdited: {
                ProfilesViewModel.picker.search = text;
                list.currentIndex = text === "" ? -1 : 0;
            }
            Keys.onDownPressed: list.step(1)
            Keys.onUpPressed: list.step(-1)
            onAccepted: list.addCurrent()
        }
        Hairline {
            y: 58
            width: inside.width
        }
        PickerList {
            id: list
            x: 1
            y: 59
            width: inside.width - 2
            height: inside.height - y - 57
        }
        Label {
            visible: ProfilesViewModel.picker.isEmpty
            anchors.horizontalCenter: list.horizontalCenter
            y: 100
            text: "No apps match your search."
            color: Theme.text2
        }
        Hairline {
            y: inside.height - 57
            width: inside.width
        }
        PushButton {
            id: chooseOther
            x: 15
            y: inside.height - 43
            text: "Choose Other…"
            onClicked: {
                panel.active = false;
                panel.active = true;
            }
        }
        Label {
            anchors { left: chooseOther.right; leftMargin: 10; right: done.left; rightMargin: 10 }
            anchors.verticalCenter: chooseOther.verticalCenter
            text: ProfilesViewModel.picker.problem
            type: Theme.caption
            color: Theme.danger
            elide: Text.ElideMiddle
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
        // Made only when it is asked for; it takes a module of its own.
        Loader {
            id: panel
            active: false
            source: "AppPanel.qml"
        }
        PushButton {
            id: done
            anchors { right: parent.right; rightMargin: 15 }
            y: inside.height - 43
            text: "Done"
            kind: PushButton.Primary
            onClicked: root.close()
        }
    }

    width: 420
    height: parent ? Math.min(520, parent.height - 60) : 520

    contentItem: Inside {}
}
