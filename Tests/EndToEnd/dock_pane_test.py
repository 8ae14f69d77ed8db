"""The Dock pane: a profile chosen and applied, the message about it, the pause, and the end with what was used."""

import plistlib
import time
import unittest

from application import ApplicationTest
from desktop import until


class DockPane(ApplicationTest):
    def plan(self, profile):
        return [tile["label"] or "|" for tile in self.world.ask("plan", profile)["tiles"]]

    def choose(self, window, profile):
        window.click("Profile", role="combo box")
        window.click(profile, role="menu item")

    def tiles(self, window, shelf):
        """What a shelf shows, without the marks of change."""
        tiles = window.find(shelf, role="list").children
        return [tile.name.split(",")[0] or "|" for tile in tiles if tile.role in ("graphic", "separator")]

    def test_a_chosen_profile_is_shown_and_applied_by_the_button(self):
        window = self.open("--show")
        before, plan = self.world.dock(), self.plan("Personal")
        self.choose(window, "Personal")
        window.find("Suggested for Personal", role="list")
        until(lambda: self.tiles(window, "Suggested for Personal") == plan)
        self.assertEqual(self.settings()["activeProfileID"], self.profile("Personal")["id"])
        self.assertEqual(self.world.dock(), before)
        pressed = time.monotonic()
        window.click("Apply to Dock")
        until(lambda: self.world.dock() == plan)
        window.find("Dock updated for Personal.", role="alert message")
        window.await_gone("Dock updated for Personal.")
        # A timer may be early by a twentieth.
        self.assertGreater(time.monotonic() - pressed, 3.5 * 0.95)
        window.find("Matches your Dock", role="push button")
        until(lambda: self.tiles(window, "Now") == [name for name in plan if name != "|"])
        snapshot = self.world.json("Snapshots/index.json")[0]
        self.assertEqual(snapshot["reason"], "Before Personal")
        self.assertEqual(len(snapshot["bundleIDs"]), len(before))

    def test_a_restored_dock_stays_until_somebody_resumes(self):
        window = self.open("--show")
        before, plan = self.world.dock(), self.plan("Work")
        window.click("Apply to Dock")
        until(lambda: self.world.dock() == plan)
        window.find("Matches your Dock")
        self.menu().click("Restore Previous Dock")
        until(lambda: self.world.dock() == before)
        window.find("Dock restored to “Before Work”.", role="alert message")
        window.click("Resume")
        until(lambda: self.world.dock() == plan)
        window.await_gone("Resume")
        self.assertFalse(self.settings()["autoPaused"])

    def test_a_change_by_hand_pauses_until_somebody_resumes(self):
        window = self.open("--show")
        plan = self.plan("Work")
        window.click("Apply to Dock")
        until(lambda: self.world.dock() == plan)
        window.find("Matches your Dock")
        with open(self.world.dock_file, "rb+") as file:
            dock = plistlib.load(file)
            dock["persistent-apps"].reverse()
            file.seek(0)
            file.truncate()
            plistlib.dump(dock, file)
        self.use("Chess")
        until(lambda: not window.has_keys())
        window.take_keys()
        window.find("Resume", role="push button")
        self.assertTrue(self.settings()["autoPaused"])
        self.assertEqual(self.world.dock(), plan[::-1])
        window.click("Resume", role="push button")
        until(lambda: self.world.dock() == plan)

    def test_edit_leads_to_the_profile(self):
        window = self.open("--show")
        self.choose(window, "Coding")
        window.click("Edit Coding")
        self.assertIn("selected", window.find("Profiles", role="page tab").states)
        self.assertEqual(window.find("Name", role="text").text, "Coding")

    def test_closed_opened_and_quit_it_keeps_what_was_used(self):
        before = self.saved_switches("Chess")
        window = self.open("--show")
        window.click("Usage", role="page tab")
        window.keys("ctrl+w")
        until(lambda: not self.windows())
        self.use("Chess")
        self.menu().click("Open Kelvane…")
        window.take_keys()
        self.assertIn("selected", window.find("Usage", role="page tab").states)
        self.assertEqual(self.saved_switches("Chess"), before)
        window.keys("ctrl+q")
        self.assertEqual(self.application.wait(20), 0)
        self.assertEqual(self.saved_switches("Chess"), before + 1)


if __name__ == "__main__":
    unittest.main(verbosity=1)
