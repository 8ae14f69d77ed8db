pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window

// Lets the keyboard scroll a view: what takes the keys comes into sight, and the page keys turn pages.
Item {
    id: root

    required property Flickable area
    readonly property Item focused: root.Window.activeFocusItem
    readonly property real margin: 12

    function holds(item: Item): bool {
        for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === root.area.contentItem)
                return true;
        }
        return false;
    }
    function reveal() {
        const item = root.focused;
        if (!item || !root.holds(item))
            return;
        const top = item.mapToItem(root.area, 0, 0).y - root.margin;
        const bottom = top + item.height + 2 * root.margin;
        if (top < 0 || bottom - top > root.area.height)
            root.scrollBy(top);
        else if (bottom > root.area.height)
            root.scrollBy(bottom - root.area.height);
    }
    function scrollBy(distance: real) {
        root.area.contentY += distance;
        root.area.returnToBounds();
    }

    // A list that the keys enter first puts itself in order.
    onFocusedChanged: settling.restart()

    Timer {
        id: settling
        interval: 0
        onTriggered: root.reveal()
    }

    Shortcut {
        sequence: "PgDown"
        enabled: root.visible
        onActivated: root.scrollBy(root.area.height * 0.9)
    }
    Shortcut {
        sequence: "PgUp"
        enabled: root.visible
        onActivated: root.scrollBy(-root.area.height * 0.9)
    }
}
