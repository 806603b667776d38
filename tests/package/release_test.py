#!/usr/bin/env python3
"""Makes what a release has beside its artefacts, in a repository of the test's own and with a key that is thrown away.

    release_test.py SOURCE_FOLDER
"""

from __future__ import annotations

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

source = Path()
CHANGES = """# Change log

## [Unreleased]

- Not yet.

## [1.2.0] - 2026-01-02

### Added

- What is new.

# Not a heading of a version.

## [1.1.0] - 2026-01-01

- What was new.
"""


class Release(unittest.TestCase):
    def setUp(self):
        self.work = Path(tempfile.mkdtemp(prefix="tarnwick-release-"))
        self.addCleanup(shutil.rmtree, self.work, ignore_errors=True)
        self.folder = self.work / "repository"
        (self.folder / "scripts/lib").mkdir(parents=True)
        shutil.copy(source / "scripts/lib/release.sh", self.folder / "scripts/lib")
        (self.folder / "CHANGELOG.md").write_text(CHANGES)
        (self.folder / "CMakeLists.txt").write_text("project(Tarnwick VERSION 1.2.0 LANGUAGES CXX)\n")
        keys = self.work / "keys"
        keys.mkdir(mode=0o700)
        self.env = {"PATH": os.environ["PATH"], "HOME": str(self.work), "GNUPGHOME": str(keys),
                    "GIT_CONFIG_GLOBAL": "/dev/null", "GIT_AUTHOR_NAME": "A", "GIT_AUTHOR_EMAIL": "a@b.example",
                    "GIT_COMMITTER_NAME": "A", "GIT_COMMITTER_EMAIL": "a@b.example"}
        self.run_in("git", "init", "-q")
        self.commit()

    def run_in(self, *command, status: int = 0) -> str:
        done = subprocess.run(command, cwd=self.folder, env=self.env, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True, check=False)
        self.assertEqual(done.returncode, status, f"{command}: {done.stdout}")
        return done.stdout

    def commit(self):
        self.run_in("git", "add", "-A")
        self.run_in("git", "commit", "-q", "-m", "State")

    def step(self, order: str, status: int = 0) -> str:
        return self.run_in("bash", "-c", f"set -euo pipefail; source scripts/lib/release.sh; {order}", status=status)

    def make_key(self):
        self.run_in("gpg", "--batch", "--passphrase", "", "--quick-generate-key", "Throw Away <a@b.example>", "ed25519",
                    "sign", "1d")
        self.addCleanup(subprocess.run, ["gpgconf", "--kill", "all"], env=self.env, check=False)

    def lay_artefacts(self) -> Path:
        folder = self.work / "artefacts"
        folder.mkdir()
        for name in ("one.deb", "two with a blank.zip"):
            (folder / name).write_text(name)
        return folder

    def test_notes_are_those_of_the_version(self):
        self.assertEqual(self.step("release_notes 1.2.0"),
                         "### Added\n\n- What is new.\n\n# Not a heading of a version.\n")
        self.assertEqual(self.step("release_notes 1.1.0"), "- What was new.\n")
        self.assertEqual(self.step("release_notes 1.2"), "")

    def test_refuses_what_is_no_release(self):
        self.step("refuse_what_is_no_release 1.2.0")
        self.assertIn("write 1.3.0 into both", self.step("refuse_what_is_no_release 1.3.0", 1))
        (self.folder / "file").touch()
        self.assertIn("not committed", self.step("refuse_what_is_no_release 1.2.0", 1))
        self.commit()
        self.step("tag_release 1.2.0")
        self.assertIn("there already", self.step("refuse_what_is_no_release 1.2.0", 1))

    def test_without_a_key_there_are_sums_and_a_plain_tag(self):
        folder = self.lay_artefacts()
        self.step(f"write_sums {folder}; write_sums {folder}; tag_release 1.2.0")
        self.assertEqual(sorted(path.name for path in folder.iterdir()), ["SHA256SUMS", "one.deb", "two with a blank.zip"])
        done = subprocess.run(["sha256sum", "--check", "--strict", "SHA256SUMS"], cwd=folder, capture_output=True, text=True,
                              check=True)
        self.assertEqual(done.stdout, "one.deb: OK\ntwo with a blank.zip: OK\n")
        self.assertIn("### Added\n\n- What is new.\n", self.run_in("git", "tag", "-l", "--format=%(contents)", "v1.2.0"))

    @unittest.skipIf(shutil.which("gpg") is None, "gpg is not installed")
    def test_with_a_key_both_are_signed(self):
        self.make_key()
        folder = self.lay_artefacts()
        self.step(f"write_sums {folder}; tag_release 1.2.0")
        self.run_in("gpg", "--batch", "--verify", str(folder / "SHA256SUMS.asc"), str(folder / "SHA256SUMS"))
        self.run_in("git", "verify-tag", "v1.2.0")
        (folder / "SHA256SUMS").write_text("other sums")
        self.run_in("gpg", "--batch", "--verify", str(folder / "SHA256SUMS.asc"), str(folder / "SHA256SUMS"), status=1)


if __name__ == "__main__":
    source = Path(sys.argv[1]).resolve()
    unittest.main(argv=sys.argv[:1])
