pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Shows one step of the first run; the old one fades out to one side, the new one comes in from the other.
Item {
    id: root

    required property int step
    property int shownStep: root.step
    property int direction: 1

    function turn() {
        root.shownStep = root.step;
        loader.x = 16 * root.direction;
    }

    onStepChanged: {
        root.direction = root.step > root.shownStep ? 1 : -1;
        if (Theme.stepTime > 0)
            change.restart();
        else
            root.shownStep = root.step;
    }

    Loader {
        id: loader
        width: root.width
        height: root.height
        source: root.shownStep === 0 ? "WelcomeStep.qml" : root.shownStep === 1 ? "ChooseStep.qml" : "SafetyStep.qml"
    }
    SequentialAnimation {
        id: change
        ParallelAnimation {
            NumberAnimation { target: loader; property: "opacity"; to: 0; duration: Theme.stepTime / 2 }
            NumberAnimation { target: loader; property: "x"; to: -16 * root.direction; duration: Theme.stepTime / 2 }
        }
        ScriptAction {
            script: root.turn()
        }
        ParallelAnimation {
            NumberAnimation { target: loader; property: "opacity"; to: 1; duration: Theme.stepTime / 2 }
            NumberAnimation { target: loader; property: "x"; to: 0; duration: Theme.stepTime / 2; easing.type: Easing.OutCubic }
        }
    }
}
