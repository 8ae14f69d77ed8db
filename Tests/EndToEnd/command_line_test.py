"""kelvanectl as a whole process: what a person types, what comes out, and what stands in the files afterwards."""

import concurrent.futures
import json
import os
import plistlib
import random
import shutil
import stat
import subprocess
import time
import unittest

from world import BINARIES, World


class CommandLineTest(unittest.TestCase):
    def setUp(self):
        self.world = World()
        self.addCleanup(self.world.remove)

    def assert_fails(self, status, *arguments, **changes):
        """The command ends with this status, one line on standard error and nothing on standard output."""
        code, output, error = self.world.run(*arguments, **changes)
        self.assertEqual((code, output), (status, ""), (arguments, error))
        self.assertRegex(error, r"\A[^\n]+\n\Z")
        return error


class Contract(CommandLineTest):
    def test_help_and_version(self):
        self.assertEqual(self.world.run("--help")[0], 0)
        self.assertRegex(self.world.run("--version")[1], r"\Akelvanectl \d+\.\d+\.\d+\n\Z")
        self.assertIn("Usage:", self.world.run("apply", "--help")[1])

    def test_help_and_version_write_no_file(self):
        self.world.run("--help", KELVANE_HOME=str(self.world.folder / "fresh"))
        self.assertFalse((self.world.folder / "fresh").exists())

    def test_every_mistake_is_status_2(self):
        for words in ([], ["sing"], ["status", "now"], ["apply", "Nobody"], ["plan", "Nobody"], ["auto"], ["auto", "soon"],
                      ["track", "maybe"], ["rank", "--window", "year"], ["restore", "--snapshot", "1"], ["status", "--x"],
                      ["restore", "--snapshot"], ["status", "--original"], ["restore", "--original", "--snapshot", "1"],
                      ["rank", "--window"], ["status", "--window", "week"], ["status", "--json=1"], ["sing\nsong"],
                      ["apply", "x\ny"], ["restore", "--snapshot", "x\ny"]):
            with self.subTest(words=words):
                self.assertIn("expect", self.assert_fails(2, *words))

    def test_apply_restore_and_original(self):
        before = self.world.dock()
        plan = self.world.ask("plan", "Work")
        self.assertFalse(plan["matches"])
        applied = self.world.ask("apply", "Work")
        self.assertEqual(applied, {"text": "Dock updated for Work.", "isError": False, "changed": True})
        after = self.world.dock()
        self.assertEqual([tile["label"] or "|" for tile in plan["tiles"]], after)
        self.assertEqual(self.world.ask("apply"),
                         {"text": "Your Dock already matches Work.", "isError": False, "changed": False})
        self.assertTrue(self.world.ask("status")["matches"])
        self.world.ask("restore")
        self.assertEqual(self.world.dock(), before)
        self.world.ask("restore")
        self.assertEqual(self.world.dock(), after)
        self.world.ask("restore", "--original")
        original = next(snapshot for snapshot in self.world.ask("snapshots") if snapshot["isOriginal"])
        self.assertEqual(self.world.ask("status")["current"][0]["bundleID"], original["bundleIDs"][0])

    def test_the_first_command_keeps_the_original(self):
        world = World(first_run=True)
        self.addCleanup(world.remove)
        before = world.dock()
        world.ask("apply", "Everyday")
        self.assertNotEqual(world.dock(), before)
        self.assertEqual([s["reason"] for s in world.ask("snapshots")], ["Before Everyday", "Before Kelvane"])
        world.ask("restore", "--original")
        self.assertEqual(world.dock(), before)

    def test_lists_and_settings(self):
        self.assertEqual(sum(profile["active"] for profile in self.world.ask("profiles")), 1)
        self.assertGreater(len(self.world.ask("apps")), 10)
        month = self.world.ask("rank", "--window", "month")
        self.assertEqual(month["window"], 30)
        scores = [entry["score"] for entry in month["ranking"]]
        self.assertEqual(scores, sorted(scores, reverse=True))
        self.world.ask("auto", "hourly")
        self.world.ask("track", "off")
        self.assertEqual(self.world.json("settings.json")["autoUpdate"], 3600)
        self.assertFalse(self.world.json("settings.json")["trackingEnabled"])

    def test_a_change_by_hand_pauses_and_resume_ends_it(self):
        self.world.ask("apply", "Work")
        content = plistlib.loads(self.world.dock_file.read_bytes())
        content["persistent-apps"].reverse()
        self.world.dock_file.write_bytes(plistlib.dumps(content))
        self.assertTrue(self.world.ask("status")["autoPaused"])
        self.assertEqual(self.world.ask("resume")["text"], "Dock updated for Work.")
        self.assertFalse(self.world.ask("status")["autoPaused"])

    def test_two_profiles_of_one_name_are_told_apart_by_id(self):
        profiles = self.world.json("profiles.json")
        profiles[1]["name"] = profiles[0]["name"] = "仕事"
        (self.world.support / "profiles.json").write_text(json.dumps(profiles))
        error = self.assert_fails(2, "apply", "仕事")
        self.assertIn(profiles[0]["id"], error)
        self.assertIn(profiles[1]["id"], error)
        self.assertEqual(self.world.ask("plan", profiles[1]["id"].lower())["profileID"], profiles[1]["id"])

    def test_no_colours_into_a_pipe(self):
        self.assertNotIn("\x1b", self.world.run("status")[1])

    def test_an_output_that_cannot_be_written_is_a_failure(self):
        with open("/dev/full", "wb") as full:
            process = subprocess.run([BINARIES / "kelvanectl", "status"], env=self.world.environment, stdout=full,
                                     stderr=subprocess.PIPE, timeout=60)
        self.assertEqual(process.returncode, 1)

    def test_files_are_the_users_alone(self):
        self.world.ask("apply", "Work")
        for path in self.world.support.rglob("*"):
            if path.is_file():
                self.assertEqual(stat.S_IMODE(path.stat().st_mode) & 0o077, 0, path)


class BadInput(CommandLineTest):
    def dock_reads_as_empty(self, content):
        self.world.dock_file.write_bytes(content)
        self.assertEqual(self.world.ask("status")["current"], [])

    def test_dock_files_that_hold_nothing(self):
        whole = self.world.dock_file.read_bytes()
        deep = b'<plist version="1.0">' + b"<array>" * 10000 + b"</array>" * 10000 + b"</plist>"
        for name, content in {
            "empty": b"", "truncated": whole[: len(whole) // 2], "no property list": b"hello", "deep": deep,
            "a string": plistlib.dumps("x"), "wrong types": plistlib.dumps({"persistent-apps": [1]}),
            "zeros": bytes(1000), "broken binary": b"bplist00" + bytes(40),
        }.items():
            with self.subTest(name):
                self.dock_reads_as_empty(content)

    def test_a_dock_file_that_refers_to_itself(self):
        # One array, whose only element is itself.
        self.dock_reads_as_empty(b"bplist00" + b"\xa1\x00" + b"\x08" + bytes(6) + b"\x01\x01" + (1).to_bytes(8, "big")
                                 + bytes(8) + (10).to_bytes(8, "big"))

    def test_a_huge_dock_file_is_read(self):
        content = plistlib.loads(self.world.dock_file.read_bytes())
        content["filler"] = [bytes(1 << 20)] * 38
        self.world.dock_file.write_bytes(plistlib.dumps(content))
        self.assertGreater(self.world.dock_file.stat().st_size, 50 << 20)
        self.assertEqual(len(self.world.ask("status")["current"]), len(self.world.dock()))

    def test_wrong_types_inside_tiles(self):
        tiles = [{}, {"tile-type": 1, "tile-data": 2}, {"tile-type": "file-tile", "tile-data": {"file-data": 3}},
                 {"tile-type": "file-tile", "tile-data": {"bundle-identifier": 4, "file-label": 5,
                                                          "file-data": {"_CFURLString": 6}}}]
        self.world.dock_file.write_bytes(plistlib.dumps({"persistent-apps": tiles}))
        self.assertEqual([tile["kind"] for tile in self.world.ask("status")["current"]], ["other"] * 4)

    def test_a_support_folder_that_cannot_be_made(self):
        blocker = self.world.folder / "blocker"
        blocker.write_text("")
        home = str(blocker / "Kelvane")
        self.assertEqual(self.world.run("status", KELVANE_HOME=home)[0], 0)
        self.assertIn("“", self.assert_fails(1, "apply", "Everyday", KELVANE_HOME=home))

    def test_a_home_that_does_not_exist(self):
        status, _, error = self.world.run("status", HOME="/nonexistent/home")
        self.assertEqual((status, error), (0, ""))

    def test_broken_and_looping_bundles(self):
        applications = self.world.folder / "Applications"
        (applications / "Broken.app/Contents").mkdir(parents=True)
        (applications / "Broken.app/Contents/Info.plist").write_bytes(b"\x00broken")
        os.symlink("/nowhere", applications / "Nowhere.app")
        os.symlink("Loop.app", applications / "Loop.app")
        os.symlink(applications, applications / "Again")
        names = [app["name"] for app in self.world.ask("apps")]
        self.assertIn("Mail", names)
        self.assertFalse({"Broken", "Nowhere", "Loop"} & set(names))

    def test_broken_state_files_read_as_their_defaults(self):
        for name in ("usage.json", "profiles.json", "settings.json", "Snapshots/index.json"):
            for content in (b"", b"{}", b"[[[[", b'{"days": 1}', b"[1]", b"\xff\xfe", b"[" * 100000):
                with self.subTest(name=name, content=content[:10]):
                    (self.world.support / name).write_bytes(content)
                    self.assertEqual(self.world.run("status")[0], 0)
                    self.assertEqual(self.world.run("snapshots")[0], 0)

    def test_a_full_disk_loses_nothing(self):
        if os.geteuid() != 0:
            self.skipTest("a small file system to fill needs root")
        disk = self.world.folder / "disk"
        disk.mkdir()
        if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=1m", "tmpfs", disk], stderr=subprocess.DEVNULL).returncode:
            self.skipTest("no file system can be mounted here")
        self.addCleanup(subprocess.run, ["umount", disk])
        home = disk / "Kelvane"
        shutil.copytree(self.world.support, home)
        try:
            with open(disk / "filler", "wb") as filler:
                while True:
                    filler.write(bytes(4096))
                    filler.flush()
        except OSError:
            pass
        before, dock = (home / "Snapshots/index.json").read_bytes(), self.world.dock()
        error = self.assert_fails(1, "apply", "Work", KELVANE_HOME=str(home))
        self.assertIn("No space left", error)
        self.assertEqual((home / "Snapshots/index.json").read_bytes(), before)
        self.assertEqual(self.world.dock(), dock)
        self.assertEqual(self.world.run("snapshots", KELVANE_HOME=str(home))[0], 0)


class Together(CommandLineTest):
    def test_two_dozen_commands_at_once_lose_nothing(self):
        def change(index):
            return self.world.run(*(("apply", "Work") if index % 2 else ("restore", "--original")))

        with concurrent.futures.ThreadPoolExecutor(4) as pool:
            results = list(pool.map(change, range(24)))
        for status, output, error in results:
            self.assertEqual((status, error), (0, ""), output)
        self.consistent()

    def consistent(self):
        index = self.world.json("Snapshots/index.json")
        self.assertLessEqual(sum(not snapshot["isOriginal"] for snapshot in index), 40)
        for snapshot in index:
            state = plistlib.loads((self.world.support / "Snapshots" / (snapshot["id"] + ".plist")).read_bytes())
            identifiers = [tile["tile-data"].get("bundle-identifier") for tile in state["persistent-apps"]]
            self.assertEqual([i for i in identifiers if i], snapshot["bundleIDs"])
        self.assertEqual(len({snapshot["id"] for snapshot in index}), len(index))

    def test_a_command_killed_in_the_middle_leaves_whole_files(self):
        seed = random.randrange(1 << 30)
        print("seed", seed, flush=True)
        chance = random.Random(seed)
        for turn in range(30):
            process = self.world.start(*(("apply", "Work") if turn % 2 else ("restore", "--original")))
            time.sleep(chance.uniform(0, 0.06))
            process.kill()
            process.communicate()
            for name in ("usage.json", "profiles.json", "settings.json"):
                self.world.json(name)
            plistlib.loads(self.world.dock_file.read_bytes())
            self.consistent()
        self.assertEqual(self.world.run("apply", "Work")[0], 0)


if __name__ == "__main__":
    unittest.main(verbosity=1)
