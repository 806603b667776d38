#!/bin/bash
# Runs cppcheck over everything and clang-tidy over the sources, or over those that are named: scripts/tidy.sh src/engine/test_pass.cpp
# It takes some minutes over everything, which is why it is no part of the checks of every change.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh

need_packages "${build_packages[@]}" "${test_packages[@]}" clang-tidy cppcheck
status=0
# Services is a bundle of references, which cppcheck takes for values.
cppcheck --enable=warning,performance,portability --std=c++20 --language=c++ -I src -j"$jobs" --quiet --error-exitcode=1 \
  --inline-suppr --suppress=missingIncludeSystem --suppress=unknownMacro \
  --suppress=returnDanglingLifetime:src/app/desktop_platform.cpp \
  --suppress=returnDanglingLifetime:src/app/headless_platform.cpp src || status=1

configure debug -DBUILD_TESTING=ON
# What Qt generates (the meta-object code of the widgets) must be there before the sources can be read.
build debug tarnwick_ui_autogen

if (($# > 0)); then
  sources=("$@")
else
  mapfile -t sources < <(find src -name '*.cpp' ! -name '*_windows.cpp' | sort)
fi
# Per-file counts of warnings in system headers are noise; findings are printed on standard output.
printf '%s\0' "${sources[@]}" |
  xargs -0 -n 1 -P "$jobs" clang-tidy -p build/debug --quiet --warnings-as-errors='*' --extra-arg=-Wno-unknown-warning-option 2>/dev/null || status=1
if ((status == 0)); then
  echo "cppcheck and clang-tidy: nothing found in ${#sources[@]} files."
else
  echo "cppcheck or clang-tidy: see the findings above." >&2
fi
exit "$status"
