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
    readonly property real cornerRadius: root.inCard ? 7 : 8
    // The menu was opened by a key that is still down.
    property bool opening: false

    function openByKey(event: KeyEvent) {
        event.accepted = !root.popup.visible;
        if (event.accepted) {
            root.opening = true;
            root.popup.open();
        }
    }

    component Inside: Item {
        id: inside

        implicitWidth: label.x + label.implicitWidth + 24
        implicitHeight: label.implicitHeight

        Symbol {
            id: symbol
            anchors.verticalCenter: parent.verticalCenter
            name: root.hasSymbols && root.currentValue ? root.currentValue : ""
            tint: Theme.text2
        }
        StyledText {
            id: label
            x: symbol.name === "" ? 0 : 24
            width: Math.min(implicitWidth, inside.width - x - 24)
            anchors.verticalCenter: parent.verticalCenter
            text: root.displayText
            type: root.inCard ? Theme.captionMedium : Theme.button
            color: root.enabled ? Theme.text : Theme.disabled
            elide: Text.ElideRight
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
        radius: root.cornerRadius
        color: root.down ? Theme.controlPress : root.hovered ? Theme.controlHover : Theme.control
        border.color: root.enabled ? Theme.lineStrong : Theme.line
        FocusRing {
            shown: root.visualFocus
            controlRadius: root.cornerRadius
        }
    }
    indicator: Symbol {
        x: root.width - width - root.rightPadding
        y: (root.height - height) / 2
        name: "chevron.up.chevron.down"
        size: 14
        tint: Theme.text2
    }
    contentItem: Inside {}
    delegate: MenuRow {
        required property int index
        text: root.textAt(index)
        symbol: root.hasSymbols ? root.valueAt(index) : ""
        hasSymbol: root.hasSymbols
        chosen: root.currentIndex === index
        highlighted: root.highlightedIndex === index
    }
    popup: T.Popup {
        y: root.height + 4
        x: root.width - width
        padding: 5
        margins: 8
        width: Math.max(root.width, 200)
        implicitHeight: contentItem.implicitHeight + 10

        background: Rectangle {
            radius: 11
            color: Theme.raised
            border.color: Theme.lineStrong
            Shadow {
                spread: 20
                drop: 6
                cornerRadius: 11
            }
        }
        contentItem: ListView {
            implicitHeight: Math.min(contentHeight, 420)
            clip: contentHeight > height
            model: root.popup.visible ? root.delegateModel : null
            currentIndex: root.highlightedIndex
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
        }
    }
}
