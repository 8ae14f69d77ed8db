pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Text in one of the theme's styles that screen readers pass over, because what it stands in says the same. It wraps or
// elides only where it is told to.
Text {
    id: root

    property TypeStyle type: Theme.body

    color: Theme.text
    font: root.type.font
    lineHeight: root.type.lineHeight
    lineHeightMode: Text.FixedHeight
    textFormat: Text.PlainText
    verticalAlignment: Text.AlignVCenter
}
