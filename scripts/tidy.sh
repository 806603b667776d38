#!/bin/bash
# Runs clang-tidy over the sources, or over those that are named: scripts/tidy.sh src/engine/test_pass.cpp
# It takes some minutes over everything, which is why it is no part of the checks of every change.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh

need_packages "${build_packages[@]}" "${test_packages[@]}" clang-tidy
configure debug -DBUILD_TESTING=ON
# What Qt generates (the meta-object code of the widgets) must be there before the sources can be read.
build debug

if (($# > 0)); then
  sources=("$@")
else
  mapfile -t sources < <(find src -name '*.cpp' | sort)
fi
status=0
# Per-file counts of warnings in system headers are noise; findings are printed on standard output.
printf '%s\0' "${sources[@]}" |
  xargs -0 -n 1 -P "$jobs" clang-tidy -p build/debug --quiet --warnings-as-errors='*' --extra-arg=-Wno-unknown-warning-option 2>/dev/null || status=1
if ((status == 0)); then
  echo "clang-tidy: nothing found in ${#sources[@]} files."
else
  echo "clang-tidy: see the findings above." >&2
fi
exit "$status"
