#!/bin/bash
# Makes the pictures of the docs again, from the running program on a display in memory: docs/images/*.png
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh

need_packages "${build_packages[@]}" "${run_packages[@]}" "${test_packages[@]}" imagemagick
configure release -DBUILD_TESTING=ON
build release tarnwick program_folder

mkdir -p docs/images
/usr/bin/python3 scripts/lib/take_screenshots.py build/release/tarnwick assets/schema.sql docs/images
