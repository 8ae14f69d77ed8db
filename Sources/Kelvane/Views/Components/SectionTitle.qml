pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The title of a section with a caption at its right, both on one baseline; the caption drops below when they would come
// too close.
Item {
    id: root

    required property string title
    property string caption: ""
    readonly property bool beside: heading.implicitWidth + 24 + note.implicitWidth <= root.width

    implicitHeight: root.beside ? Theme.heading.lineHeight : heading.height + 2 + note.height
    Accessible.role: Accessible.Heading
    Accessible.name: root.title

    StyledText {
        id: heading
        width: root.beside ? implicitWidth : root.width
        text: root.title
        type: Theme.heading
        elide: Text.ElideRight
    }
    Label {
        id: note
        x: root.beside ? root.width - implicitWidth : 0
        y: root.beside ? heading.baselineOffset - baselineOffset : heading.height + 2
        width: root.beside ? implicitWidth : root.width
        text: root.caption
        type: Theme.caption
        color: Theme.text2
        wrapMode: root.beside ? Text.NoWrap : Text.Wrap
    }
}
