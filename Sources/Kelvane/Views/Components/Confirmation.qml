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

    width: 360
    aboveShare: 0.44
    height: contentItem.implicitHeight
    onAboutToShow: (root.contentItem as ConfirmationContent).begin()
    onOpened: root.contentItem.forceActiveFocus(Qt.TabFocusReason)

    contentItem: ConfirmationContent {
        focus: true
        title: root.title
        text: root.text
        action: root.action
        destructive: root.destructive
        onAccepted: {
            root.close();
            root.accepted();
        }
        onRejected: root.close()
    }
}
