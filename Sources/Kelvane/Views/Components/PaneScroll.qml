pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// The scrolling part of a pane; what is put into it stands one below the other between the pane's margins.
Flickable {
    id: root

    default property alias content: column.data

    contentWidth: width
    contentHeight: column.implicitHeight + Theme.paneTop + Theme.paneBottom
    boundsBehavior: Flickable.StopAtBounds
    clip: contentHeight > height

    Column {
        id: column
        x: Theme.paneMargin
        y: Theme.paneTop
        width: root.width - 2 * Theme.paneMargin
    }
    KeyScroll {
        area: root
    }
    T.ScrollBar.vertical: ScrollBar {}
}
