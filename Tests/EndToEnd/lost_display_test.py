"""The display's server goes while the application runs: the session has ended, and nobody has failed."""

import signal
import unittest

from application import ApplicationTest
from desktop import Desktop


class LostDisplay(ApplicationTest):
    # Qt's own words, and those of the X library where it was the one who noticed.
    complaints = r"The X11 connection broke.*\n(?:X.*\n(?: .*\n)?)?"

    @classmethod
    def setUpClass(cls):
        """Each test has a desktop of its own, for it ends it."""

    def setUp(self):
        super().setUp()
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)

    def lose_the_display(self, how):
        self.use("Chess")
        saved = self.saved_switches("Chess")
        self.desktop.x_server.send_signal(how)
        self.assertEqual(self.application.wait(20), 0)
        self.assertEqual(self.saved_switches("Chess"), saved + 1)
        self.assertEqual(self.world.run("status")[0], 0)

    def test_the_server_ends_beside_the_window(self):
        self.open("--show")
        self.lose_the_display(signal.SIGTERM)

    def test_the_server_is_killed_while_no_window_is_open(self):
        self.launch()
        self.lose_the_display(signal.SIGKILL)


if __name__ == "__main__":
    unittest.main(verbosity=1)
