pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// A larger plate over the window, for choosing; at most as high as the window less 60.
Dialog {
    id: root

    property real wantedHeight: 520

    width: 420
    height: parent ? Math.min(root.wantedHeight, parent.height - 60) : root.wantedHeight
}
