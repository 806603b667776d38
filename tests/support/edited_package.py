"""A Debian package as another version of it would be, for tests that upgrade and downgrade."""

from __future__ import annotations

import re
import subprocess
from pathlib import Path


def edited_package(work: Path, source: Path, version: str, change=lambda tree: None) -> Path:
    """The package in another version, with what `change` does to its tree; it and its tree lie in `work`."""
    tree = work / f"tree-{source.name}-{version}"
    subprocess.run(["dpkg-deb", "--raw-extract", source, tree], check=True)
    control = tree / "DEBIAN" / "control"
    text = re.sub(r"^Version: .*$", f"Version: {version}", control.read_text(), flags=re.MULTILINE)
    control.write_text(re.sub(r"tarnwick-cli \(= .*?\)", f"tarnwick-cli (= {version})", text))
    change(tree)
    package = work / f"{source.name}-{version}.deb"
    subprocess.run(["dpkg-deb", "--root-owner-group", "--build", tree, package], check=True, stdout=subprocess.DEVNULL)
    return package
