pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// On or off. It shows what the model says; `toggled` reports what the user asks for.
T.Switch {
    id: root

    implicitWidth: 38
    implicitHeight: 22
    opacity: root.enabled ? 1 : 0.4
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.text
    Accessible.onPressAction: root.flip()
    Accessible.onToggleAction: root.flip()
    Keys.onReturnPressed: root.flip()
    Keys.onEnterPressed: root.flip()

    function flip() {
        root.toggle();
        root.toggled();
    }

    indicator: Rectangle {
        implicitWidth: 38
        implicitHeight: 22
        radius: 11
        color: root.checked ? Theme.accent : Theme.trackOff
        Behavior on color { ColorAnimation { duration: Theme.colourTime } }
        Rectangle {
            x: root.checked ? parent.width - width - 2 : 2
            y: 2
            width: root.down ? 19 : 18
            height: 18
            radius: 9
            color: Theme.knob
            Behavior on x { NumberAnimation { duration: Theme.slideTime; easing.type: Easing.OutCubic } }
        }
        FocusRing {
            shown: root.visualFocus
            controlRadius: 11
        }
    }
}
