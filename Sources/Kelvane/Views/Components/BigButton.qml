pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// A secondary button of the first run.
SecondaryButton {
    minimumHeight: 36
    leftPadding: 20
    cornerRadius: 9
    type: Theme.buttonBig
}
