pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The one action a view is there for.
BaseButton {
    fill: Theme.accent
    hoverFill: Theme.accentHover
    pressFill: Theme.accentPress
    disabledFill: Theme.selected
    ink: Theme.accentInk
    disabledInk: Theme.text2
    type: Theme.heading
}
