pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// StyledText that a screen reader reads out.
StyledText {
    id: root

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text
}
