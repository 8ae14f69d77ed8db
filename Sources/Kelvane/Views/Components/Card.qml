pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// A plate for rows or for a section's content. It is as high as what is put into it, one below the other.
Rectangle {
    id: root

    default property alias content: column.data

    implicitWidth: column.implicitWidth
    implicitHeight: column.implicitHeight
    color: Theme.surface
    border.color: Theme.line
    radius: 12

    Column {
        id: column
        width: root.width
    }
}
