pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// An explanation with a symbol before its first line.
Item {
    id: root

    required property string symbol
    required property string text

    implicitHeight: words.implicitHeight

    Symbol {
        y: (Theme.caption.lineHeight - height) / 2
        name: root.symbol
        size: 15
        tint: Theme.text2
    }
    Label {
        id: words
        x: 22
        width: Math.min(560, root.width) - 22
        text: root.text
        type: Theme.caption
        color: Theme.text2
        wrapMode: Text.Wrap
    }
}
