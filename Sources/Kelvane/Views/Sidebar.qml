pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The panes, and at the foot the profile that is active.
Rectangle {
    id: root

    implicitWidth: Theme.sidebarWidth
    color: Theme.sidebar

    Column {
        x: 10
        y: Theme.sidebarTop
        spacing: 2
        Accessible.role: Accessible.PageTabList
        Accessible.name: "Panes"

        Repeater {
            model: App.panes
            SidebarButton {}
        }
    }
    Item {
        id: footer
        width: root.width
        height: Theme.barHeight
        anchors.bottom: root.bottom

        Hairline {
            width: footer.width
        }
        Label {
            x: 20
            y: 15
            text: "Active profile"
            type: Theme.small
            color: Theme.text2
        }
        Symbol {
            x: 20
            anchors.verticalCenter: profileName.verticalCenter
            name: App.profileSymbol
            tint: Theme.accentText
        }
        Label {
            id: profileName
            x: 44
            y: 21 + Theme.small.lineHeight
            width: 136
            text: App.profileName
            type: Theme.heading
            elide: Text.ElideRight
        }
    }
    Hairline {
        width: 1
        height: root.height
        anchors.right: root.right
    }
}
