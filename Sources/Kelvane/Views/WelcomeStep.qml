pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kelvane

// What this application is for, in four points.
Flickable {
    id: root

    readonly property real startY: Math.max(24, Math.min(84, (root.height - 388) / 2))

    component Point: Item {
        id: point

        required property string symbol
        required property string title
        required property string text

        implicitWidth: 320
        implicitHeight: words.height

        Symbol {
            y: 1
            name: point.symbol
            size: 28
            tint: Theme.accentText
        }
        Column {
            id: words
            x: 44
            width: point.width - 44
            spacing: 2
            Label {
                width: parent.width
                text: point.title
                type: Theme.headingBig
                wrapMode: Text.Wrap
            }
            Label {
                width: parent.width
                text: point.text
                color: Theme.text2
                wrapMode: Text.Wrap
            }
        }
    }

    contentWidth: width
    contentHeight: points.y + points.height + 24
    boundsBehavior: Flickable.StopAtBounds
    clip: contentHeight > height
    T.ScrollBar.vertical: ScrollBar {}

    KeyScroll {
        area: root
    }

    Symbol {
        id: mark
        anchors.horizontalCenter: parent.horizontalCenter
        y: root.startY
        name: "kelvane-mark"
        size: 88
    }
    StepTitle {
        id: title
        y: mark.y + mark.height + 28
        width: root.width
        title: "A Dock that keeps up with you"
        text: "Kelvane reorganizes your Dock around the apps you actually use."
        type: Theme.lead
    }
    Grid {
        id: points
        anchors.horizontalCenter: parent.horizontalCenter
        y: title.y + title.height + 52
        columns: 2
        columnSpacing: 40
        rowSpacing: 32

        Point {
            symbol: "chart.bar.fill"
            title: "Promotes what you use"
            text: "Ranks apps by your last 7 or 30 days and moves them up front."
        }
        Point {
            symbol: "square.stack.3d.up.fill"
            title: "Profiles for every mode"
            text: "Work, Coding, Meeting and Personal. Switch from the menu bar."
        }
        Point {
            symbol: "arrow.uturn.backward.circle.fill"
            title: "One-click undo"
            text: "Every change is saved first. Restore any earlier Dock."
        }
        Point {
            symbol: "lock.shield.fill"
            title: "Private by design"
            text: "Your usage never leaves this Mac. No account, no cloud."
        }
    }
}
