pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// The scrolling part of a pane; what is put into it stands one below the other between the pane's margins. Keyboard focus
// inside is brought into sight.
Flickable {
    id: root

    property real margin: Theme.paneMargin
    property real spacing: 0
    default property alias content: column.data

    contentWidth: width
    contentHeight: column.implicitHeight + Theme.paneTop + Theme.paneBottom
    boundsBehavior: Flickable.StopAtBounds
    clip: contentHeight > height

    function reveal(item: Item) {
        const top = item.mapToItem(root.contentItem, 0, 0).y;
        if (top - 12 < root.contentY)
            root.contentY = Math.max(0, top - 12);
        else if (top + item.height + 12 > root.contentY + root.height)
            root.contentY = Math.min(root.contentHeight - root.height, top + item.height + 12 - root.height);
    }

    Column {
        id: column
        x: root.margin
        y: Theme.paneTop
        width: root.width - 2 * root.margin
        spacing: root.spacing
    }
    T.ScrollBar.vertical: ScrollBar {}
}
