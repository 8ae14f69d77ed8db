pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// One saved Dock; opened, it says what restoring it would change.
Item {
    id: root

    required property int index
    required property string snapshotId
    required property string reason
    required property string caption
    required property string description
    required property list<string> icons
    required property string names
    required property string changes
    required property bool isOriginal
    required property bool isSameAsNow
    required property int count
    required property bool opened
    readonly property bool first: root.index === 0
    readonly property real captionY: 14 + Theme.heading.lineHeight
    readonly property real iconsY: root.captionY + Theme.caption.lineHeight + 9
    readonly property real namesY: root.iconsY + 34
    readonly property real closedHeight: root.namesY + Theme.small.lineHeight + 15
    readonly property bool last: root.index === root.count - 1

    signal toggled
    signal restoreRequested

    implicitHeight: root.closedHeight + (root.opened ? changesBox.height + 8 : 0)
    Accessible.role: Accessible.ListItem
    Accessible.name: root.description
    Accessible.description: root.names

    CardRow {
        x: Theme.paneMargin
        width: root.width - 2 * Theme.paneMargin
        height: root.height
        first: root.first
        last: root.last
    }
    Hairline {
        visible: !root.first
        x: Theme.paneMargin + 18
        width: root.width - 2 * Theme.paneMargin - 18
    }
    Item {
        id: inner
        x: Theme.paneMargin + 18
        width: root.width - 2 * Theme.paneMargin - 36
        height: root.closedHeight

        Row {
            y: 14
            spacing: 8
            Label {
                width: Math.min(implicitWidth, inner.width - buttons.width - 160)
                text: root.reason
                type: Theme.heading
                elide: Text.ElideRight
            }
            Tag {
                visible: root.isOriginal
                text: "Original"
            }
            Tag {
                visible: root.isSameAsNow
                text: "Same as now"
                kind: "same"
            }
        }
        Label {
            y: root.captionY
            text: root.caption
            type: Theme.caption
            color: Theme.text2
        }
        Row {
            id: buttons
            anchors.right: parent.right
            y: 14
            spacing: 10
            PushButton {
                visible: !root.isOriginal
                text: "Delete"
                kind: PushButton.Quiet
                Accessible.description: root.description
                onClicked: HistoryViewModel.remove(root.snapshotId)
            }
            PushButton {
                text: "Restore"
                size: PushButton.Small
                enabled: !App.working
                Accessible.description: root.description
                onClicked: root.restoreRequested()
            }
        }
        // Icons bring a margin of their own; their edges stand under the text.
        IconStrip {
            x: -2
            y: root.iconsY
            width: inner.width - 34
            icons: root.icons
        }
        StyledText {
            y: root.namesY
            width: inner.width - 34
            text: root.names
            type: Theme.small
            color: Theme.text2
            elide: Text.ElideRight
        }
        IconButton {
            anchors.right: parent.right
            anchors.rightMargin: -6
            y: root.closedHeight - 40
            symbol: root.opened ? "chevron.up" : "chevron.down"
            symbolSize: 14
            ink: Theme.text3
            text: root.opened ? "Hide what changes" : "Show what restoring would change"
            Accessible.description: root.description
            onClicked: root.toggled()
        }
    }
    Label {
        id: changesBox
        visible: root.opened
        x: inner.x
        y: root.closedHeight - 8
        width: inner.width
        text: root.changes
        type: Theme.caption
        color: Theme.text2
        wrapMode: Text.Wrap
    }
}
