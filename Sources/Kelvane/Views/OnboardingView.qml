pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The first run: three steps and the bar that walks through them. The step is the model's.
FocusScope {
    id: root

    focus: true

    readonly property bool atEnd: FirstRunViewModel.step === FirstRunViewModel.stepCount - 1

    function goOn() {
        if (root.atEnd)
            FirstRunViewModel.applyToDock();
        else
            FirstRunViewModel.advance();
    }

    Keys.onReturnPressed: root.goOn()
    Keys.onEnterPressed: root.goOn()
    Keys.onEscapePressed: FirstRunViewModel.back()

    StepStage {
        width: root.width
        height: root.height - bar.height
        step: FirstRunViewModel.step
    }
    Item {
        id: bar
        width: root.width
        height: Theme.firstRunBarHeight
        y: root.height - height

        PushButton {
            x: 40
            anchors.verticalCenter: parent.verticalCenter
            visible: FirstRunViewModel.step > 0
            text: "Back"
            size: PushButton.Big
            onClicked: FirstRunViewModel.back()
        }
        Row {
            anchors.centerIn: parent
            spacing: 8
            Accessible.role: Accessible.StaticText
            Accessible.name: "Step " + (FirstRunViewModel.step + 1) + " of " + FirstRunViewModel.stepCount

            Repeater {
                model: FirstRunViewModel.stepCount
                Rectangle {
                    id: dot
                    required property int index
                    readonly property bool current: dot.index === FirstRunViewModel.step
                    width: dot.current ? 20 : 7
                    height: 7
                    radius: 3.5
                    color: dot.current ? Theme.accent : Theme.trackOff
                    Behavior on width { NumberAnimation { duration: Theme.slideTime; easing.type: Easing.OutCubic } }
                }
            }
        }
        Row {
            anchors { right: parent.right; rightMargin: 40; verticalCenter: parent.verticalCenter }
            spacing: 10

            PushButton {
                visible: root.atEnd
                text: "Not Now"
                size: PushButton.Big
                onClicked: FirstRunViewModel.notNow()
            }
            PushButton {
                focus: true
                kind: PushButton.Primary
                size: PushButton.Big
                text: root.atEnd ? "Apply to My Dock" : "Continue"
                onClicked: root.goOn()
            }
        }
    }
}
