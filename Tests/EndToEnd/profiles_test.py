"""The Profiles pane: a profile made, named, filled, ordered, doubled and deleted, by pointer and by keyboard alone."""

import plistlib
import shutil
import unittest

from application import ApplicationTest
from desktop import until

PINNED, EXCLUDED, END = "Always in the Dock", "Never in the Dock", "Delete Profile…"
NOTES, CHESS, MAIL, MUSIC = "com.apple.Notes", "com.apple.Chess", "com.apple.mail", "com.apple.Music"
ODD_JOB = "org.example.oddjob"


class ProfilesPane(ApplicationTest):
    def open_profiles(self, profile):
        window = self.open("--show")
        window.click("Profiles", role="page tab")
        window.click(profile, role="list item")
        until(lambda: window.find("Name", role="text").text == profile)
        return window

    def await_profile(self, name, **values):
        until(lambda: {key: self.profile(name)[key] for key in values} == values)

    def names(self):
        return [profile["name"] for profile in self.world.json("profiles.json")]

    def search_and_add(self, window, word, app):
        """In the open picker, by its search field and the plus of the one application found."""
        window.keys("ctrl+a")
        window.type(word)
        until(lambda: [row.name for row in window.rows("Apps")] == [app])
        window.click("Add", about=app)
        window.find("Already added")

    def close_picker(self, window):
        window.click("Done")
        window.await_gone("Add Apps")

    def test_a_new_profile_is_named_filled_and_set(self):
        window = self.open("--show")
        window.click("Profiles", role="page tab")
        window.click("New profile")
        until(lambda: window.focused().name == "Name")
        window.type("Focus Time")
        until(lambda: self.names()[-1] == "Focus Time")
        window.click("airplane")
        window.click("Add Apps…", inside=PINNED)
        until(lambda: window.focused().name == "Search apps")
        self.search_and_add(window, "note", "Notes")
        self.search_and_add(window, "che", "Chess")
        window.keys("ctrl+a")
        window.type("no such app")
        window.find("No apps match your search.")
        self.close_picker(window)
        self.await_profile("Focus Time", symbol="airplane", pinned=[NOTES, CHESS], excluded=[])
        window.scroll_to("Add Apps…", above=END, inside=EXCLUDED)
        window.click("Add Apps…", inside=EXCLUDED)
        until(lambda: window.focused().name == "Search apps")
        self.search_and_add(window, "mus", "Music")
        self.close_picker(window)
        left, top, width, height = window.find("Most-used apps", role="spin box").place
        self.desktop.click(left + width - 14, top + height // 2, times=2)
        window.click("Last 30 days")
        self.await_profile("Focus Time", excluded=[MUSIC], adaptiveSlots=10, window=30)
        self.assertEqual(self.settings()["activeProfileID"], self.profile("Work")["id"])
        window.click("Make Active")
        until(lambda: self.settings()["activeProfileID"] == self.profile("Focus Time")["id"])
        plan = [tile["label"] or "|" for tile in self.world.ask("plan", "Focus Time")["tiles"]]
        self.assertEqual(plan[:3], ["Notes", "Chess", "|"])
        window.click("Apply to Dock")
        until(lambda: self.world.dock() == plan)

    def test_an_app_from_elsewhere_is_chosen_in_the_panel_and_stays_known(self):
        bundle = self.world.folder / "Tools/Odd Job.app"
        shutil.copytree(self.world.folder / "Applications/Chess.app", bundle)
        information = bundle / "Contents/Info.plist"
        information.write_bytes(plistlib.dumps({**plistlib.loads(information.read_bytes()), "CFBundleIdentifier": ODD_JOB}))
        window = self.open_profiles("Meeting")
        window.click("Add Apps…", inside=PINNED)
        until(lambda: window.focused().name == "Search apps")
        self.search_and_add(window, "che", "Chess")
        window.click("Choose Other…")
        window.find("Airtime.app", inside="Choose an App")
        window.click(self.world.folder.name, role="push button")
        self.desktop.click(*window.place("Tools", inside="Choose an App"), times=2)
        window.click("Odd Job.app", inside="Choose an App")
        window.click("Open")
        window.await_gone("Choose an App")
        self.close_picker(window)
        self.await_profile("Meeting", pinned=["org.example.huddle", "com.apple.iCal", NOTES, CHESS, ODD_JOB])
        for _ in range(2):
            window.scroll_to("Odd Job", above=END, role="list item")
            self.assertEqual(window.find("Odd Job", role="list item").description, "")
            # It was copied from Chess, so its icon is the same.
            until(lambda: self.icon(window, "Odd Job") == self.icon(window, "Chess"))
            self.assertNotEqual(self.icon(window, "Odd Job"), self.icon(window, "Notes"))
            self.quit()
            window = self.open_profiles("Meeting")
        window.click("Apply to Dock")
        until(lambda: "Odd Job" in self.world.dock())

    def icon(self, window, app):
        """What is drawn of it in its row."""
        left, top, _, height = window.find(app, role="list item", inside=PINNED).place
        return self.desktop.pixels(left + 13, top + height // 2 - 14, 28, 28)

    def test_a_folder_that_is_no_app_is_refused(self):
        window = self.open_profiles("Meeting")
        before = self.profile("Meeting")
        window.click("Add Apps…", inside=PINNED)
        window.click("Choose Other…")
        window.find("Airtime.app", inside="Choose an App")
        window.click(self.world.folder.name, role="push button")
        window.click("Downloads", inside="Choose an App")
        window.click("Open")
        window.find("“Downloads” is not an app.", role="alert message")
        window.click("Choose Other…")
        window.find("Airtime.app", inside="Choose an App")
        window.click("Cancel")
        window.await_gone("Choose an App")
        self.close_picker(window)
        self.assertEqual(self.profile("Meeting"), before)

    def test_dragged_moved_removed_and_brought_back(self):
        window = self.open_profiles("Personal")
        photos, music, messages = self.profile("Personal")["pinned"]
        x, y = window.place("Photos", role="list item", inside=PINNED)
        _, end = window.place("Messages", role="list item", inside=PINNED)
        self.desktop.drag((x - 100, y), (x - 100, end))
        self.await_profile("Personal", pinned=[music, messages, photos])
        window.click("Move up", about="Photos")
        self.await_profile("Personal", pinned=[music, photos, messages])
        window.click("Move down", about="Music")
        self.await_profile("Personal", pinned=[photos, music, messages])
        window.click("Remove", about="Music")
        self.await_profile("Personal", pinned=[photos, messages])
        window.click("Remove", about="Messages")
        self.await_profile("Personal", pinned=[photos])
        window.click("Undo Remove “Messages”")
        self.await_profile("Personal", pinned=[photos, messages])
        window.find("Undo Remove “Music”")
        window.keys("ctrl+z")
        self.await_profile("Personal", pinned=[photos, music, messages])
        window.await_gone("Undo Remove “Music”")

    def test_doubled_and_deleted(self):
        window = self.open_profiles("Coding")
        window.click("Duplicate profile")
        until(lambda: self.names()[-1] == "Coding Copy")
        original, copy = self.profile("Coding"), self.profile("Coding Copy")
        self.assertEqual({**copy, "id": original["id"], "name": "Coding"}, original)
        dock = self.world.dock()
        window.click(END)
        window.click("Cancel")
        window.await_gone("Delete this profile?")
        self.assertEqual(self.names()[-1], "Coding Copy")
        window.click(END)
        self.assertEqual(window.find("Delete this profile?", role="dialog").description, "Your Dock stays as it is.")
        window.click("Delete")
        until(lambda: self.names() == ["Everyday", "Work", "Coding", "Meeting", "Personal"])
        window.await_gone("Delete this profile?")
        # The active one goes, too, and the first takes its place.
        window.click("Work", role="list item")
        until(lambda: window.find("Name", role="text").text == "Work")
        window.click(END)
        window.click("Delete")
        until(lambda: self.settings()["activeProfileID"] == self.profile("Everyday")["id"])
        self.assertEqual(self.world.dock(), dock)

    def test_by_keyboard_alone(self):
        window = self.open("--show")
        window.walk_to("Profiles", role="page tab")
        window.keys("space")
        window.walk_to("New profile")
        window.keys("space")
        until(lambda: window.focused().name == "Name")
        window.type("Evening")
        until(lambda: self.names()[-1] == "Evening")
        window.walk_to("Add Apps…", inside=PINNED)
        window.keys("Return")
        until(lambda: window.focused().name == "Search apps")
        for word, app in (("mail", "Mail"), ("che", "Chess"), ("note", "Notes")):
            window.keys("ctrl+a")
            window.type(word)
            until(lambda: [row.name for row in window.rows("Apps")] == [app])
            window.keys("Return")
            window.find("Already added")
        window.keys("Escape")
        window.await_gone("Add Apps")
        self.await_profile("Evening", pinned=[MAIL, CHESS, NOTES])
        window.walk_to("Mail", role="list item")
        window.keys("Down")
        until(lambda: window.focused().name == "Chess")
        window.keys("alt+Up")
        self.await_profile("Evening", pinned=[CHESS, MAIL, NOTES])
        until(lambda: window.focused().name == "Chess")
        window.keys("Delete")
        self.await_profile("Evening", pinned=[MAIL, NOTES])
        window.keys("ctrl+z")
        self.await_profile("Evening", pinned=[CHESS, MAIL, NOTES])
        window.walk_to("Most-used apps", role="spin box")
        window.keys("Up", "Up", "Down")
        self.await_profile("Evening", adaptiveSlots=9)
        window.walk_to("Last 7 days")
        window.keys("Right")
        self.await_profile("Evening", window=30)
        window.walk_to("Make Active")
        window.keys("space")
        until(lambda: self.settings()["activeProfileID"] == self.profile("Evening")["id"])
        window.walk_to(END)
        window.keys("space")
        window.find("Delete this profile?")
        window.keys("Escape")
        window.await_gone("Delete this profile?")
        window.keys("space")
        window.find("Delete this profile?")
        window.keys("Return")
        until(lambda: self.names() == ["Everyday", "Work", "Coding", "Meeting", "Personal"])


if __name__ == "__main__":
    unittest.main(verbosity=1)
