pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Asks before something that takes away or replaces. Return accepts, Escape and "Cancel" do nothing.
Dialog {
    id: root

    required property string title
    required property string text
    required property string action
    property bool destructive: false
    signal accepted

    function accept() {
        root.close();
        root.accepted();
    }

    component Inside: FocusScope {
        id: inside

        focus: true
        implicitHeight: buttons.y + buttons.height + 24
        Accessible.role: Accessible.Dialog
        Accessible.name: root.title
        Accessible.description: root.text
        Keys.onReturnPressed: root.accept()
        Keys.onEnterPressed: root.accept()

        Label {
            id: heading
            x: 24
            y: 24
            width: inside.width - 48
            text: root.title
            type: Theme.confirmTitle
            wrapMode: Text.Wrap
        }
        Label {
            id: body
            x: 24
            width: inside.width - 48
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

            PushButton {
                text: "Cancel"
                onClicked: root.close()
            }
            PushButton {
                focus: true
                kind: root.destructive ? PushButton.Confirming : PushButton.Primary
                text: root.action
                onClicked: root.accept()
            }
        }
    }

    width: 360
    aboveShare: 0.44
    height: contentItem.implicitHeight
    onOpened: root.contentItem.forceActiveFocus(Qt.TabFocusReason)

    contentItem: Inside {}
}
