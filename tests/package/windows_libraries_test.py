#!/usr/bin/env python3
"""Looks at how the libraries of the Windows program are kept: built once for each version that Debian has.

    windows_libraries_test.py SOURCE_FOLDER

Neither a network nor a compiler is used: the commands of Debian are played.
"""

from __future__ import annotations

import subprocess
import sys
import tempfile
from pathlib import Path

SCRIPT = r"""
set -euo pipefail
source scripts/lib/windows.sh
apt-get() { [[ $known != offline ]]; }
apt-cache() { [[ $known == offline ]] || printf 'Package: x\nVersion: %s\n' 1.9 $known; }
dpkg-query() { printf '7.0 '; }
build() { echo "built $1"; }
pass() {
  known=$1
  update_source_lists
  build_version curl "$(source_version curl)" build curl
}
apt_in_cache() { local command=$1; shift; "$command" "$@"; }
"""


def said(source: Path, cache: Path, orders: str) -> list[str]:
    done = subprocess.run(["bash", "-c", SCRIPT + orders], cwd=source, capture_output=True, text=True,
                          env={"PATH": "/usr/bin:/bin", "TARNWICK_WINDOWS_CACHE": str(cache)}, check=False)
    if done.returncode != 0:
        raise SystemExit(f"status {done.returncode}: {done.stdout}{done.stderr}")
    return done.stdout.splitlines()


def main() -> int:
    source = Path(sys.argv[1])
    with tempfile.TemporaryDirectory(prefix="tarnwick-libraries-") as name:
        cache = Path(name)
        built = [sum(line == "built curl" for line in said(source, cache, f"pass {version}"))
                 for version in ("1.10-2", "1.10-2", "1.10-2+deb1", "offline", "1.10-2+deb1")]
        if built != [1, 0, 1, 0, 0]:
            print(f"built {built} times")
            return 1
        versions = said(source, cache, "library_versions")
        if versions != ["curl 1.10-2+deb1", "zlib 7.0", "compiler 7.0"]:
            print(f"the archive would name {versions}")
            return 1
    return 0


sys.exit(main())
