import QtQuick

// Room between two blocks.
Item {
    width: 1
}
