"""The Usage, History and Settings panes: each of their controls, and the files that change."""

import plistlib
import subprocess
import sys
import unittest

from application import ApplicationTest
from desktop import HERE, until


class Pane(ApplicationTest):
    def open_pane(self, pane):
        window = self.open("--show")
        window.click(pane, role="page tab")
        window.find(pane, role="heading")
        return window

    def snapshots(self):
        return self.world.json("Snapshots/index.json")


class UsagePane(Pane):
    def details(self, window):
        """What is told of the applications that show, in their order: names with the sentence below them."""
        return [(row.name, row.description.split(". ")[0]) for row in window.rows("Apps by usage")]

    def expected(self, name, days):
        def told(score):
            minutes = int(score["seconds"] // 60)
            time = f"{minutes // 60}h {minutes % 60}m" if minutes >= 60 else f"{minutes}m" if minutes else "under a minute"
            switches = score["activations"]
            parts = [f"{time} active"] if score["seconds"] > 0 else []
            parts += [f"{switches} switch" + ("es" if switches != 1 else "")] if switches else []
            opened = score["spotlightDays"]
            if score["trackedDays"]:
                parts.append(f"{score['trackedDays']} of {days} days")
            else:
                parts.append(f"opened on {opened} day" + ("s" if opened != 1 else "") + " (macOS history)")
            return score["name"], " · ".join(parts)
        return [told(score) for score in self.world.ask("rank", "--window", name)["ranking"]]

    def await_ranking(self, window, name, days):
        expected = self.expected(name, days)
        self.assertGreater(len(expected), 5)
        # As many as there is room for.
        until(lambda: len(shown := self.details(window)) > 3 and shown == expected[:len(shown)])
        return expected

    def test_the_two_windows(self):
        window = self.open_pane("Usage")
        week = self.await_ranking(window, "week", 7)
        window.find("active · Last 7 days")
        window.click("Last 30 days")
        window.find("active · Last 30 days")
        self.assertNotEqual(self.await_ranking(window, "month", 30), week)
        window.click("Last 7 days")
        self.await_ranking(window, "week", 7)


class HistoryPane(Pane):
    def held(self, snapshot):
        """The labels of a saved Dock, by its file."""
        state = plistlib.loads((self.world.support / "Snapshots" / (snapshot["id"] + ".plist")).read_bytes())
        return [tile["tile-data"].get("file-label", "|") for tile in state["persistent-apps"]]

    def row(self, window, snapshot):
        """How a screen reader calls its row."""
        return until(lambda: [row.name for row in window.rows("Saved Docks")
                              if row.name.startswith(snapshot["reason"] + ", ")])[0]

    def test_a_saved_dock_is_restored_after_asking(self):
        window = self.open_pane("History")
        before, snapshot = self.world.dock(), self.snapshots()[1]
        row = self.row(window, snapshot)
        window.click("Show what restoring would change", about=row)
        leaving = "Leaves: " + ", ".join(app for app in before if app not in self.held(snapshot))
        until(lambda: any(label.name.startswith(leaving + "\n") for label in window.all(role="label", inside=row)))
        window.click("Restore", about=row)
        question = window.find("Restore this Dock?", role="dialog")
        self.assertEqual(question.description, "Your current Dock is saved first, so you can come back to it.")
        window.click("Cancel")
        window.await_gone("Restore this Dock?")
        self.assertEqual(self.world.dock(), before)
        window.click("Restore", about=row)
        window.find("Restore this Dock?", role="dialog")
        window.click("Restore", about="")
        until(lambda: self.world.dock() == self.held(snapshot))
        window.find(f"Dock restored to “{snapshot['reason']}”.", role="alert message")
        window.await_gone("Restore this Dock?")
        window.find("Same as now")
        newest = self.snapshots()[0]
        self.assertEqual((newest["reason"], self.held(newest)), ("Before restoring", before))
        self.assertTrue(self.settings()["autoPaused"])

    def test_the_previous_dock_is_restored(self):
        window = self.open_pane("History")
        before, previous = self.world.dock(), self.snapshots()[0]
        window.click("Restore Previous Dock")
        until(lambda: self.world.dock() == self.held(previous))
        window.find(f"Dock restored to “{previous['reason']}”.", role="alert message")
        window.click("Restore Previous Dock")
        until(lambda: self.world.dock() == before)

    def test_deleted_and_the_dock_stays(self):
        window = self.open_pane("History")
        before, snapshots = self.world.dock(), self.snapshots()
        window.click("Delete", about=self.row(window, snapshots[0]))
        until(lambda: self.snapshots() == snapshots[1:])
        window.click("Delete", about=self.row(window, snapshots[1]))
        until(lambda: self.snapshots() == snapshots[2:])
        until(lambda: len(window.rows("Saved Docks")) == 1)
        # The first one of all cannot be deleted.
        self.assertEqual(window.all("Delete"), [])
        self.assertEqual([file.stem for file in (self.world.support / "Snapshots").glob("*.plist")], [snapshots[2]["id"]])
        self.assertEqual(self.world.dock(), before)


class SettingsPane(Pane):
    def test_the_schedule(self):
        window = self.open_pane("Settings")
        for label, seconds in (("Off — only when I ask", 0), ("Every hour", 3600), ("Every 4 hours", 14400),
                               ("Once a day", 86400)):
            window.click("Reorganize automatically", role="combo box")
            window.click(label, role="menu item")
            until(lambda: self.settings()["autoUpdate"] == seconds)
            window.await_gone(label, role="menu item")
            until(lambda: window.find("Reorganize automatically", role="combo box").description == label)

    def test_the_switches(self):
        window = self.open_pane("Settings")
        login_item = self.world.folder / ".config/autostart/org.kelvane.Kelvane.desktop"
        for on in (True, False):
            window.click("Open at login", role="check box")
            until(lambda: login_item.exists() == on)
            until(lambda: ("checked" in window.find("Open at login", role="check box").states) == on)
        menu = self.menu()
        for on in (False, True):
            window.click("Track app usage", role="check box")
            until(lambda: self.settings()["trackingEnabled"] == on)
            until(lambda: ("checked" in window.find("Track app usage", role="check box").states) == on)
            self.assertEqual(menu.item("Track App Usage")["toggle-state"], int(on))

    def test_a_pause_is_resumed(self):
        window = self.open("--show")
        plan = [tile["label"] or "|" for tile in self.world.ask("plan", "Work")["tiles"]]
        self.assertTrue(self.world.ask("apply", "Work")["changed"])
        self.world.ask("restore")
        window.click("Settings", role="page tab")
        window.find("Paused: the Dock was changed outside Kelvane.")
        window.click("Resume")
        until(lambda: self.world.dock() == plan)
        window.await_gone("Paused: the Dock was changed outside Kelvane.")
        self.assertFalse(self.settings()["autoPaused"])

    def test_the_data_is_shown_where_it_lies(self):
        opener = self.world.folder / "bin/xdg-open"
        opened = self.world.folder / "opened"
        opener.parent.mkdir()
        opener.write_text(f'#!/bin/sh\necho "$1" >>"{opened}"\n')
        opener.chmod(0o755)
        self.world.environment["PATH"] = f"{opener.parent}:{self.world.environment['PATH']}"
        window = self.open_pane("Settings")
        window.find("~/Library/Application Support/Kelvane")
        window.find(self.world.run("--version")[1].split()[1])
        # Without a file manager that can mark a file its folder is opened.
        window.click("Show in Finder")
        until(lambda: opened.exists() and opened.read_text().endswith("\n"))
        self.assertEqual(opened.read_text(), self.world.support.as_uri() + "\n")
        manager = self.desktop.start([sys.executable, "-B", HERE / "file_manager.py"], stdout=subprocess.PIPE)
        self.assertEqual(manager.stdout.readline(), b"ready\n")
        window.click("Show in Finder")
        self.assertEqual(manager.stdout.readline().decode(), (self.world.support / "usage.json").as_uri() + "\n")

    def test_the_usage_is_erased_after_asking(self):
        window = self.open_pane("Settings")
        profiles, snapshots = self.world.json("profiles.json"), self.snapshots()
        window.click("Erase")
        question = window.find("Erase your usage history?", role="dialog")
        self.assertEqual(question.description, "Profiles and saved Docks are kept. Suggestions fall back to macOS's own record "
                                               "of opened apps.")
        window.keys("Escape")
        window.await_gone("Erase your usage history?")
        self.assertTrue((self.world.support / "usage.json").exists())
        window.click("Erase")
        window.find("Erase your usage history?", role="dialog")
        window.keys("Return")
        until(lambda: not (self.world.support / "usage.json").exists())
        window.find("Usage history erased.", role="alert message")
        window.await_gone("Erase your usage history?")
        self.assertEqual((self.world.json("profiles.json"), self.snapshots()), (profiles, snapshots))
        window.click("Usage", role="page tab")
        window.find("Tracking starts now. Until then, ranks use macOS's record of which days each app was opened.")
        until(lambda: (rows := window.rows("Apps by usage")) and all("(macOS history)" in row.description for row in rows))


if __name__ == "__main__":
    unittest.main(verbosity=1)
