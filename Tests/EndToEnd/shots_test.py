"""The pictures of every pane, as ./dev shots makes them: on a machine without a display."""

import struct
import unittest

from application import ApplicationTest

STEPS = [f"onboarding-{step}" for step in (1, 2, 3)]
PANES = ["dock", "usage", "profiles", "history", "settings"]


def size(png):
    content = png.read_bytes()
    assert content[:8] == b"\x89PNG\r\n\x1a\n"
    return struct.unpack(">II", content[16:24])


class Pictures(ApplicationTest):
    def test_every_pane_in_both_appearances_for_a_dense_screen(self):
        folder = self.world.folder / "Pictures"
        application = self.start(KELVANE_SHOTS=str(folder), DISPLAY="", XDG_RUNTIME_DIR=self.desktop.runtime)
        self.assertEqual(application.wait(120), 0)
        sizes = {picture.name: size(picture) for picture in folder.iterdir()}
        names = [f"{name}-{appearance}.png" for name in STEPS + PANES for appearance in ("light", "dark")]
        self.assertEqual(sizes, dict.fromkeys(names, (1920, 1280)))
        self.assertEqual(len({picture.read_bytes() for picture in folder.iterdir()}), len(names))
        self.assertFalse((self.world.support / "window.json").exists())


if __name__ == "__main__":
    unittest.main(verbosity=1)
