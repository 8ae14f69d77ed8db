pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// A secondary button inside a card.
SecondaryButton {
    minimumHeight: 26
    leftPadding: 11
    cornerRadius: 7
    type: Theme.captionMedium
}
