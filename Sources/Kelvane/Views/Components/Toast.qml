pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The message that the application shows for a moment; it comes up, stays, and fades. It rests at `restingY`.
Item {
    id: root

    required property real restingY
    readonly property bool shown: App.toastText !== ""

    width: Math.min(520, label.implicitWidth + symbol.width + 37)
    height: Math.max(36, label.height + 16)
    y: root.restingY + (root.shown || Theme.reducedMotion ? 0 : 8)
    opacity: root.shown ? 1 : 0
    visible: opacity > 0
    Accessible.role: Accessible.AlertMessage
    Accessible.name: label.text
    onShownChanged: {
        // What is shown stays while it fades.
        if (root.shown)
            root.take();
    }

    function take() {
        label.text = App.toastText;
        symbol.isError = App.toastIsError;
    }

    Connections {
        target: App
        function onToastChanged() {
            if (root.shown)
                root.take();
        }
    }
    Component.onCompleted: root.take()

    Behavior on opacity {
        NumberAnimation {
            duration: root.shown ? 180 : 140
            easing.type: root.shown ? Easing.OutCubic : Easing.Linear
        }
    }
    Behavior on y {
        enabled: root.shown
        NumberAnimation {
            duration: Theme.reducedMotion ? 0 : 180
            easing.type: Easing.OutCubic
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: 11
        color: Theme.raised
        border.color: Theme.lineStrong
        Shadow {
            spread: 20
            drop: 6
            cornerRadius: 11
            wanted: root.visible
        }
    }
    Symbol {
        id: symbol
        property bool isError: false
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        name: symbol.isError ? "exclamationmark.triangle.fill" : "checkmark.circle.fill"
        size: 18
        tint: symbol.isError ? Theme.danger : Theme.add
    }
    StyledText {
        id: label
        x: 39
        width: root.width - 55
        anchors.verticalCenter: parent.verticalCenter
        type: Theme.button
        wrapMode: Text.Wrap
    }
}
