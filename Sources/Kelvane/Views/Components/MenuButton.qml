pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// A choice of one among a few, shown as a button that opens a menu. `textRole` names the texts and, where the choices have
// symbols, `valueRole` names those. `currentIndex` follows the model; `activated` reports a choice.
T.ComboBox {
    id: root

    required property string label
    property bool inCard: false
    readonly property bool hasSymbols: root.valueRole !== ""
    // The menu was opened by a key that is still down.
    property bool opening: false

    function openByKey(event: KeyEvent) {
        event.accepted = !root.popup.visible;
        if (event.accepted) {
            root.opening = true;
            root.popup.open();
        }
    }

    leftPadding: 12
    rightPadding: 8
    implicitWidth: leftPadding + contentItem.implicitWidth + rightPadding
    implicitHeight: Math.max(root.inCard ? 26 : 30, contentItem.implicitHeight + 8)
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.label
    Accessible.description: root.displayText
    Accessible.onPressAction: root.popup.open()
    Keys.onReturnPressed: event => root.openByKey(event)
    Keys.onEnterPressed: event => root.openByKey(event)
    // The template takes the release of either key for a choice.
    Keys.onReleased: event => {
        event.accepted = root.opening && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter);
        if (event.accepted)
            root.opening = false;
    }

    background: Rectangle {
        radius: root.inCard ? 7 : 8
        color: root.down ? Theme.controlPress : root.hovered ? Theme.controlHover : Theme.control
        border.color: root.enabled ? Theme.lineStrong : Theme.line
        FocusRing {
            shown: root.visualFocus
            controlRadius: root.inCard ? 7 : 8
        }
    }
    indicator: null
    contentItem: MenuButtonContent {
        text: root.displayText
        symbol: root.hasSymbols && root.currentValue ? root.currentValue : ""
        type: root.inCard ? Theme.captionMedium : Theme.button
        ink: root.enabled ? Theme.text : Theme.disabled
    }
    delegate: MenuRow {
        required property int index
        text: root.textAt(index)
        symbol: root.hasSymbols ? root.valueAt(index) : ""
        hasSymbol: root.hasSymbols
        chosen: root.currentIndex === index
        highlighted: root.highlightedIndex === index
    }
    popup: MenuPopup {
        y: root.height + 4
        x: root.width - width
        choices: root.popup.visible ? root.delegateModel : null
        current: root.highlightedIndex
        minimumWidth: root.width
    }
}
