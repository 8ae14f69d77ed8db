pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What the applications below it have in common.
Item {
    id: root

    required property string section

    width: ListView.view ? ListView.view.width : 0
    height: 33

    Label {
        x: 16
        y: 12
        text: root.section
        type: Theme.captionStrong
        color: Theme.text2
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
