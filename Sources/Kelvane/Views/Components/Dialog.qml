pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Kelvane

// What lies over the window and takes all input: a plate over the scrim, in the middle of the detail area.
T.Popup {
    id: root

    // How much of the free height lies above the plate.
    property real aboveShare: 0.5
    // Who had the keys before gets them back, with the ring if it showed.
    property Item former: null
    property bool ringed: false

    onAboutToShow: {
        root.former = root.parent.Window.activeFocusItem;
        const control = root.former as T.Control;
        root.ringed = control !== null && control.visualFocus;
    }
    onClosed: {
        if (root.former)
            root.former.forceActiveFocus(root.ringed ? Qt.TabFocusReason : Qt.OtherFocusReason);
    }

    parent: T.Overlay.overlay
    x: parent ? Math.round(Math.max(8, (parent.width - width + (App.firstRun ? 0 : Theme.sidebarWidth)) / 2)) : 0
    y: parent ? Math.round((parent.height - height) * root.aboveShare) : 0
    padding: 0
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape

    background: Rectangle {
        radius: 14
        color: Theme.surface
        border.color: Theme.line
        Shadow {
            spread: 48
            drop: 16
            cornerRadius: 14
        }
    }
    T.Overlay.modal: Rectangle {
        color: Theme.scrim
        Behavior on opacity { NumberAnimation { duration: root.opened ? 140 : 200 } }
    }
    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 200; easing.type: Easing.OutCubic }
        NumberAnimation {
            property: "y"
            from: Math.round((root.parent.height - root.height) * root.aboveShare) + (Theme.reducedMotion ? 0 : 12)
            to: Math.round((root.parent.height - root.height) * root.aboveShare)
            duration: Theme.growTime
            easing.type: Easing.OutCubic
        }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: 140 }
    }
}
