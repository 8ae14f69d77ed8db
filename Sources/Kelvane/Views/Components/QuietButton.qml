pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// An action that stays in the background.
BaseButton {
    minimumHeight: 26
    leftPadding: 10
    ink: Theme.text2
}
