pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// A number between two ends, one step at a time; `valueText` is how it reads. `valueModified` reports the user's step.
T.SpinBox {
    id: root

    required property string label
    required property string valueText

    implicitWidth: 56 + Math.max(36, reading.implicitWidth + 20)
    implicitHeight: Math.max(28, reading.implicitHeight + 8)
    editable: false
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.label
    Accessible.description: root.valueText
    // The template takes what shows the value for a field and stops there, too, on the way from control to control.
    Component.onCompleted: contentItem.activeFocusOnTab = false

    background: Rectangle {
        radius: 8
        color: Theme.control
        border.color: Theme.lineStrong
        FocusRing {
            shown: root.visualFocus
        }
    }
    contentItem: StyledText {
        text: root.valueText
        type: Theme.heading
        color: root.enabled ? Theme.text : Theme.disabled
        horizontalAlignment: Text.AlignHCenter
    }
    leftPadding: 28
    rightPadding: 28
    down.indicator: StepperHalf {
        height: root.height
        symbol: "minus"
        down: root.down.pressed
        over: root.down.hovered
        usable: root.value > root.from
    }
    up.indicator: StepperHalf {
        x: root.width - width
        height: root.height
        symbol: "plus"
        down: root.up.pressed
        over: root.up.hovered
        usable: root.value < root.to
    }
    TextMetrics {
        id: metrics
        font: Theme.heading.font
        text: root.valueText
    }
    QtObject {
        id: reading
        readonly property real implicitWidth: metrics.advanceWidth
        readonly property real implicitHeight: Theme.heading.lineHeight
    }
    Rectangle {
        x: 28
        y: 1
        width: 1
        height: root.height - 2
        color: Theme.lineStrong
    }
    Rectangle {
        x: root.width - 29
        y: 1
        width: 1
        height: root.height - 2
        color: Theme.lineStrong
    }
}
