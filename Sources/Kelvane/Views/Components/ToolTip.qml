pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// The words behind a symbol or the whole of an elided text, after a moment of hovering.
T.ToolTip {
    id: root

    delay: 600
    timeout: 8000
    x: parent ? (parent.width - implicitWidth) / 2 : 0
    y: parent ? parent.height + 6 : 0
    margins: 6
    leftPadding: 8
    rightPadding: 8
    topPadding: 4
    bottomPadding: 4
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    contentItem: Label {
        text: root.text
        type: Theme.small
    }
    background: Rectangle {
        color: Theme.raised
        border.color: Theme.lineStrong
        radius: 6
    }
}
