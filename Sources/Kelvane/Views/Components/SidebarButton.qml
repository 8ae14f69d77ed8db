pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// One row of the sidebar; choosing it shows its pane. It is no control of the templates', so that a window's first
// frame need not wait for them.
Item {
    id: root

    required property string pane
    required property string symbol
    required property string text
    readonly property bool current: App.pane === root.pane
    // The ring shows where the keys go, to those who use them.
    property bool byPointer: false

    function choose() {
        App.pane = root.pane;
    }

    implicitWidth: 180
    implicitHeight: Math.max(32, label.implicitHeight + 8)
    activeFocusOnTab: true
    onActiveFocusChanged: if (!activeFocus) root.byPointer = false
    Accessible.role: Accessible.PageTab
    Accessible.name: root.text
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: root.current
    Accessible.onPressAction: root.choose()
    Keys.onPressed: root.byPointer = false
    Keys.onReturnPressed: root.choose()
    Keys.onEnterPressed: root.choose()
    Keys.onSpacePressed: root.choose()
    Keys.onDownPressed: root.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onUpPressed: root.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: root.current || pointer.containsPress ? Theme.selected : pointer.containsMouse ? Theme.hover : Theme.clear
        Behavior on color { ColorAnimation { duration: Theme.colourTime } }
        FocusRing {
            shown: root.activeFocus && !root.byPointer
            edge: true
        }
    }
    MouseArea {
        id: pointer
        anchors.fill: parent
        // Without a display no pointer lies over anything, wherever Qt takes it to be.
        hoverEnabled: Qt.platform.pluginName !== "offscreen"
        onClicked: {
            root.byPointer = true;
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.choose();
        }
    }
    Symbol {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        size: 18
        tint: root.current ? Theme.accentText : Theme.text2
    }
    StyledText {
        id: label
        x: 38
        width: root.width - 48
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        type: root.current ? Theme.heading : Theme.body
        elide: Text.ElideRight
    }
}
