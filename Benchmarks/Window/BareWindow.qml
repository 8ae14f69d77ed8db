pragma ComponentBehavior: Bound
import QtQuick

// As large as the main window, with nothing in it but a list.
Window {
    id: root

    property int rows: 12

    width: 960
    height: 640

    ListView {
        objectName: "list"
        anchors.fill: parent
        model: root.rows
        reuseItems: true
        delegate: BareRow {
            width: ListView.view.width
        }
    }
}
