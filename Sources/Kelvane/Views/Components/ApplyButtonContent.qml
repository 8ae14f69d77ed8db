pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The inside of the apply button; its width stays that of the words.
Item {
    id: root

    required property string text
    required property TypeStyle type
    required property color ink
    required property bool working
    required property bool matches

    implicitWidth: words.implicitWidth
    implicitHeight: words.implicitHeight

    ButtonContent {
        id: words
        anchors.fill: parent
        visible: root.working || !root.matches
        text: root.text
        type: root.type
        ink: root.ink
        symbol: root.working ? "progress" : ""
        symbolSize: 14
        turning: root.working
    }
    Symbol {
        anchors.centerIn: parent
        visible: root.matches && !root.working
        name: "checkmark"
        size: 18
        weight: "small"
        tint: Theme.add
    }
}
