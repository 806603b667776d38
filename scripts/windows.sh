#!/bin/bash
# Builds Tarnwick for 64-bit Windows on this Debian system, and packs it as a zip archive and as an installer.
#
#   scripts/windows.sh                     both, in build/windows-x86_64
#   scripts/windows.sh --test              and runs the tests under Wine
#   scripts/windows.sh --core              builds and tests only what needs neither Qt nor libcurl, in some minutes
#   scripts/windows.sh --libraries FOLDER  keeps the libraries in FOLDER instead of ~/.cache/tarnwick-windows; so does the
#                                          variable TARNWICK_WINDOWS_CACHE
#
# The first run also builds the libraries, which takes about half an hour; they are kept for the runs that follow,
# until Debian has a newer version of one.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh
source scripts/lib/windows.sh
source scripts/lib/help.sh

part=program
test=
while (($# > 0)); do
  case $1 in
    --test) test=yes ;;
    --core)
      part=core
      test=yes
      ;;
    --libraries)
      windows_cache=${2:?"--libraries needs a folder"}
      shift
      ;;
    -h | --help) show_help ;;
    *)
      echo "There is no option $1; see scripts/windows.sh --help." >&2
      exit 2
      ;;
  esac
  shift
done

# compile FOLDER ARGUMENT...: configures and builds everything in build/FOLDER.
compile() {
  local folder=build/$1
  shift
  mkdir -p "$folder"
  quietly "$folder/configure.log" cross_configure . "$folder" -DTARNWICK_WERROR=ON "$@"
  cmake --build "$folder" -- -j"$jobs" || {
    echo "The build failed; the reason is above." >&2
    exit 1
  }
}

if [[ $part == core ]]; then
  need_packages "${windows_core_packages[@]}"
  build_core_libraries
  folder=build/windows-core
  compile windows-core -DTARNWICK_CORE_ONLY=ON -DBUILD_TESTING=ON
else
  need_packages "${windows_packages[@]}"
  build_libraries
  folder=build/windows-x86_64
  compile windows-x86_64 -DBUILD_TESTING="${test:-OFF}" -DQT_HOST_PATH=/usr \
    -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake"
  pack "$folder"
fi

if [[ -n $test ]]; then
  run_under_wine "$folder"
  if [[ $part == program ]]; then
    /usr/bin/python3 tests/package/installer_test.py "$folder"
  fi
fi
