#!/bin/bash
# Makes 200,000 checks (or as many as are named) in one process and says what became of its memory and descriptors:
# first measured from outside, then with the leak check of AddressSanitizer.  scripts/long-run.sh [CHECKS]
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh

checks=${1:-200000}
need_packages "${build_packages[@]}" "${test_packages[@]}"
export no_proxy='*' NO_PROXY='*'

echo "Building."
configure release -DBUILD_TESTING=ON
build release long_run
configure sanitize -DBUILD_TESTING=ON
build sanitize long_run

echo "Measured from outside:"
/usr/bin/python3 tests/longrun/long_run.py build/release/tests/longrun/long_run assets/schema.sql "$checks"

echo "With the leak check:"
export ASAN_OPTIONS=detect_leaks=1
export LSAN_OPTIONS=suppressions=$PWD/tests/support/lsan.supp:print_suppressions=0
/usr/bin/python3 tests/longrun/long_run.py build/sanitize/tests/longrun/long_run assets/schema.sql "$checks" --only-ending
