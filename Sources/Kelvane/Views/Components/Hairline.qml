import QtQuick
import Kelvane

// The line between two rows, or along a bar.
Rectangle {
    implicitWidth: 1
    implicitHeight: 1
    color: Theme.line
}
