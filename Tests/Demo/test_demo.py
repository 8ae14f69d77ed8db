"""The demo's world, and what the real command line makes of it. KELVANECTL names the program."""

import json
import os
import pathlib
import plistlib
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
DEMO = pathlib.Path(__file__).resolve().parents[2] / "Demo"
sys.path.insert(0, str(DEMO))

from apps import DOCK, identifiers

WORK = identifiers("Mail Calendar Parley Notes") + ["smallSpacer"] + identifiers(
    "Codeway Halcyon Terminal Draftboard Ledgerline Huddle Reminders Messages")


class World(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.world = pathlib.Path(folder.name).resolve() / "world"
        self.dock = self.world / "Library/Preferences/com.apple.dock.plist"
        self.support = self.world / "Library/Application Support/Kelvane"

    def make(self, *options):
        command = [sys.executable, str(DEMO / "make_world.py"), str(self.world), *options]
        return subprocess.run(command, capture_output=True, text=True)

    def environment(self):
        kept = {name: value for name, value in os.environ.items() if not name.startswith(("XDG_", "KELVANE_"))}
        return {**kept, "HOME": str(self.world), "KELVANE_HOME": str(self.support), "KELVANE_DRY_RUN": str(self.dock),
                "NO_COLOR": "1"}

    def ask(self, *arguments):
        command = [os.environ["KELVANECTL"], *arguments, "--json"]
        done = subprocess.run(command, env=self.environment(), capture_output=True, text=True)
        self.assertEqual(0, done.returncode, done.stderr)
        return json.loads(done.stdout)

    def layout(self):
        tiles = plistlib.loads(self.dock.read_bytes())["persistent-apps"]
        return [tile["tile-data"].get("bundle-identifier", "smallSpacer") for tile in tiles]

    def test_two_worlds_are_the_same_but_for_the_dates(self):
        def shape():
            self.make()
            usage = json.loads((self.support / "usage.json").read_text(encoding="utf-8"))
            icons = [path.read_bytes() for path in sorted(self.world.rglob("*.icns"))]
            days = [usage["days"][day] for day in sorted(usage["days"])]
            return days, usage["names"], icons, self.layout(), (self.support / "profiles.json").read_bytes()

        self.assertEqual(shape(), shape())

    def test_a_folder_with_something_else_in_it_is_left_alone(self):
        self.world.mkdir()
        (self.world / "thesis.txt").write_text("years of work", encoding="utf-8")
        done = self.make()
        self.assertNotEqual(0, done.returncode)
        self.assertIn("something that this script did not make", done.stderr)
        self.assertEqual(["thesis.txt"], os.listdir(self.world))

    def test_work_takes_in_three_lets_five_go_and_moves_six(self):
        self.make()
        plan = self.ask("plan", "Work")
        self.assertEqual(WORK, [tile["signature"] for tile in plan["tiles"]])
        self.assertEqual(identifiers("Terminal Ledgerline Huddle"), plan["diff"]["added"])
        self.assertEqual(identifiers("Maps Photos Music Books Chess"), plan["diff"]["removed"])
        self.assertEqual(6, len(plan["diff"]["moved"]))
        self.assertEqual(DOCK, self.layout())

    def test_five_days_of_the_week_are_tracked(self):
        self.make()
        self.assertEqual(5, self.ask("rank", "--window", "week")["trackedDays"])

    def test_a_first_run_finds_starter_profiles_with_applications_in_them(self):
        self.make("--first-run")
        profiles = {profile["name"]: profile for profile in self.ask("profiles")}
        self.assertEqual(["Everyday", "Work", "Coding", "Meeting", "Personal"], list(profiles))
        self.assertIn("com.apple.mail", profiles["Work"]["pinned"])
        self.assertIn("com.apple.Terminal", profiles["Coding"]["pinned"])

    def test_the_walk_applies_the_profile_and_can_be_walked_twice(self):
        self.make()
        before = plistlib.loads(self.dock.read_bytes())
        for walk in ("first", "second"):
            with self.subTest(walk):
                command = [str(DEMO / "walk"), os.environ["KELVANECTL"]]
                done = subprocess.run(command, env=self.environment(), capture_output=True, text=True)
                self.assertEqual(0, done.returncode, done.stdout + done.stderr)
                self.assertIn("3 added   − 5 leaving   ↔ 6 moved", done.stdout)
                self.assertEqual(WORK, self.layout())
        after = plistlib.loads(self.dock.read_bytes())
        self.assertEqual({**before, "persistent-apps": None}, {**after, "persistent-apps": None})
        self.ask("restore", "--original")
        self.assertEqual(16, len(self.layout()))


if __name__ == "__main__":
    unittest.main()
