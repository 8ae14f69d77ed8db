"""A stand-in for a desktop's file manager: says what it is asked to show, a URL a line."""

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.freedesktop.FileManager1"


class FileManager(dbus.service.Object):
    def __init__(self, bus):
        self.owner = dbus.service.BusName(NAME, bus)
        super().__init__(bus, "/org/freedesktop/FileManager1")

    @dbus.service.method(NAME, in_signature="ass")
    def ShowItems(self, urls, startup_id):
        for url in urls:
            print(url, flush=True)


if __name__ == "__main__":
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    manager = FileManager(dbus.SessionBus())
    print("ready", flush=True)
    GLib.MainLoop().run()
