pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The tooltip of its parent, made when the pointer rests there: most never are.
Loader {
    id: root

    required property string text
    required property bool shown

    anchors.fill: parent
    active: root.shown && root.text !== ""
    source: Qt.resolvedUrl("ToolTip.qml")
    onLoaded: {
        const tip = root.item as ToolTip;
        tip.text = Qt.binding(() => root.text);
        tip.visible = true;
    }
}
