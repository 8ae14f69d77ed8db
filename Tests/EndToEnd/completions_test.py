"""What the shells offer after "kelvanectl", asked of the shells themselves, and what the man pages explain."""

import os
import pty
import re
import select
import subprocess
import time
import unittest

from world import BINARIES, ROOT, World

COMPLETIONS = ROOT / "Packaging/completions"
PATIENCE = 20


class Completions(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.world = World()
        cls.addClassCleanup(cls.world.remove)
        cls.environment = {**cls.world.environment, "PATH": f"{BINARIES}:{os.environ['PATH']}", "TERM": "dumb"}
        help_text = cls.world.run("--help")[1]
        cls.commands = set(re.findall(r"^  ([a-z]+) ", help_text, re.MULTILINE))

    def bash(self, *words):
        script = (f"source '{COMPLETIONS}/kelvanectl.bash'; COMP_WORDS=(kelvanectl \"$@\"); COMP_CWORD=$#; _kelvanectl; "
                  "printf '%s\\n' \"${COMPREPLY[@]}\"")
        done = subprocess.run(["bash", "--norc", "-c", script, "bash", *words], env=self.environment, capture_output=True,
                              text=True, timeout=PATIENCE)
        self.assertEqual(done.stderr, "")
        return set(done.stdout.splitlines())

    def fish(self, line):
        done = subprocess.run(["fish", "--no-config", "-c", f"source '{COMPLETIONS}/kelvanectl.fish'; complete -C '{line}'"],
                              env=self.environment, capture_output=True, text=True, timeout=PATIENCE)
        self.assertEqual(done.stderr, "")
        return {offer.split("\t")[0] for offer in done.stdout.splitlines()}

    def zsh(self, line):
        """What the line becomes when Tab is pressed at its end."""
        process, terminal = pty.fork()
        if process == 0:
            os.execvpe("zsh", ["zsh", "-f", "-i"], self.environment)
        try:
            self.say(terminal, f"PS1=; unsetopt zle_bracketed_paste; fpath=({COMPLETIONS} $fpath); autoload -Uz compinit; "
                               "compinit -D -u; echo re''ady\n", "ready")
            return self.say(terminal, line + "\t", line + r"[^\s\a]+ ")
        finally:
            os.close(terminal)
            os.waitpid(process, 0)

    @staticmethod
    def say(terminal, text, pattern):
        """Types and reads on until what comes back matches."""
        os.write(terminal, text.encode())
        read, deadline = "", time.monotonic() + PATIENCE
        while time.monotonic() < deadline:
            if select.select([terminal], [], [], 0.2)[0]:
                read += os.read(terminal, 4096).decode(errors="replace")
            found = re.search(pattern, read)
            if found:
                return found.group()
        raise AssertionError(f"no {pattern!r} in {read!r}")

    def test_every_command_is_offered_and_explained(self):
        self.assertGreater(len(self.commands), 8)
        self.assertEqual(self.bash(""), self.commands)
        self.assertEqual({offer for offer in self.fish("kelvanectl ") if not offer.startswith("-")}, self.commands)
        listed = re.findall(r"^ +'([a-z]+):", (COMPLETIONS / "_kelvanectl").read_text(), re.MULTILINE)
        self.assertEqual(set(listed), self.commands)
        explained = re.findall(r"^\.BR? ([a-z]+)", (ROOT / "Packaging/kelvanectl.1").read_text(), re.MULTILINE)
        self.assertLessEqual(self.commands, set(explained))

    def test_every_option_of_the_application_is_explained(self):
        done = subprocess.run([BINARIES / "kelvane", "--help"], env={**self.environment, "XDG_RUNTIME_DIR": "/nonexistent"},
                              capture_output=True, text=True, timeout=PATIENCE)
        self.assertEqual(done.returncode, 0)
        options = set(re.findall(r"^  (--[a-z]+) ", done.stdout, re.MULTILINE))
        manual = (ROOT / "Packaging/kelvane.1").read_text().replace("\\-", "-")
        self.assertEqual(options, set(re.findall(r"^\.B (--[a-z]+)$", manual, re.MULTILINE)))

    def test_profiles_are_offered_by_name(self):
        names = {profile["name"] for profile in self.world.json("profiles.json")}
        self.assertEqual(self.bash("apply", ""), names)
        self.assertLessEqual(names, self.fish("kelvanectl apply "))
        self.assertEqual(self.zsh("kelvanectl apply Per"), "kelvanectl apply Personal ")

    def test_words_of_a_command(self):
        self.assertEqual(self.bash("auto", ""), {"off", "hourly", "every4Hours", "daily"})
        self.assertEqual(self.bash("track", "of"), {"off"})
        self.assertEqual(self.bash("restore", "--o"), {"--original"})
        self.assertEqual({offer for offer in self.fish("kelvanectl auto ") if not offer.startswith("-")},
                         {"off", "hourly", "every4Hours", "daily"})
        self.assertEqual(self.zsh("kelvanectl sna"), "kelvanectl snapshots ")
        self.assertEqual(self.zsh("kelvanectl auto hou"), "kelvanectl auto hourly ")


if __name__ == "__main__":
    unittest.main(verbosity=1)
