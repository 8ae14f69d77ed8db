#!/usr/bin/env python3
"""The files a release is made of: they parse, hold what they must, and the scripts inside the bundle do what they say.

Usage: packaging_test.py ICNS   with the icon that the build drew
"""

import os
import plistlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import yaml

ROOT = Path(__file__).resolve().parents[2]
MACOS = ROOT / "Packaging/macOS"
WORKFLOW = (ROOT / ".github/workflows/ci.yml").read_text()
ICON = sys.argv.pop(1) if len(sys.argv) > 1 else None


def info_plist():
    """The Info.plist as CMake writes it."""
    text = (MACOS / "Info.plist.in").read_text()
    script = (ROOT / "CMakeLists.txt").read_text()
    values = {
        "MACOSX_BUNDLE_EXECUTABLE_NAME": "Kelvane",
        "PROJECT_VERSION": re.search(r"project\(Kelvane VERSION ([\d.]+)", script).group(1),
        "CMAKE_OSX_DEPLOYMENT_TARGET": re.search(r'CMAKE_OSX_DEPLOYMENT_TARGET "([\d.]+)"', script).group(1),
    }
    return plistlib.loads(re.sub(r"\$\{(\w+)\}", lambda found: values[found.group(1)], text).encode())


class InfoPlist(unittest.TestCase):
    def test_every_key_that_the_bundle_needs_is_there(self):
        info = info_plist()
        expected = {
            "CFBundleExecutable": "Kelvane",
            "CFBundleIconFile": "Kelvane.icns",
            "CFBundleIdentifier": "org.kelvane.Kelvane",
            "CFBundlePackageType": "APPL",
            "LSMinimumSystemVersion": "13.0",
            "LSUIElement": True,
            "NSHighResolutionCapable": True,
            "NSPrincipalClass": "NSApplication",
        }
        self.assertEqual(expected, {key: info.get(key) for key in expected})

    def test_both_versions_are_the_projects(self):
        info = info_plist()
        self.assertRegex(info["CFBundleShortVersionString"], r"^\d+\.\d+\.\d+$")
        self.assertEqual(info["CFBundleShortVersionString"], info["CFBundleVersion"])

    def test_the_bundle_is_told_to_use_it(self):
        bundle = (MACOS / "Bundle.cmake").read_text()
        self.assertIn("MACOSX_BUNDLE_INFO_PLIST ${PROJECT_SOURCE_DIR}/Packaging/macOS/Info.plist.in", bundle)
        self.assertIn("OUTPUT_NAME Kelvane", bundle)

    def test_the_entitlements_parse_and_ask_for_no_sandbox(self):
        entitlements = plistlib.loads((MACOS / "Kelvane.entitlements").read_bytes())
        self.assertEqual({"com.apple.security.cs.allow-jit": True}, entitlements)


@unittest.skipUnless(ICON, "the build draws no icon without the application")
class Icon(unittest.TestCase):
    def test_every_size_is_there_and_is_as_large_as_its_type_says(self):
        data = Path(ICON).read_bytes()
        magic, length = struct.unpack(">4sI", data[:8])
        self.assertEqual((b"icns", len(data)), (magic, length))
        found, at = {}, 8
        while at < len(data):
            kind, size = struct.unpack(">4sI", data[at:at + 8])
            picture = data[at + 8:at + size]
            self.assertEqual(b"\x89PNG\r\n\x1a\n", picture[:8])
            found[kind] = struct.unpack(">II", picture[16:24])
            at += size
        pixels = {b"ic11": 32, b"ic12": 64, b"ic07": 128, b"ic13": 256, b"ic08": 256, b"ic14": 512, b"ic09": 512, b"ic10": 1024}
        self.assertEqual({kind: (size, size) for kind, size in pixels.items()}, found)


class BundleScripts(unittest.TestCase):
    """The scripts inside the bundle, in a bundle of their own with stand-ins for the programs."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = Path(folder.name)
        self.bundle = self.home / "Applications/Kelvane.app"
        self.path = self.home / "bin"
        self.link = self.path / "kelvanectl"
        programs = self.bundle / "Contents/MacOS"
        resources = self.bundle / "Contents/Resources"
        programs.mkdir(parents=True)
        resources.mkdir()
        self.put(programs / "Kelvane", f'#!/bin/sh\necho "$@" >> {self.home}/asked\n')
        self.put(programs / "kelvanectl", "#!/bin/sh\necho here\n")
        for name in ("install-command-line", "uninstall"):
            self.put(resources / name, (MACOS / name).read_text())

    @staticmethod
    def put(path, text):
        path.write_text(text)
        path.chmod(0o755)

    def run_script(self, name):
        return subprocess.run([self.bundle / "Contents/Resources" / name, self.path], capture_output=True, text=True)

    def test_the_command_line_is_linked_and_runs(self):
        self.assertEqual(0, self.run_script("install-command-line").returncode)
        self.assertEqual("here\n", subprocess.run([self.link], capture_output=True, text=True).stdout)

    def test_linking_again_after_the_bundle_moved_follows_it(self):
        self.run_script("install-command-line")
        moved = self.home / "Kelvane.app"
        self.bundle.rename(moved)
        self.bundle = moved
        self.assertEqual(0, self.run_script("install-command-line").returncode)
        self.assertEqual(str(moved.resolve() / "Contents/MacOS/kelvanectl"), os.readlink(self.link))

    def test_another_program_of_the_same_name_is_left_alone(self):
        self.path.mkdir()
        self.put(self.link, "another\n")
        done = self.run_script("install-command-line")
        self.assertEqual(1, done.returncode)
        self.assertIn("is something else", done.stderr)
        self.assertEqual("another\n", self.link.read_text())

    def test_uninstalling_takes_back_the_login_item_the_link_and_the_bundle(self):
        self.run_script("install-command-line")
        done = self.run_script("uninstall")
        self.assertEqual((0, ""), (done.returncode, done.stderr))
        self.assertEqual("--uninstall\n", (self.home / "asked").read_text())
        self.assertFalse(self.link.is_symlink())
        self.assertFalse(self.bundle.exists())

    def test_uninstalling_leaves_a_link_that_leads_elsewhere(self):
        self.path.mkdir()
        self.link.symlink_to("/elsewhere/kelvanectl")
        self.assertEqual(0, self.run_script("uninstall").returncode)
        self.assertTrue(self.link.is_symlink())

    def test_a_login_item_that_stays_keeps_the_bundle(self):
        self.put(self.bundle / "Contents/MacOS/Kelvane", "#!/bin/sh\nexit 1\n")
        self.assertEqual(1, self.run_script("uninstall").returncode)
        self.assertTrue(self.bundle.exists())


class Deployment(unittest.TestCase):
    SCRIPT = (MACOS / "make-bundle").read_text()

    def test_the_parts_are_signed_before_the_whole_and_verified_after(self):
        order = ["*.dylib", "*.framework", "org.kelvane.kelvanectl", "--entitlements", "--verify --deep --strict"]
        at = [self.SCRIPT.index(word) for word in order]
        self.assertEqual(sorted(at), at)

    def test_it_is_deployed_before_it_is_signed_and_signed_before_it_is_packed(self):
        self.assertRegex(self.SCRIPT, r"\ndeploy\nsign\npack\n")

    def test_it_copies_files_that_exist(self):
        for name in re.findall(r'"\$here/([\w.-]+)"', self.SCRIPT):
            self.assertTrue((MACOS / name).is_file(), name)


class Workflow(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.jobs = yaml.safe_load(WORKFLOW)["jobs"]

    def steps(self, job):
        return [step.get("run", step.get("uses", "")) for step in self.jobs[job]["steps"]]

    def test_linux_has_both_compilers_and_both_kinds_of_build(self):
        matrix = self.jobs["linux"]["strategy"]["matrix"]
        self.assertEqual({"compiler": ["gcc", "clang"], "preset": ["dev", "release"]}, matrix)

    def test_macos_has_both_processors(self):
        include = self.jobs["macos"]["strategy"]["matrix"]["include"]
        self.assertEqual({"arm64", "x86_64"}, {entry["architecture"] for entry in include})

    def test_macos_builds_tests_asks_the_system_and_keeps_the_bundle(self):
        steps = self.steps("macos")
        wanted = ["cmake --build", "ctest", "--selftest", "make-bundle", "actions/upload-artifact"]
        at = [next(index for index, step in enumerate(steps) if word in step) for word in wanted]
        self.assertEqual(sorted(at), at)

    def test_tests_are_built_before_they_are_run(self):
        for job in ("linux", "macos"):
            steps = self.steps(job)
            run = next(index for index, step in enumerate(steps) if step.startswith("ctest"))
            self.assertTrue(any("-DBUILD_TESTING=ON" in step for step in steps[:run]), job)

    def test_what_runs_from_the_repository_exists(self):
        for script in re.findall(r"(?:\./|\s)((?:dev|\.ci/run|Packaging/macOS/make-bundle))\s", WORKFLOW):
            self.assertTrue(os.access(ROOT / script, os.X_OK), script)
        verbs = set(re.findall(r"\./dev (\w+)", WORKFLOW))
        known = set(re.search(r"^([\w |]+)\) \"verb_", (ROOT / "dev").read_text(), re.M).group(1).split(" | "))
        self.assertTrue(verbs and verbs <= known, verbs - known)

    def test_no_action_is_used_without_a_version(self):
        for name in self.jobs:
            for step in self.jobs[name]["steps"]:
                self.assertRegex(step.get("uses", "actions/none@v1"), r"^actions/[\w-]+@v\d+$")


class DesktopEntry(unittest.TestCase):
    def test_it_names_the_program_and_the_icon_that_are_installed(self):
        lines = (ROOT / "Packaging/Linux/org.kelvane.Kelvane.desktop").read_text().splitlines()
        self.assertEqual("[Desktop Entry]", lines[0])
        entry = dict(line.split("=", 1) for line in lines[1:])
        self.assertEqual(("Application", "kelvane", "org.kelvane.Kelvane"), (entry["Type"], entry["TryExec"], entry["Icon"]))
        self.assertEqual("kelvane --show", entry["Exec"])
        self.assertTrue((ROOT / "Packaging/Icon/org.kelvane.Kelvane.svg").is_file())


if __name__ == "__main__":
    unittest.main()
