pragma ComponentBehavior: Bound
import QtQuick

// The keyboard's focus, drawn round its parent or, `edge`, on the parent's own edge. There is one in every control, so
// the drawing is made where the focus is.
Loader {
    id: root

    required property bool shown
    property real controlRadius: 8
    property bool edge: false

    anchors.fill: parent
    anchors.margins: root.edge ? 0 : -4
    active: root.shown
    // Relative to this file, not to the one that uses it.
    source: Qt.resolvedUrl("FocusLine.qml")
}
