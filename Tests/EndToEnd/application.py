"""The resident application under test, in a world of its own and on a private desktop."""

import shutil
import socket
import subprocess
import unittest

from desktop import Desktop, Menu, until
from window import Window
from world import BINARIES, World


class ApplicationTest(unittest.TestCase):
    """Whatever a test does, the application ends well and says nothing on standard error but `complaints`, a pattern."""

    first_run = False
    complaints = ""

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        self.world = World(first_run=self.first_run)
        self.addCleanup(self.world.remove)
        self.errors = self.world.folder / "errors"
        self.application = None
        self.addCleanup(self.stop)

    def launch(self, *arguments, **changes):
        self.application = self.start(*arguments, **changes)
        until(lambda: self.answers() or self.application.poll() is not None)
        self.assertIsNone(self.application.poll(), "it ended at once")
        return self.application

    def answers(self):
        """Whether somebody listens; a socket may be left from one that was killed."""
        with socket.socket(socket.AF_UNIX) as client:
            return client.connect_ex(str(self.world.support / "socket")) == 0

    def start(self, *arguments, **changes):
        environment = {**self.world.environment, **self.desktop.environment, **changes}
        with open(self.errors, "ab") as errors:
            return subprocess.Popen([BINARIES / "kelvane", *arguments], env=environment, stdin=subprocess.DEVNULL,
                                    stdout=subprocess.DEVNULL, stderr=errors)

    def open(self, *arguments):
        """Starts the application with its window and gives the window, ready for the keyboard."""
        self.launch(*arguments)
        return self.window()

    def window(self):
        until(self.windows)
        window = Window(self.desktop, self.application.pid)
        self.addCleanup(window.close)
        window.take_keys()
        return window

    def menu(self):
        return Menu(self.desktop, self.application.pid)

    def quit(self):
        self.application.terminate()
        self.assertEqual(self.application.wait(20), 0)

    def stop(self):
        if self.application and self.application.poll() is None:
            try:
                self.quit()
            finally:
                self.application.kill()
                self.application.wait()
        if self.errors.exists():
            self.assertRegex(self.errors.read_text(), rf"\A(?:{self.complaints})\Z")

    def use(self, app):
        """Brings a program to the front that runs from the bundle of that name, and waits until that has been counted."""
        before = self.switches(app)
        executable = self.world.folder / f"Applications/{app}.app/Contents/MacOS/{app}"
        shutil.copy(BINARIES / "LittleWindow", executable)
        program = self.desktop.start([executable], stdout=subprocess.PIPE)
        window = program.stdout.readline().decode().strip()
        until(lambda: self.desktop.output("xdotool", "getactivewindow") == window)
        until(lambda: self.switches(app) == before + 1)

    def switches(self, app):
        """How often it has come to the front this week, as the application counts."""
        ranking = self.world.ask("rank", "--window", "week")["ranking"]
        return sum(score["activations"] for score in ranking if score["name"] == app)

    def saved_switches(self, app):
        """The same by the file, where all days count."""
        usage = self.world.json("usage.json")
        bundles = [bundle for bundle, name in usage["names"].items() if name == app]
        return sum(day["activations"].get(bundle, 0) for day in usage["days"].values() for bundle in bundles)

    def windows(self):
        return self.desktop.windows(self.application.pid)

    def settings(self):
        return self.world.json("settings.json")

    def profile(self, name):
        return next(profile for profile in self.world.json("profiles.json") if profile["name"] == name)
