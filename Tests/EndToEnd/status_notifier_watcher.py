"""A stand-in for a desktop panel: takes status items and lists them, as the real watchers do."""

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME, PATH = "org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher"
PROPERTIES = """  <interface name="org.kde.StatusNotifierWatcher">
    <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
    <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
    <property name="ProtocolVersion" type="i" access="read"/>
"""


class Watcher(dbus.service.Object):
    def __init__(self, bus):
        self.owner = dbus.service.BusName(NAME, bus)
        super().__init__(bus, PATH)
        self.items = []

    @dbus.service.method(dbus.INTROSPECTABLE_IFACE, out_signature="s", path_keyword="path", connection_keyword="bus")
    def Introspect(self, path, bus):
        text = super().Introspect(path, bus)
        return text.replace('  <interface name="org.kde.StatusNotifierWatcher">\n', PROPERTIES)

    @dbus.service.method(NAME, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, service, sender=None):
        self.items.append(sender if service.startswith("/") else service)
        self.StatusNotifierItemRegistered(service)

    @dbus.service.method(NAME, in_signature="s")
    def RegisterStatusNotifierHost(self, service):
        pass

    @dbus.service.signal(NAME, signature="s")
    def StatusNotifierItemRegistered(self, service):
        pass

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return self.GetAll(interface)[name]

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="s", out_signature="a{sv}")
    def GetAll(self, _):
        return {
            "RegisteredStatusNotifierItems": dbus.Array(self.items, signature="s"),
            "IsStatusNotifierHostRegistered": True,
            "ProtocolVersion": dbus.Int32(0),
        }


if __name__ == "__main__":
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    watcher = Watcher(dbus.SessionBus())
    print("ready", flush=True)
    GLib.MainLoop().run()
