pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Any other action.
BaseButton {
    fill: Theme.control
    hoverFill: Theme.controlHover
    pressFill: Theme.controlPress
    disabledFill: Theme.control
    stroke: Theme.lineStrong
    disabledStroke: Theme.line
}
