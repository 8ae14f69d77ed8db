pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Words that a screen reader reads out.
Words {
    id: root

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text
}
