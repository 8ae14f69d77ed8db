pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// A push button. `Primary` is the one action a view is there for, `Quiet` one that stays in the background,
// `Destructive` asks for something that takes away, `Confirming` does it. `Small` is for cards, `Big` for the first run.
T.Button {
    id: root

    enum Kind { Secondary, Primary, Quiet, Destructive, Confirming }
    enum Size { Regular, Small, Big }

    property int kind: PushButton.Secondary
    property int size: PushButton.Regular
    property string symbol: ""
    property color ink: root.kind === PushButton.Quiet ? Theme.text2 : root.kind === PushButton.Destructive ? Theme.danger
                        : root.kind === PushButton.Confirming ? Theme.window : root.filled ? Theme.accentInk : Theme.text
    property color disabledFill: Theme.selected
    property TypeStyle type: root.size === PushButton.Small ? Theme.captionMedium
                             : root.size === PushButton.Big ? root.filled ? Theme.headingBig : Theme.buttonBig
                             : root.filled ? Theme.heading : Theme.button
    readonly property real cornerRadius: root.size === PushButton.Small ? 7 : root.size === PushButton.Big ? 9 : 8
    readonly property bool filled: root.kind === PushButton.Primary || root.kind === PushButton.Confirming
    readonly property bool outlined: root.kind === PushButton.Secondary
    readonly property color currentInk: root.enabled ? root.ink : root.filled ? Theme.text2 : Theme.disabled
    readonly property color fill: {
        switch (root.kind) {
        case PushButton.Primary:
            return !root.enabled ? root.disabledFill : root.down ? Theme.accentPress
                   : root.hovered ? Theme.accentHover : Theme.accent;
        case PushButton.Quiet:
            return !root.enabled ? Theme.clear : root.down ? Theme.selected : root.hovered ? Theme.hover : Theme.clear;
        case PushButton.Destructive:
            return root.enabled && (root.down || root.hovered) ? Theme.dangerSoft : Theme.clear;
        case PushButton.Confirming:
            return root.down || root.hovered ? Theme.dangerHover : Theme.danger;
        default:
            return !root.enabled ? Theme.control : root.down ? Theme.controlPress
                   : root.hovered ? Theme.controlHover : Theme.control;
        }
    }

    leftPadding: root.size === PushButton.Small ? 11 : root.size === PushButton.Big ? 20
                 : root.kind === PushButton.Quiet || root.kind === PushButton.Destructive ? 10 : 14
    rightPadding: root.leftPadding
    topPadding: 0
    bottomPadding: 0
    implicitWidth: leftPadding + contentItem.implicitWidth + rightPadding
    implicitHeight: Math.max(root.size === PushButton.Small || root.kind === PushButton.Quiet ? 26
                             : root.size === PushButton.Big ? 36 : 30, contentItem.implicitHeight + 8)
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.text
    Accessible.onPressAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    background: Rectangle {
        radius: root.cornerRadius
        color: root.fill
        border.width: root.outlined ? 1 : 0
        border.color: root.enabled ? Theme.lineStrong : Theme.line
        Behavior on color { enabled: !root.down; ColorAnimation { duration: Theme.colourTime } }
        FocusRing { shown: root.visualFocus; controlRadius: root.cornerRadius }
    }
    contentItem: ButtonContent {
        text: root.text
        type: root.type
        ink: root.currentInk
        symbol: root.symbol
    }
}
