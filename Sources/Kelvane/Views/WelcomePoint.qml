pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// One of the points of the welcome.
Item {
    id: root

    required property string symbol
    required property string title
    required property string text

    implicitWidth: 320
    implicitHeight: words.height

    Symbol {
        y: 1
        name: root.symbol
        size: 28
        tint: Theme.accentText
    }
    Column {
        id: words
        x: 44
        width: root.width - 44
        spacing: 2
        Label {
            width: parent.width
            text: root.title
            type: Theme.headingBig
            wrapMode: Text.Wrap
        }
        Label {
            width: parent.width
            text: root.text
            color: Theme.text2
            wrapMode: Text.Wrap
        }
    }
}
