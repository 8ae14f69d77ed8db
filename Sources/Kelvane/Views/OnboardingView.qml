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

        BigButton {
            x: 40
            anchors.verticalCenter: parent.verticalCenter
            visible: FirstRunViewModel.step > 0
            text: "Back"
            onClicked: FirstRunViewModel.back()
        }
        StepDots {
            anchors.centerIn: parent
            count: FirstRunViewModel.stepCount
            current: FirstRunViewModel.step
        }
        Row {
            anchors { right: parent.right; rightMargin: 40; verticalCenter: parent.verticalCenter }
            spacing: 10

            BigButton {
                visible: root.atEnd
                text: "Not Now"
                onClicked: FirstRunViewModel.notNow()
            }
            BigPrimaryButton {
                focus: true
                text: root.atEnd ? "Apply to My Dock" : "Continue"
                onClicked: root.goOn()
            }
        }
    }
}
