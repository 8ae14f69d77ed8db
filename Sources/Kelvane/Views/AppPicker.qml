pragma ComponentBehavior: Bound
import QtQuick
import Kelvane

// Chooses applications for a profile's list: by search, from the list, or any bundle on disk. It stays open until done.
Sheet {
    id: root

    onAboutToShow: (root.contentItem as PickerContent).begin()

    contentItem: PickerContent {
        focus: true
        onFinished: root.close()
    }
}
