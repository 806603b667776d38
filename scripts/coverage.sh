#!/bin/bash
# Runs every test on a build that counts what was run, and prints line and branch coverage of the core: the rooms
# without a toolkit, class m and the program without a front end. Exit status 1 below 95 % of the lines.
# The pages are in build/coverage/html.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh

need_packages "${build_packages[@]}" "${test_packages[@]}" gcovr
configure coverage -DBUILD_TESTING=ON
build coverage
find build/coverage -name '*.gcda' -delete
# The tests that measure time or memory are told nothing by a build that counts.
ctest --preset coverage -j"$jobs" --no-tests=error -LE 'package|house' "$@" >build/coverage/tests.log 2>&1 ||
  echo "Some tests failed on this build; see build/coverage/tests.log." >&2

mkdir -p build/coverage/html
# Branches that only an exception would take are the compiler's, not ours.
gcovr --root . --object-directory build/coverage --exclude-throw-branches --exclude-unreachable-branches \
  --filter 'src/(base|store|uucode|mail|alerts|report|engine|program)/' \
  --html-details build/coverage/html/index.html --print-summary --fail-under-line 95
