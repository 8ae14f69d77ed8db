pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// The symbol before the text of a button.
Symbol {
    id: root

    readonly property ButtonContent content: root.parent ? root.parent.parent as ButtonContent : null

    name: root.content ? root.content.symbol : ""
    size: root.content ? root.content.symbolSize : 16
    tint: root.content ? root.content.ink : Theme.clear
    RotationAnimator on rotation {
        running: root.content !== null && root.content.turning && root.visible && !Theme.reducedMotion
        loops: Animation.Infinite
        from: 0
        to: 360
        duration: 900
    }
}
