#!/bin/bash
# Runs cppcheck and clang-tidy over the sources.
#
#   scripts/tidy.sh                            all of src, which takes some minutes
#   scripts/tidy.sh src/engine/test_pass.cpp   these
#   scripts/tidy.sh --changed                  those that differ from the branch that this one will go into; without any
#                                              difference those of the last commit. It begins no file after ten minutes.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh
source scripts/lib/help.sh

help_if_asked "$@"

# changed_files: what differs from the merge base with the upstream, committed or not.
changed_files() {
  local base= upstream
  for upstream in '@{upstream}' origin/main; do
    base=$(git merge-base HEAD "$upstream" 2>/dev/null) && break
  done
  if [[ -z $base ]] || { [[ $base == "$(git rev-parse HEAD)" ]] && [[ -z $(git status --porcelain -- src) ]]; }; then
    # Of a clone without history the commit is its own base: then nothing is known of what it changed.
    base=$(git rev-parse --quiet --verify 'HEAD~' || git rev-parse HEAD)
  fi
  git diff --name-only --diff-filter=d "$base" -- src
  git ls-files --others --exclude-standard -- src
}

# sources_of FILE: the source itself; for a header the source of its name, or one that includes it.
sources_of() {
  local file=$1
  case $file in
    *_windows.cpp) ;;
    *.cpp) echo "$file" ;;
    *.h)
      if [[ -f ${file%.h}.cpp ]]; then
        echo "${file%.h}.cpp"
      else
        grep -rlF --include='*.cpp' --exclude='*_windows.cpp' "\"${file#src/}\"" src | sort | head -1
      fi
      ;;
  esac
}

seconds=
if [[ ${1:-} == --changed ]]; then
  seconds=600
  mapfile -t sources < <(changed_files | while IFS= read -r file; do sources_of "$file"; done | sort -u)
  if ((${#sources[@]} == 0)); then
    echo "cppcheck and clang-tidy: no source is known to have changed."
    exit 0
  fi
elif (($# > 0)); then
  sources=("$@")
else
  mapfile -t sources < <(find src -name '*.cpp' ! -name '*_windows.cpp' | sort)
fi

need_packages "${build_packages[@]}" "${test_packages[@]}" clang-tidy cppcheck
status=0
# Services is a bundle of references, which cppcheck takes for values.
cppcheck --enable=warning,performance,portability --std=c++20 --language=c++ -I src -j"$jobs" --quiet --error-exitcode=1 \
  --inline-suppr --suppress=missingIncludeSystem --suppress=unknownMacro \
  --suppress=returnDanglingLifetime:src/app/desktop_platform.cpp \
  --suppress=returnDanglingLifetime:src/app/headless_platform.cpp "${sources[@]}" || status=1

# In a folder of its own without precompiled headers: clang reads none of the compiler's, and so a source that includes
# too little is found, too.
configure debug -B build/tidy -DBUILD_TESTING=OFF -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON

# tidy FILE: per-file counts of warnings in system headers are noise; findings are printed on standard output.
# shellcheck disable=SC2317
tidy() {
  if [[ -n $seconds && $(date +%s) -ge $until ]]; then
    echo "$1: not looked at, since the time is over; scripts/tidy.sh $1" >&2
    return
  fi
  clang-tidy -p build/tidy --quiet --warnings-as-errors='*' --extra-arg=-Wno-unknown-warning-option "$1" 2>/dev/null
}
export -f tidy
until=$(($(date +%s) + ${seconds:-0}))
export seconds until
# shellcheck disable=SC2016
printf '%s\0' "${sources[@]}" | xargs -0 -n 1 -P "$jobs" bash -c 'tidy "$1" || exit 1' tidy || status=1
if ((status == 0)); then
  echo "cppcheck and clang-tidy: nothing found in ${#sources[@]} files."
else
  echo "cppcheck or clang-tidy: see the findings above." >&2
fi
exit "$status"
