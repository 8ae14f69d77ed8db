import QtQuick
import Kelvane

// The room below the last row of a pane's list.
Item {
    width: 1
    height: Theme.paneBottom
}
