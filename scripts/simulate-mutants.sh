#!/bin/bash
# Puts faults into a copy of the program, one after the other, and shows that the simulation finds each within 100 seeds.
#
#   scripts/simulate-mutants.sh                  all of them, about half an hour
#   scripts/simulate-mutants.sh "due"            those whose titles hold that text
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/help.sh

help_if_asked "$@"

need_packages "${build_packages[@]}" "${test_packages[@]}"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
/usr/bin/python3 tests/simulation/mutants.py . "$work" --only "${1:-}"
