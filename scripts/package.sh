#!/bin/bash
# Makes the packages of this version in build/package: the archive of the program folder with its libraries, and on Debian
# the two packages for all users of a machine.
#
#   scripts/package.sh            makes them
#   scripts/package.sh --test     and looks whether they work, also on systems on which nothing else is installed
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh
source scripts/lib/help.sh

# The bare systems that the packages are tried on, kept between two runs.
systems_cache=${TARNWICK_SYSTEMS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/tarnwick-systems}
tests=OFF
case "${1:-}" in
  "") ;;
  --test)
    tests=ON
    ;;
  -h | --help) show_help ;;
  *)
    echo "scripts/package.sh does not know \"$1\"; see scripts/package.sh --help" >&2
    exit 2
    ;;
esac

need_packages "${build_packages[@]}" "${package_packages[@]}"
if [[ $tests == ON ]]; then
  need_packages "${test_packages[@]}" "${package_test_packages[@]}"
fi
configure package -DBUILD_TESTING=$tests
build package tarnwick tarnwickctl completions program_folder
(
  cd build/package
  rm -f tarnwick-*.tar.gz tarnwick*_*.deb
  said=$(cpack 2>&1) || {
    printf '%s\n' "$said" "The packages could not be made; the reason is above." >&2
    exit 1
  }
)
if [[ $tests == ON ]]; then
  LC_ALL=C.UTF-8 ctest --test-dir build/package --output-on-failure --no-tests=error -L package
  /usr/bin/python3 tests/package/bare_test.py build/package "$systems_cache"
fi
sha256sum build/package/tarnwick-*.tar.gz build/package/tarnwick*_*.deb
