pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The inside of the picker: the search field, the applications, and the way to any other one.
FocusScope {
    id: root

    signal finished

    function begin() {
        list.currentIndex = -1;
        list.positionViewAtBeginning();
        search.focus = true;
    }

    Accessible.role: Accessible.Dialog
    Accessible.name: "Add Apps"

    TextEntry {
        id: search
        x: 16
        y: 16
        width: root.width - 32
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
        width: root.width
    }
    PickerList {
        id: list
        x: 1
        y: 59
        width: root.width - 2
        height: root.height - y - 57
    }
    Label {
        visible: ProfilesViewModel.picker.isEmpty
        anchors.horizontalCenter: list.horizontalCenter
        y: 100
        text: "No apps match your search."
        color: Theme.text2
    }
    Hairline {
        y: root.height - 57
        width: root.width
    }
    SecondaryButton {
        id: chooseOther
        x: 15
        y: root.height - 43
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
    PrimaryButton {
        id: done
        anchors { right: parent.right; rightMargin: 15 }
        y: root.height - 43
        text: "Done"
        onClicked: root.finished()
    }
}
