pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// One ranked application; opened, it says where its points come from.
Item {
    id: root

    required property int index
    required property int rank
    required property string bundleID
    required property string name
    required property string detail
    required property string reason
    required property string description
    required property real share
    required property int count
    required property bool focused
    required property bool opened
    readonly property bool first: root.index === 0
    readonly property bool last: root.index === root.count - 1
    readonly property real rowHeight: Math.max(56, Theme.heading.lineHeight + Theme.caption.lineHeight + 22)
    // The bar grows when the pane is first shown.
    property real grown: UsageViewModel.firstShow && !Theme.reducedMotion ? 0 : 1
    readonly property real rowWidth: root.width - 2 * Theme.paneMargin

    function toggle() {
        UsageViewModel.openedApp = root.opened ? "" : root.bundleID;
    }

    implicitHeight: root.rowHeight + (root.first ? 3 : 0) + (root.last ? 3 : 0) + (root.opened ? Theme.caption.lineHeight + 8 : 0)
    Accessible.role: Accessible.ListItem
    Accessible.name: root.name
    Accessible.description: root.description
    Accessible.focusable: true
    NumberAnimation on grown {
        running: root.grown < 1
        to: 1
        duration: Theme.barTime
        easing.type: Easing.OutCubic
    }
    Accessible.onPressAction: root.toggle()

    CardRow {
        x: Theme.paneMargin
        width: root.width - 2 * Theme.paneMargin
        height: root.height
        first: root.first
        last: root.last
    }
    Item {
        id: row
        x: Theme.paneMargin
        y: root.first ? 3 : 0
        width: root.rowWidth
        height: root.rowHeight

        StyledText {
            width: 32
            anchors.verticalCenter: parent.verticalCenter
            horizontalAlignment: Text.AlignRight
            text: root.rank
            type: Theme.caption
            color: Theme.text2
        }
        Rectangle {
            x: 48
            y: 4
            width: Math.max(6, (row.width - 58) * root.share * root.grown)
            height: row.height - 8
            radius: Math.min(10, width / 2)
            color: Theme.accentBar
        }
        AppIcon {
            x: 58
            anchors.verticalCenter: parent.verticalCenter
            size: 40
            bundleID: root.bundleID
            name: root.name
        }
        Column {
            x: 108
            width: row.width - x - 44
            anchors.verticalCenter: parent.verticalCenter
            StyledText {
                width: parent.width
                text: root.name
                type: Theme.heading
                elide: Text.ElideRight
            }
            StyledText {
                width: parent.width
                text: root.detail
                type: Theme.caption
                color: Theme.text2
                elide: Text.ElideRight
            }
        }
        Symbol {
            x: row.width - 32
            anchors.verticalCenter: parent.verticalCenter
            visible: hover.hovered || root.focused || root.opened
            name: root.opened ? "chevron.up" : "chevron.down"
            size: 14
            tint: Theme.text3
        }
    }
    StyledText {
        visible: root.opened
        x: row.x + 108
        y: row.y + row.height - 1
        width: row.width - 120
        text: root.reason
        type: Theme.caption
        color: Theme.text2
        elide: Text.ElideRight
    }
    FocusRing {
        shown: root.focused
        edge: true
        anchors.leftMargin: row.x + 44
        anchors.rightMargin: Theme.paneMargin + 6
        anchors.topMargin: row.y + 2
        anchors.bottomMargin: root.last ? 4 : 2
        controlRadius: 10
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        onTapped: root.toggle()
    }
}
