#!/bin/bash
# Builds everything and runs every test.
#
#   scripts/test.sh                 the release build
#   scripts/test.sh --sanitize      the same tests with AddressSanitizer and UndefinedBehaviorSanitizer
#   scripts/test.sh --sanitize-core those of the rooms that need neither Qt nor libcurl, in some minutes
#   scripts/test.sh -L store        what follows goes to ctest: here only the tests of one room
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh
source scripts/lib/help.sh

preset=release
case "${1:-}" in
  --sanitize | --sanitize-core)
    preset=${1#--}
    shift
    ;;
  -h | --help) show_help ;;
esac

need_packages "${build_packages[@]}" "${test_packages[@]}" "${package_packages[@]}" "${package_test_packages[@]}"
configure "$preset" -DBUILD_TESTING=ON
build "$preset"

if [[ $preset == sanitize* ]]; then
  # Leaks of the program count; the few that its libraries leave at exit are named in the list.
  export ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1:check_initialization_order=1
  export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
  export LSAN_OPTIONS=suppressions=$PWD/tests/support/lsan.supp:print_suppressions=0
fi

# A test may write what a desktop's libraries keep of a user: not into the home of whoever runs it.
home=$(mktemp -d)
trap 'chmod -R u+rwX "$home"; rm -rf "$home"' EXIT
mkdir -m 700 "$home/run"

status=0
env HOME="$home" XDG_RUNTIME_DIR="$home/run" XDG_CONFIG_HOME= XDG_CACHE_HOME= XDG_DATA_HOME= XDG_STATE_HOME= \
  ctest --preset "$preset" -j"$jobs" --no-tests=error "$@" || status=$?
if ((status == 0)); then
  echo "Tests of the $preset build: passed."
else
  echo "Tests of the $preset build: FAILED (ctest ended with status $status)." >&2
fi
exit "$status"
