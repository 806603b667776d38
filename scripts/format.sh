#!/bin/bash
# Formats every C++ file of the project in place; with --check it only says which files are not formatted.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
need_packages clang-format

mode=(-i)
if [[ ${1:-} == --check ]]; then
  mode=(--dry-run -Werror)
fi
status=0
find src tests bench \( -name '*.cpp' -o -name '*.h' \) -print0 2>/dev/null | sort -z |
  xargs -0 clang-format --style=file "${mode[@]}" || status=1
if ((status != 0)); then
  echo "Run scripts/format.sh to format the files named above." >&2
fi
exit "$status"
