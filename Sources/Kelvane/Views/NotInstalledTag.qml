pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// What a row says of an application that is gone.
Tag {
    text: "not installed"
}
