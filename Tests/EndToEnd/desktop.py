"""A private desktop for the real application: X server, window manager, buses, panel, and hands to use it with."""

import os
import pathlib
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time

import dbus
import dbus.bus

HERE = pathlib.Path(__file__).resolve().parent


def until(condition, seconds=20):
    """The first true answer of `condition`, asked again and again; fails when none comes in time."""
    deadline = time.monotonic() + seconds
    while True:
        try:
            if answer := condition():
                return answer
        except dbus.DBusException:
            # What is on the screen may go while it is looked at.
            pass
        if time.monotonic() > deadline:
            raise AssertionError("it did not come true: " + (condition.__doc__ or condition.__name__))
        time.sleep(0.05)


class Desktop:
    def __init__(self):
        self.processes = []
        # Made readable for nobody else, as sessions have it; sockets have short names, so it must have one too.
        self.runtime = tempfile.mkdtemp(prefix="kv-", dir="/tmp")
        self.environment = {
            "DISPLAY": self.start_x(),
            # Nothing of the machine's own is to be found there.
            "DBUS_SYSTEM_BUS_ADDRESS": "unix:path=/nonexistent",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "XDG_RUNTIME_DIR": self.runtime,
        }
        self.address = self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.start_bus()
        self.start(["openbox", "--config-file", "/etc/xdg/openbox/rc.xml"])
        watcher = self.start([sys.executable, "-B", HERE / "status_notifier_watcher.py"], stdout=subprocess.PIPE)
        assert watcher.stdout.readline() == b"ready\n"
        until(lambda: self.output("xdotool", "get_desktop") is not None)

    def start_x(self):
        read, write = os.pipe()
        self.x_server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24", "-noreset", "-nolisten", "tcp",
             "-fbdir", self.runtime],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.processes.append(self.x_server)
        os.close(write)
        with os.fdopen(read) as pipe:
            return ":" + pipe.readline().strip()

    def start_bus(self):
        bus = self.start(["dbus-daemon", "--session", "--nofork", "--print-address"], stdout=subprocess.PIPE)
        return bus.stdout.readline().decode().strip()

    def start(self, command, **options):
        process = subprocess.Popen(command, env={**os.environ, **self.environment},
                                   **{"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, **options})
        self.processes.append(process)
        return process

    def output(self, *command):
        """What the command prints; nothing when it fails."""
        result = subprocess.run(command, env={**os.environ, **self.environment}, capture_output=True, text=True, timeout=20)
        return result.stdout.strip() if result.returncode == 0 else None

    def windows(self, pid):
        """The visible windows of a process."""
        return (self.output("xdotool", "search", "--onlyvisible", "--pid", str(pid), "--name", "Kelvane") or "").split()

    def key(self, *keys):
        self.output("xdotool", "key", "--clearmodifiers", *keys)

    def type(self, text):
        self.output("xdotool", "type", "--delay", "15", text)

    def click(self, x, y, times=1):
        self.output("xdotool", "mousemove", str(x), str(y))
        self.output("xdotool", "click", "--repeat", str(times), "--delay", "60", "1")

    def pixels(self, left, top, width, height):
        """What the screen shows there, as bytes."""
        screen = pathlib.Path(self.runtime, "Xvfb_screen0").read_bytes()
        # The dump begins with numbers: the first is its own size, further on the bytes a row and the colours that follow.
        numbers = struct.unpack(">25I", screen[:100])
        start, stride = numbers[0] + 12 * numbers[19], numbers[12]
        return b"".join(screen[start + row * stride + 4 * left:start + row * stride + 4 * (left + width)]
                        for row in range(top, top + height))

    def wheel(self, x, y, steps):
        """Turns the wheel over a place, towards the end or, with a negative number, towards the beginning."""
        self.output("xdotool", "mousemove", str(x), str(y), "click", "--repeat", str(abs(steps)), "4" if steps < 0 else "5")

    def drag(self, start, end):
        """Presses at one place, goes to the other on a straight line, and lets go there."""
        self.output("xdotool", "mousemove", *map(str, start), "mousedown", "1")
        for step in range(1, 9):
            place = [round(a + (b - a) * step / 8) for a, b in zip(start, end)]
            self.output("xdotool", "mousemove", *map(str, place))
        self.output("xdotool", "mouseup", "1")

    def close(self):
        for process in reversed(self.processes):
            # Asked to end, the X server takes its lock file along.
            process.send_signal(signal.SIGTERM if process is self.x_server else signal.SIGKILL)
            process.wait()
            if process.stdout:
                process.stdout.close()
        shutil.rmtree(self.runtime, ignore_errors=True)


def process(bus, service):
    """Who speaks under that name; nothing when nobody does any more."""
    try:
        return int(bus.call_blocking(dbus.BUS_DAEMON_NAME, dbus.BUS_DAEMON_PATH, dbus.BUS_DAEMON_IFACE,
                                     "GetConnectionUnixProcessID", "s", (service,)))
    except dbus.DBusException:
        return None


class Menu:
    """The menu of a process's status item, as a panel reads it."""

    def __init__(self, desktop, pid):
        self.bus = dbus.bus.BusConnection(desktop.address)
        watcher = self.bus.get_object("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher")

        def services():
            items = watcher.Get("org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems",
                                dbus_interface=dbus.PROPERTIES_IFACE)
            return [service for service in items if process(self.bus, service) == pid]
        service = until(services)[0]
        item = self.bus.get_object(service, "/StatusNotifierItem")
        self.properties = item.GetAll("org.kde.StatusNotifierItem", dbus_interface=dbus.PROPERTIES_IFACE)
        self.menu = dbus.Interface(self.bus.get_object(service, self.properties["Menu"]), "com.canonical.dbusmenu")

    def items(self):
        """The items as they stand when the menu opens: dictionaries of their properties, with "id"."""
        self.menu.AboutToShow(dbus.Int32(0))
        _, (_, _, children) = self.menu.GetLayout(dbus.Int32(0), dbus.Int32(-1), dbus.Array([], signature="s"))
        return [{**{str(key): value for key, value in properties.items()}, "id": int(identifier)}
                for identifier, properties, _ in children]

    def labels(self):
        return ["-" if item.get("type") == "separator" else str(item["label"]) for item in self.items()]

    def item(self, label):
        return next(item for item in self.items() if item.get("label") == label)

    def click(self, label):
        self.menu.Event(dbus.Int32(self.item(label)["id"]), "clicked", dbus.String("", variant_level=1),
                        dbus.UInt32(0))
