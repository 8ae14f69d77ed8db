pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// What every push button is made of; each kind gives it colours and measures.
T.Button {
    id: root

    property color fill: Theme.clear
    property color hoverFill: Theme.hover
    property color pressFill: Theme.selected
    property color disabledFill: Theme.clear
    property color stroke: Theme.clear
    property color disabledStroke: root.stroke
    property color ink: Theme.text
    property color disabledInk: Theme.disabled
    property TypeStyle type: Theme.button
    property real minimumHeight: 30
    property real cornerRadius: 8
    property string symbol: ""
    property real symbolSize: 16
    readonly property color currentInk: root.enabled ? root.ink : root.disabledInk

    leftPadding: 14
    rightPadding: root.leftPadding
    topPadding: 0
    bottomPadding: 0
    implicitWidth: leftPadding + contentItem.implicitWidth + rightPadding
    implicitHeight: Math.max(root.minimumHeight, contentItem.implicitHeight + 8)
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.text
    Accessible.onPressAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    background: Rectangle {
        radius: root.cornerRadius
        color: !root.enabled ? root.disabledFill : root.down ? root.pressFill : root.hovered ? root.hoverFill : root.fill
        border.width: root.stroke === Theme.clear ? 0 : 1
        border.color: root.enabled ? root.stroke : root.disabledStroke
        Behavior on color { enabled: !root.down; ColorAnimation { duration: Theme.colourTime } }
        FocusRing { shown: root.visualFocus; controlRadius: root.cornerRadius }
    }
    contentItem: ButtonContent {
        text: root.text
        type: root.type
        ink: root.currentInk
        symbol: root.symbol
        symbolSize: root.symbolSize
    }
}
