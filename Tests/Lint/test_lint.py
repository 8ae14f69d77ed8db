"""Each check rejects a mistake seeded in an otherwise clean tree, and has nothing to say about the tree without it."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))

import arrows
import lint

CLEAN = {
    "Sources/DockCore/CMakeLists.txt": "add_library(DockCore STATIC Tile.cpp Tile.h)  # Gone.cpp is history\n",
    "Sources/DockCore/Tile.h": "#pragma once\n#include <QString>\n#include <optional>\n",
    "Sources/DockCore/Tile.cpp": '#include "DockCore/Tile.h"\n#include <plist/plist.h>\n// Q_OS_MACOS only in words\n',
    "Sources/Kelvane/CMakeLists.txt": "qt_add_qml_module(Kelvane SOURCES main.cpp Model.cpp\n    QML_FILES ${PROJECT_SOURCE_DIR}/Sources/Kelvane/Root.qml)\n",
    "Sources/Kelvane/Model.cpp": '#include "DockCore/Tile.h"\n\n#include <QTimer>\n\n#include "Model.moc"\n',
    "Sources/Kelvane/main.cpp": '#include "Platform/Linux/Adapter.h"\n',
    "Sources/Kelvane/Root.qml": "import QtQuick\nimport QtQuick.Controls as C\n\nItem {\n}\n",
    "Sources/Platform/Linux/CMakeLists.txt": "add_library(PlatformCore STATIC Adapter.cpp Adapter.h)\n",
    "Sources/Platform/Linux/Adapter.h": '#pragma once\n#include "DockCore/Tile.h"\n',
    "Sources/Platform/Linux/Adapter.cpp": '#include "Platform/Linux/Adapter.h"\n#include <unistd.h>\n#ifdef Q_OS_LINUX\n#endif\n',
}


class Tree(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for path, text in CLEAN.items():
            self.put(path, text)

    def put(self, path, text):
        target = self.root / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(text, encoding="utf-8")

    def add(self, path, line):
        self.put(path, (self.root / path).read_text(encoding="utf-8") + line + "\n")

    def assert_one(self, faults, path, words):
        self.assertEqual(1, len(faults), [str(fault) for fault in faults])
        self.assertEqual(path, faults[0].path)
        self.assertIn(words, str(faults[0]))


class Arrows(Tree):
    def test_a_clean_tree_passes(self):
        self.assertEqual([], arrows.check(self.root))

    def test_seeded_includes_are_rejected(self):
        seeds = [
            ("Sources/DockCore/Tile.cpp", '#include "Kelvane/Model.h"', "DockCore must not know it"),
            ("Sources/DockCore/Tile.cpp", "#include <gtk/gtk.h>", "standard library, Qt Core and libplist"),
            ("Sources/DockCore/Tile.cpp", '#include "Tile.h"', "not written from Sources/"),
            ("Sources/DockCore/Tile.cpp", '#include "Platform/Linux/Adapter.h"', "only the two mains"),
            ("Sources/Kelvane/Model.cpp", '#include "Platform/Linux/Adapter.h"', "only the two mains"),
            ("Sources/Kelvane/Model.cpp", '#include "kelvanectl/Output.h"', "Kelvane must not know it"),
            ("Sources/Kelvane/Model.cpp", "#include <unistd.h>", "belongs below Sources/Platform"),
            ("Sources/Kelvane/Model.cpp", "#import <AppKit/AppKit.h>", "belongs below Sources/Platform"),
            ("Sources/Kelvane/Model.cpp", "#include <QDBusConnection>", "belongs below Sources/Platform"),
            ("Sources/Kelvane/Model.cpp", "#ifdef Q_OS_MACOS", "Q_OS_MACOS belongs"),
            ("Sources/Kelvane/Model.cpp", "#if defined(__APPLE__)", "__APPLE__ belongs"),
            ("Sources/Platform/Linux/Adapter.cpp", '#include "Kelvane/Model.h"', "Platform must not know it"),
            ("Sources/Platform/Linux/Adapter.cpp", '#include "Platform/MacOS/Adapter.h"', "only the two mains"),
        ]
        for path, line, words in seeds:
            with self.subTest(line):
                self.setUp()
                self.add(path, line)
                self.assert_one(arrows.check(self.root), path, words)

    def test_a_qt_header_outside_qt_core_is_rejected_in_the_logic(self):
        self.put("QtCore/QString", "")
        self.assertEqual([], arrows.check(self.root, self.root / "QtCore"))
        self.add("Sources/DockCore/Tile.cpp", "#include <QImage>")
        self.assert_one(arrows.check(self.root, self.root / "QtCore"), "Sources/DockCore/Tile.cpp", "QImage")

    def test_a_view_that_imports_a_foreign_module_is_rejected(self):
        self.put("Sources/Kelvane/Root.qml", "import QtQuick\nimport org.example.Effects\n\nItem {\n}\n")
        self.assert_one(arrows.check(self.root), "Sources/Kelvane/Root.qml", "org.example.Effects")


class Sources(Tree):
    def test_a_source_that_no_list_names_is_rejected(self):
        self.assertEqual([], lint.check_sources(self.root))
        for path in ("Sources/DockCore/Stray.cpp", "Tests/DockCore/StrayTest.cpp", "Sources/Kelvane/Stray.qml"):
            with self.subTest(path):
                self.setUp()
                self.put(path, "")
                self.assert_one(lint.check_sources(self.root), path, "no CMakeLists.txt names it")


class Tools(Tree):
    """The checks that other programs make; skipped, and said so, where those are not installed."""

    def test_a_script_that_cannot_be_parsed_is_rejected(self):
        if not shutil.which("shellcheck"):
            self.skipTest("shellcheck is not installed")
        self.put("start", "#!/bin/sh\necho fine\n")
        self.assertEqual([], lint.check_scripts(self.root))
        self.put("start", "#!/bin/sh\ncd $1 && rm *\n")
        self.assertTrue(any("start:2" in str(fault) for fault in lint.check_scripts(self.root)))

    def test_a_file_in_another_format_is_rejected(self):
        if not shutil.which("clang-format-14"):
            self.skipTest("clang-format 14 is not installed")
        shutil.copy(HERE.parents[1] / ".clang-format", self.root)
        self.assertEqual([], lint.check_format(self.root))
        self.put("Sources/DockCore/Tile.cpp", "int  width( ) ;\n")
        self.assert_one(lint.check_format(self.root), "Sources/DockCore/Tile.cpp", "not in the house format")

    def test_a_name_out_of_style_is_rejected(self):
        if not shutil.which("clang-tidy-14"):
            self.skipTest("clang-tidy 14 is not installed")
        shutil.copy(HERE.parents[1] / ".clang-tidy", self.root)

        def look(name):
            self.put("Sources/DockCore/Tile.cpp", f"class Tile {{\npublic:\n    int width() const {{ return {name}; }}\n\nprivate:\n    int {name} = 0;\n}};\n")
            command = ["clang-tidy-14", "--quiet", "Sources/DockCore/Tile.cpp", "--", "-std=c++20"]
            return subprocess.run(command, cwd=self.root, capture_output=True, text=True)

        self.assertEqual(0, look("m_width").returncode)
        self.assertIn("readability-identifier-naming", look("width_").stdout)
        self.assertEqual(1, look("width_").returncode)


class CommandLine(unittest.TestCase):
    def test_an_unknown_check_is_refused(self):
        done = subprocess.run([sys.executable, str(HERE / "lint.py"), "--only", "spelling"], capture_output=True, text=True)
        self.assertEqual(2, done.returncode)
        self.assertIn("no check is called spelling", done.stderr)


if __name__ == "__main__":
    unittest.main()
