pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// Which profile to start with.
Item {
    id: root

    StepTitle {
        id: title
        y: 56
        width: root.width
        title: "Where should we start?"
        text: "Pick a profile. You can edit every profile and switch any time from the menu bar."
    }
    ListView {
        id: list
        objectName: "choices"
        anchors.horizontalCenter: parent.horizontalCenter
        y: title.y + title.height + 23
        width: Math.min(648, root.width - 40)
        height: root.height - y
        topMargin: 4
        clip: contentHeight > height
        spacing: 8
        model: FirstRunViewModel.choices
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: "Profiles"
        delegate: ProfileChoice {
            x: 4
            width: list.width - 8
            onClicked: FirstRunViewModel.choose(profileId)
        }
        T.ScrollBar.vertical: ScrollBar {}
    }
    KeyScroll {
        area: list
    }
}
