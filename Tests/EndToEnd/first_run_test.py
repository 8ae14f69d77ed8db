"""The first run: from the first sight of the window to an applied Dock, by pointer and by keyboard alone, and the ways
out of it."""

import unittest

from application import ApplicationTest
from desktop import until

WELCOME, CHOOSE, SAFETY = "A Dock that keeps up with you", "Where should we start?", "Your Dock is safe"
SCHEDULE, LOGIN = "Reorganize automatically", "Open at login (recommended, so usage is counted)"


class FirstRun(ApplicationTest):
    first_run = True

    def setUp(self):
        super().setUp()
        self.login_item = self.world.folder / ".config/autostart/org.kelvane.Kelvane.desktop"
        self.dock = self.world.dock()

    def opens_by_itself(self):
        window = self.open()
        window.find(WELCOME, role="heading")
        self.assertFalse(self.settings()["onboarded"])
        return window

    def choose(self, profile):
        """Waits for what a choice of the second step does, and for all that it does not."""
        until(lambda: self.settings().get("activeProfileID") == self.profile(profile)["id"])
        self.assertEqual(self.world.dock(), self.dock)
        self.assertFalse(self.settings()["onboarded"])
        return [tile["label"] or "|" for tile in self.world.ask("plan", profile)["tiles"]]

    def assert_applied(self, window, profile, plan):
        window.find("Your Dock", role="heading")
        until(lambda: self.world.dock() == plan)
        window.find(f"Dock updated for {profile}.", role="alert message")
        window.find("Matches your Dock")
        self.assertTrue(self.settings()["onboarded"])
        snapshots = self.world.json("Snapshots/index.json")
        self.assertEqual([snapshot["reason"] for snapshot in snapshots], [f"Before {profile}", "Before Kelvane"])
        self.assertTrue(snapshots[1]["isOriginal"])

    def test_by_pointer(self):
        window = self.opens_by_itself()
        window.click("Continue")
        window.find(CHOOSE)
        window.click("Back")
        window.find(WELCOME)
        window.click("Continue")
        window.click("Coding", role="radio button")
        plan = self.choose("Coding")
        until(lambda: "checked" in window.find("Coding", role="radio button").states)
        window.click("Continue")
        window.find(SAFETY)
        window.find("Suggested for Coding")
        window.click(SCHEDULE, role="combo box")
        window.click("Every hour", role="menu item")
        until(lambda: self.settings()["autoUpdate"] == 3600)
        window.click(LOGIN, role="check box")
        until(self.login_item.exists)
        window.click("Apply to My Dock")
        self.assert_applied(window, "Coding", plan)

    def test_by_keyboard_alone(self):
        window = self.opens_by_itself()
        window.keys("Return")
        window.find(CHOOSE)
        window.walk_to("Everyday", role="radio button")
        window.keys("Down", "Down", "Down")
        until(lambda: window.focused().name == "Meeting")
        window.keys("Up")
        until(lambda: window.focused().name == "Coding")
        window.keys("space")
        plan = self.choose("Coding")
        window.keys("Escape")
        window.find(WELCOME)
        window.keys("Return")
        window.find(CHOOSE)
        window.keys("Return")
        window.find(SAFETY)
        window.walk_to(SCHEDULE, role="combo box")
        window.keys("Return")
        window.find("Every hour", role="menu item")
        window.keys("Up", "Up", "Return")
        until(lambda: self.settings()["autoUpdate"] == 3600)
        window.await_gone("Every hour", role="menu item")
        window.walk_to(LOGIN, role="check box")
        window.keys("space")
        until(self.login_item.exists)
        window.keys("space")
        until(lambda: not self.login_item.exists())
        window.walk_to("Apply to My Dock")
        window.keys("Return")
        self.assert_applied(window, "Coding", plan)

    def test_not_now_changes_nothing_and_comes_not_back(self):
        window = self.opens_by_itself()
        window.click("Continue")
        window.find(CHOOSE)
        window.click("Continue")
        window.find(SAFETY)
        window.click("Not Now")
        window.find("Your Dock", role="heading")
        until(lambda: self.settings()["onboarded"])
        self.quit()
        self.assertEqual(self.world.dock(), self.dock)
        self.assertEqual([snapshot["reason"] for snapshot in self.world.json("Snapshots/index.json")], ["Before Kelvane"])
        self.launch()
        self.menu().labels()
        self.assertEqual(self.windows(), [])

    def test_closed_in_the_middle_it_comes_back(self):
        window = self.opens_by_itself()
        window.click("Continue")
        window.click("Personal", role="radio button")
        self.choose("Personal")
        window.keys("ctrl+w")
        until(lambda: not self.windows())
        self.menu().click("Open Kelvane…")
        window.take_keys()
        window.find(CHOOSE)
        self.quit()
        window = self.opens_by_itself()
        window.click("Continue")
        self.assertIn("checked", window.find("Personal", role="radio button").states)
        self.assertEqual(self.world.dock(), self.dock)


if __name__ == "__main__":
    unittest.main(verbosity=1)
