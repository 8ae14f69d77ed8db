pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// A number between two ends, one step at a time; `valueText` is how it reads. `valueModified` reports the user's step.
T.SpinBox {
    id: root

    required property string label
    required property string valueText

    component Half: Item {
        id: half

        required property string symbol
        required property bool pressed
        required property bool hovered
        required property bool usable

        implicitWidth: 28
        implicitHeight: 28

        Rectangle {
            anchors.fill: parent
            anchors.margins: 1
            radius: 7
            visible: half.usable && (half.pressed || half.hovered)
            color: half.pressed ? Theme.controlPress : Theme.controlHover
        }
        Symbol {
            anchors.centerIn: parent
            name: half.symbol
            size: 14
            tint: Theme.text2
            opacity: half.usable ? 1 : 0.35
        }
    }

    implicitWidth: 56 + Math.max(36, metrics.advanceWidth + 20)
    implicitHeight: Math.max(28, Theme.heading.lineHeight + 8)
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
    down.indicator: Half {
        height: root.height
        symbol: "minus"
        pressed: root.down.pressed
        hovered: root.down.hovered
        usable: root.value > root.from
    }
    up.indicator: Half {
        x: root.width - width
        height: root.height
        symbol: "plus"
        pressed: root.up.pressed
        hovered: root.up.hovered
        usable: root.value < root.to
    }
    TextMetrics {
        id: metrics
        font: Theme.heading.font
        text: root.valueText
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
