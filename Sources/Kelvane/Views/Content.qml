pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The chosen pane, or the first run. What comes next is made piece by piece beside the window while the one before still
// shows, so that the window never stands still for it.
FocusScope {
    id: root

    property url source
    readonly property QtObject item: root.shown.item
    property Loader shown: one
    property Loader coming: other

    signal turned

    function prepare() {
        // Whoever comes back before the other is ready has not left.
        root.coming.source = String(root.shown.source) === String(root.source) ? "" : root.source;
    }
    function turn() {
        const gone = root.shown;
        root.shown = root.coming;
        root.coming = gone;
        gone.source = "";
        root.shown.focus = true;
        root.turned();
        fade.restart();
    }

    onSourceChanged: root.prepare()

    Loader {
        id: one
        x: root.shown === one ? 0 : root.width
        width: root.width
        height: root.height
        asynchronous: true
        onLoaded: root.turn()
    }
    Loader {
        id: other
        x: root.shown === other ? 0 : root.width
        width: root.width
        height: root.height
        asynchronous: true
        onLoaded: root.turn()
    }
    NumberAnimation {
        id: fade
        target: root
        property: "opacity"
        from: 0
        to: 1
        duration: Theme.fadeTime
        easing.type: Easing.OutQuad
    }
}
