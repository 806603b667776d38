#!/bin/bash
# Breaks the core in one place at a time and looks whether the tests notice. It takes about an hour; with an argument
# only the mutants whose title holds that text are tried: scripts/mutate.sh due_sites
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh

need_packages "${build_packages[@]}" "${test_packages[@]}" git
/usr/bin/python3 tests/mutation/mutate.py . build/mutation --only "${1:-}"
