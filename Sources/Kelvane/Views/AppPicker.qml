pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Chooses applications for a profile's list: by search, from the list, or any bundle on disk. It stays open until done.
Sheet {
    id: root

    onOpened: (root.contentItem as PickerContent).begin()

    contentItem: PickerContent {
        onFinished: root.close()
    }
}
