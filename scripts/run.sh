#!/bin/bash
# Builds Tarnwick and starts it: installs what is missing, compiles what has changed, opens the window.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh

need_packages "${build_packages[@]}" "${run_packages[@]}"
if [[ -z ${DISPLAY:-} && -n ${WAYLAND_DISPLAY:-} ]]; then
  need_packages qt6-wayland
fi

# The tests are no part of running; they are configured where their libraries are, so that both scripts share a build.
tests=OFF
if is_installed libgtest-dev && is_installed libgmock-dev; then
  tests=ON
fi
configure release -DBUILD_TESTING=$tests
build release tarnwick program_folder

folder=$PWD/build/release/tarnwick
echo "The program folder is $folder"

if [[ -z ${DISPLAY:-} && -z ${WAYLAND_DISPLAY:-} ]]; then
  echo "Tarnwick is built, but there is no display for its window: DISPLAY and WAYLAND_DISPLAY are not set." >&2
  echo "Run this script from a terminal of a desktop session, or start $folder/tarnwick there." >&2
  exit 1
fi
exec "$folder/tarnwick"
