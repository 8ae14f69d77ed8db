pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What lifts a row off its list while it is dragged.
Rectangle {
    radius: 8
    color: Theme.raised
    border.color: Theme.lineStrong
}
