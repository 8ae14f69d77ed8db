pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The primary button of the first run.
PrimaryButton {
    minimumHeight: 36
    leftPadding: 20
    cornerRadius: 9
    type: Theme.headingBig
}
