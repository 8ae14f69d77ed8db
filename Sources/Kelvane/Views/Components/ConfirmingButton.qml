pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Takes away, inside the confirmation.
BaseButton {
    fill: Theme.danger
    hoverFill: Theme.dangerHover
    pressFill: Theme.dangerHover
    ink: Theme.window
    type: Theme.heading
}
