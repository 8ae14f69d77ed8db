"""What a window shows, read as a screen reader reads it, and hands that click and type where it shows it."""

import functools

import dbus
import dbus.bus

from desktop import process, until

ACCESSIBLE, COMPONENT = "org.a11y.atspi.Accessible", "org.a11y.atspi.Component"
# Where the states are in the two words that tell them.
STATES = {"active": 1, "checked": 4, "focused": 12, "selected": 23, "showing": 25}


class Control:
    """One thing on the screen. It may go at any moment; whoever asks it then gets a DBusException."""

    def __init__(self, bus, service, path):
        self.bus, self.reference = bus, (str(service), str(path))
        self.object = bus.get_object(service, path, introspect=False)

    def __eq__(self, other):
        return isinstance(other, Control) and self.reference == other.reference

    def ask(self, name):
        return str(self.object.Get(ACCESSIBLE, name, dbus_interface=dbus.PROPERTIES_IFACE))

    @property
    def name(self):
        return self.ask("Name")

    @property
    def description(self):
        return self.ask("Description")

    @property
    def role(self):
        return str(self.object.GetRoleName(dbus_interface=ACCESSIBLE))

    @property
    def text(self):
        """What stands in a text field."""
        return str(self.object.GetText(dbus.Int32(0), dbus.Int32(-1), dbus_interface="org.a11y.atspi.Text"))

    @property
    def children(self):
        return [Control(self.bus, *child) for child in self.object.GetChildren(dbus_interface=ACCESSIBLE)]

    @functools.cached_property
    def states(self):
        """As they are when it is looked at first; whoever waits for a change looks for the control again."""
        words = self.object.GetState(dbus_interface=ACCESSIBLE)
        return {name for name, place in STATES.items() if int(words[0]) >> place & 1}

    @property
    def place(self):
        """Left, top, width and height on the screen."""
        return tuple(int(value) for value in self.object.GetExtents(dbus.UInt32(0), dbus_interface=COMPONENT))

    @property
    def middle(self):
        left, top, width, height = self.place
        return left + width // 2, top + height // 2

    def all(self):
        """Itself and everything in it that shows, in the order of the tree."""
        if "showing" in self.states:
            yield self
            for child in self.children:
                yield from child.all()


class Window:
    """The window of one process. Things are called what a screen reader calls them; whatever is asked for is waited for."""

    def __init__(self, desktop, pid):
        self.desktop, self.pid = desktop, pid
        session = dbus.bus.BusConnection(desktop.address)
        address = session.get_object("org.a11y.Bus", "/org/a11y/bus").GetAddress(dbus_interface="org.a11y.Bus")
        session.close()
        self.bus = dbus.bus.BusConnection(str(address))
        until(self.roots)

    def close(self):
        self.bus.close()

    # Looking

    def roots(self):
        registry = Control(self.bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
        return [child for child in registry.children if process(self.bus, child.reference[0]) == self.pid]

    def all(self, name=None, role=None, about=None, inside=None):
        """Everything that shows and has these, in reading order; `about` is the description, `inside` the name of what it
        lies in."""
        def walk():
            shown = [control for root in self.roots() for control in root.all()]
            if inside:
                shown = [control for around in shown if around.name == inside for control in around.all()]
            return [[control for control in shown if name in (None, control.name) and role in (None, control.role)
                     and about in (None, control.description)]]
        return until(walk)[0]

    def rows(self, inside):
        """The rows of a list from the top down; the tree has them in the order in which they came."""
        return sorted(self.all(role="list item", inside=inside), key=lambda row: row.place[1])

    def find(self, name, **more):
        """The first that has these."""
        try:
            return until(lambda: self.all(name, **more))[0]
        except AssertionError:
            shown = [control.name for control in self.all() if control.name]
            raise AssertionError(f"there is no {name!r} ({more}) among {shown}") from None

    def await_gone(self, name, **more):
        until(lambda: not self.all(name, **more))

    def focused(self):
        """What takes the keys; of things in each other the innermost."""
        return next((control for control in reversed(self.all()) if "focused" in control.states), None)

    # Acting

    def has_keys(self):
        return "active" in self.find("Kelvane", role="frame").states

    def take_keys(self):
        self.desktop.output("xdotool", "windowactivate", until(lambda: self.desktop.windows(self.pid))[0])
        until(self.has_keys)

    def place(self, name, **more):
        """The middle of a control, once it has come to rest."""
        self.find(name, **more)
        seen = []

        def rests():
            seen.extend(control.middle for control in self.all(name, **more)[:1])
            return len(seen) > 1 and seen[-1] == seen[-2]
        until(rests)
        return seen[-1]

    def click(self, name, **more):
        self.desktop.click(*self.place(name, **more))

    def scroll_to(self, name, above, **more):
        """Turns the wheel until a control lies below the window's edge and above something at its foot."""
        top, bottom = self.find("Kelvane", role="frame").place[1] + 24, self.place(above)[1] - 48
        for _ in range(40):
            x, y = self.place(name, **more)
            if top < y < bottom:
                return
            self.desktop.wheel(x, (top + bottom) // 2, -1 if y < top else 1)
        raise AssertionError(f"the wheel does not bring {name!r} into sight")

    def walk_to(self, name, **more):
        """Presses Tab until the keys go to a control."""
        wanted, here = self.find(name, **more), self.focused()
        for _ in range(80):
            if here == wanted:
                return
            before = here
            self.keys("Tab")
            here = until(lambda: next((now for now in [self.focused()] if now and now != before), None))
        raise AssertionError(f"the Tab key does not come to {name!r}")

    def keys(self, *keys):
        self.desktop.key(*keys)

    def type(self, text):
        self.desktop.type(text)
