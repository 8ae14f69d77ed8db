"""The resident application on a private desktop: its menu as a panel reads it, its window, its end, and the command line
beside it."""

import concurrent.futures
import json
import plistlib
import signal
import socket
import time
import unittest

from application import ApplicationTest
from desktop import until


class StatusMenu(ApplicationTest):
    def test_labels_order_checks_and_keys(self):
        self.launch()
        menu = self.menu()
        profiles = [profile["name"] for profile in self.world.json("profiles.json")]
        self.assertEqual(menu.labels(), ["Profile", *profiles, "-", "Reorganize Dock Now", "Restore Previous Dock", "-",
                                         "Track App Usage", "Open Kelvane…", "-", "Quit Kelvane"])
        self.assertFalse(menu.item("Profile")["enabled"])
        checked = [str(item["label"]) for item in menu.items() if item.get("toggle-state") == 1]
        self.assertEqual(checked, ["Work", "Track App Usage"])
        keys = {str(item["label"]): [str(key) for key in item["shortcut"][0]]
                for item in menu.items() if item.get("shortcut")}
        self.assertEqual(keys, {"Reorganize Dock Now": ["Control", "R"], "Restore Previous Dock": ["Control", "Z"],
                                "Open Kelvane…": ["Control", "O"], "Quit Kelvane": ["Control", "Q"]})
        self.assertEqual(menu.properties["ToolTip"][2], "Kelvane")

    def test_each_command_does_its_work(self):
        self.launch()
        menu = self.menu()
        before = self.world.dock()
        menu.click("Reorganize Dock Now")
        until(lambda: self.world.dock() != before)
        after = self.world.dock()
        until(lambda: menu.item("Restore Previous Dock").get("enabled", True))
        menu.click("Restore Previous Dock")
        until(lambda: self.world.dock() == before)
        until(lambda: "Resume and Reorganize" in menu.labels())
        labels = menu.labels()
        place = labels.index("Automatic updates paused")
        self.assertEqual(labels[place - 1:place + 3], ["-", "Automatic updates paused", "Resume and Reorganize", "-"])
        menu.click("Resume and Reorganize")
        until(lambda: self.world.dock() == after)
        until(lambda: "Resume and Reorganize" not in menu.labels())
        menu.click("Track App Usage")
        until(lambda: not self.settings()["trackingEnabled"])
        self.assertEqual(menu.item("Track App Usage")["toggle-state"], 0)
        menu.click("Personal")
        until(lambda: self.world.json("Snapshots/index.json")[0]["reason"] == "Before Personal")
        personal = next(p["id"] for p in self.world.json("profiles.json") if p["name"] == "Personal")
        self.assertEqual(self.settings()["activeProfileID"], personal)
        menu.click("Open Kelvane…")
        until(self.windows)
        menu.click("Quit Kelvane")
        self.assertEqual(self.application.wait(20), 0)


class Life(ApplicationTest):
    def test_no_window_after_the_first_run(self):
        self.launch()
        self.menu().labels()
        self.assertEqual(self.windows(), [])

    def test_show_opens_the_window_and_closing_keeps_the_process(self):
        self.launch("--show")
        window = until(self.windows)[0]
        self.desktop.output("xdotool", "windowactivate", "--sync", window)
        self.desktop.key("ctrl+w")
        until(lambda: not self.windows())
        self.assertIsNone(self.application.poll())
        self.menu().click("Open Kelvane…")
        until(self.windows)

    def test_a_second_start_shows_the_window_of_the_first(self):
        self.launch()
        second = self.start()
        self.assertEqual(second.wait(20), 0)
        until(self.windows)

    def test_without_a_tray_it_runs_and_opens(self):
        self.launch(DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent")
        self.assertEqual(self.start(DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent").wait(20), 0)
        until(self.windows)

    def test_without_a_display_it_runs_and_answers(self):
        self.launch(DISPLAY="")
        self.assertTrue(self.world.ask("status")["activeProfile"])
        self.application.terminate()
        self.assertEqual(self.application.wait(20), 0)

    def test_signals_end_it_well(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            self.launch()
            self.application.send_signal(number)
            self.assertEqual(self.application.wait(20), 0)
            self.assertFalse((self.world.support / "lock").exists())

    def test_it_ends_well_while_its_window_is_made(self):
        for _ in range(8):
            self.launch("--show")
            until(self.windows)
            self.quit()

    def test_a_crash_blocks_nobody(self):
        self.launch()
        self.application.kill()
        self.application.wait()
        self.assertEqual(self.world.run("status")[0], 0)
        self.launch()
        self.assertEqual(self.world.run("status")[0], 0)


class CommandLineBeside(ApplicationTest):
    def test_a_command_is_carried_out_by_the_application(self):
        self.launch()
        menu = self.menu()
        self.world.ask("track", "off")
        self.assertEqual(menu.item("Track App Usage")["toggle-state"], 0)
        self.assertEqual(self.world.run("apply", "Nobody")[0], 2)
        self.assertTrue(self.world.ask("apply", "Work")["changed"])
        self.assertEqual(self.world.run("apply", "Work")[1], "Your Dock already matches Work.\n")

    def test_garbage_is_refused_and_the_next_is_served(self):
        self.launch()
        with socket.socket(socket.AF_UNIX) as client:
            client.connect(str(self.world.support / "socket"))
            client.sendall(b"GET / HTTP/1.1\r\n\r\n")
            answer = json.loads(client.makefile().readline())
        self.assertEqual((answer["status"], answer["error"]), (2, "Kelvane was asked nothing it could read; expected a command."))
        self.assertEqual(self.world.run("status")[0], 0)

    def test_a_hundred_commands_from_four_processes(self):
        self.launch("--show")
        until(self.windows)

        def change(index):
            kind = index % 4
            if kind == 0:
                return self.world.run("status", "--json")
            if kind == 1:
                return self.world.run("apply", "Work" if index % 8 == 1 else "Personal")
            if kind == 2:
                return self.world.run("restore", "--original")
            return self.world.run("auto", "hourly" if index % 8 == 3 else "daily")

        def use_the_window():
            for _ in range(20):
                for window in self.windows():
                    self.desktop.output("xdotool", "windowactivate", window)
                self.desktop.key("Tab")

        with concurrent.futures.ThreadPoolExecutor(5) as pool:
            hands = pool.submit(use_the_window)
            results = list(pool.map(change, range(100)))
            hands.result()
        for status, output, error in results:
            self.assertEqual((status, error), (0, ""), output)
            self.assertTrue(output)
        self.assertIn(self.settings()["autoUpdate"], (3600, 86400))
        self.consistent()

    def test_killed_in_the_middle_commands_go_on(self):
        self.launch()

        def change(index):
            return self.world.run("apply", ("Work", "Personal")[index % 2])

        with concurrent.futures.ThreadPoolExecutor(4) as pool:
            results = [pool.submit(change, index) for index in range(24)]
            time.sleep(0.3)
            self.application.kill()
            self.application.wait()
            for result in results:
                status, _, error = result.result()
                self.assertEqual((status, error), (0, ""))
        self.consistent()

    def consistent(self):
        for snapshot in self.world.json("Snapshots/index.json"):
            state = plistlib.loads((self.world.support / "Snapshots" / (snapshot["id"] + ".plist")).read_bytes())
            self.assertIn("persistent-apps", state)
        plistlib.loads(self.world.dock_file.read_bytes())


if __name__ == "__main__":
    unittest.main(verbosity=1)
