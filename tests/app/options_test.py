#!/usr/bin/env python3
"""What the window's program says in a terminal: asked for texts, with words it does not know, and without a display.

    options_test.py TARNWICK VERSION
"""

from __future__ import annotations

import os
import subprocess
import sys
import tempfile
import unittest

program, version = "", ""


class Options(unittest.TestCase):
    def say(self, *arguments: str, **display: str) -> tuple[int, str, str]:
        unset = ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_SESSION_TYPE")
        env = {key: value for key, value in os.environ.items() if key not in unset}
        with tempfile.TemporaryDirectory() as home:
            done = subprocess.run([program, *arguments], env={**env, "HOME": home, "XDG_RUNTIME_DIR": home, **display},
                                  cwd=home, capture_output=True, text=True, check=False, timeout=30)
        return done.returncode, done.stdout, done.stderr

    def test_tells_its_version_without_a_display(self):
        self.assertEqual(self.say("--version"), (0, f"tarnwick {version}\n", ""))

    def test_tells_its_version_on_one(self):
        self.assertEqual(self.say("--version", QT_QPA_PLATFORM="offscreen"), (0, f"tarnwick {version}\n", ""))

    def test_helps_without_a_display(self):
        for wish in ("-h", "--help"):
            status, said, complaints = self.say(wish)
            self.assertEqual((status, complaints), (0, ""))
            self.assertIn("--version", said)
            self.assertIn("tarnwickctl", said)
            self.assertLessEqual(max(map(len, said.splitlines())), 80 + 10)

    def test_names_what_it_does_not_know(self):
        for argument in ("--colour", "-x", "sites", "--", "-", "", "--platform"):
            status, said, complaints = self.say(argument, QT_QPA_PLATFORM="offscreen")
            self.assertEqual((status, said), (2, ""))
            self.assertEqual(complaints, f'tarnwick: There is no option "{argument}". See: tarnwick --help\n')

    def expect_no_window(self, found: tuple[int, str, str], *named: str):
        status, said, complaints = found
        self.assertEqual((status, said), (1, ""))
        self.assertEqual(complaints.count("\n"), 1, complaints)
        for name in (*named, "tarnwickctl run"):
            self.assertIn(name, complaints)

    def test_says_that_there_is_no_display(self):
        self.expect_no_window(self.say(), "neither DISPLAY nor WAYLAND_DISPLAY")

    def test_leaves_the_options_of_the_toolkit_to_it(self):
        for option in (["-style", "fusion"], ["--style=fusion"], ["-reverse"], ["-session", "1_2"]):
            self.expect_no_window(self.say(*option), "neither DISPLAY nor WAYLAND_DISPLAY")

    def test_names_the_display_that_does_not_answer(self):
        self.expect_no_window(self.say(DISPLAY=":4711"), "DISPLAY=:4711")

    def test_names_a_platform_that_there_is_not(self):
        self.expect_no_window(self.say(QT_QPA_PLATFORM="nowhere"), "nowhere")


if __name__ == "__main__":
    program, version = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1])
