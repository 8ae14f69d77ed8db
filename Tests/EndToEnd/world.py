"""A small Mac in a temporary folder, and kelvanectl run in it as a person would."""

import json
import os
import pathlib
import plistlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "Demo"))

import make_world

BINARIES = pathlib.Path(os.environ["KELVANE_BINARIES"])


class World:
    """`first_run` leaves out profiles, settings and earlier Docks."""

    def __init__(self, first_run=False):
        # Sockets have short names, so the folder must have one too.
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="kv-", dir="/tmp"))
        make_world.make(self.folder, first_run)
        self.support = self.folder / "Library/Application Support/Kelvane"
        self.dock_file = self.folder / "Library/Preferences/com.apple.dock.plist"
        self.environment = {
            "HOME": str(self.folder),
            "KELVANE_HOME": str(self.support),
            "KELVANE_DRY_RUN": str(self.dock_file),
            "PATH": os.environ["PATH"],
            "LANG": "C.UTF-8",
        }
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"):
            if name in os.environ:
                self.environment[name] = os.environ[name]

    def remove(self):
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, *arguments, **changes):
        return subprocess.Popen(
            [BINARIES / "kelvanectl", *arguments],
            env={**self.environment, **changes},
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            cwd=self.folder if self.folder.exists() else "/",
        )

    def run(self, *arguments, timeout=60, **changes):
        """Exit status, standard output and standard error, as text."""
        process = self.start(*arguments, **changes)
        output, error = process.communicate(timeout=timeout)
        return process.returncode, output.decode(), error.decode()

    def ask(self, *arguments, **changes):
        """The JSON document of a command that must succeed without a word on standard error."""
        status, output, error = self.run(*arguments, "--json", **changes)
        assert status == 0 and error == "", (arguments, status, output, error)
        return json.loads(output)

    def dock(self):
        """Labels of the Dock as the file holds them; spacers read as "|"."""
        with open(self.dock_file, "rb") as file:
            tiles = plistlib.load(file)["persistent-apps"]
        return [tile["tile-data"].get("file-label", "|") for tile in tiles]

    def json(self, name):
        return json.loads((self.support / name).read_text())
