pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// A plate for rows or for a section's content. It is as high as what is put into it, one below the other.
Rectangle {
    id: root

    default property alias content: column.data
    property real verticalPadding: 0

    implicitWidth: column.implicitWidth
    implicitHeight: column.implicitHeight + 2 * root.verticalPadding
    color: Theme.surface
    border.color: Theme.line
    radius: 12

    Column {
        id: column
        y: root.verticalPadding
        width: root.width
    }
}
