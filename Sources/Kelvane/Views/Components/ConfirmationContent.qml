pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The inside of a confirmation.
FocusScope {
    id: root

    required property string title
    required property string text
    required property string action
    required property bool destructive
    signal accepted
    signal rejected

    // Return accepts, whatever had the keys when it was asked before.
    function begin() {
        primary.focus = !root.destructive;
        confirming.focus = root.destructive;
    }

    implicitHeight: buttons.y + buttons.height + 24
    Accessible.role: Accessible.Dialog
    Accessible.name: root.title
    Accessible.description: root.text
    Keys.onReturnPressed: root.accepted()
    Keys.onEnterPressed: root.accepted()

    Label {
        id: heading
        x: 24
        y: 24
        width: root.width - 48
        text: root.title
        type: Theme.confirmTitle
        wrapMode: Text.Wrap
    }
    Label {
        id: body
        x: 24
        width: root.width - 48
        anchors.top: heading.bottom
        anchors.topMargin: 6
        text: root.text
        color: Theme.text2
        wrapMode: Text.Wrap
    }
    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.top: body.bottom
        anchors.topMargin: 20
        spacing: 10

        SecondaryButton {
            text: "Cancel"
            onClicked: root.rejected()
        }
        PrimaryButton {
            id: primary
            visible: !root.destructive
            text: root.action
            onClicked: root.accepted()
        }
        ConfirmingButton {
            id: confirming
            visible: root.destructive
            text: root.action
            onClicked: root.accepted()
        }
    }
}
