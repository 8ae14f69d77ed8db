pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Asks for something that takes away; a confirmation follows.
BaseButton {
    leftPadding: 10
    hoverFill: Theme.dangerSoft
    pressFill: Theme.dangerSoft
    ink: Theme.danger
}
