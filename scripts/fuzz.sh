#!/bin/bash
# Builds the fuzzers with clang and runs them on what others have written: pages, addresses, replies, lists, statements.
#
#   scripts/fuzz.sh                        every target for 60 seconds
#   scripts/fuzz.sh 600                    every target for ten minutes
#   scripts/fuzz.sh 600 address sql_value  these two; tests/fuzz/corpus has a folder of inputs for each target
#   scripts/fuzz.sh --together 3600        all of them side by side, with what the processors have to spare
#
# Else as many run side by side as there are processors. Each prints one line, with the processor time that it has had.
# Exit status 1 when one has found something:
# its input is then in build/fuzz/findings, and becomes a file of the target's folder once it is mended.
# What a run learns is kept in build/fuzz/learnt, for the next one.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh
source scripts/lib/help.sh

help_if_asked "$@"
if [[ ${1:-} == --together ]]; then
  together=1
  shift
fi
seconds=${1:-60}
if ! [[ $seconds =~ ^[1-9][0-9]*$ ]]; then
  echo "\"$seconds\" is no number of seconds; see scripts/fuzz.sh --help." >&2
  exit 2
fi
all=(tests/fuzz/corpus/*)
all=("${all[@]##*/}")
targets=("${@:2}")
if ((${#targets[@]} == 0)); then
  targets=("${all[@]}")
fi
side_by_side=${together:+${#targets[@]}}
# By the clock, which goes on while dozens wait for a processor.
longest=$((${together:-0} * 3480 + 120))
for target in "${targets[@]}"; do
  if ! [[ -d tests/fuzz/corpus/$target ]]; then
    echo "There is no target $target. The targets are: ${all[*]}" >&2
    exit 2
  fi
done

need_packages "${build_packages[@]}" clang libclang-rt-14-dev llvm-14
configure fuzz
build fuzz "${targets[@]/#/fuzz_}"

findings=build/fuzz/findings
learnt=build/fuzz/learnt
mkdir -p "$findings"

# fuzz TARGET: runs it and prints its line; what else it says goes into a file.
# shellcheck disable=SC2317
fuzz() {
  local target=$1 from=$SECONDS status=0 log=build/fuzz/$1.log runs used
  mkdir -p "$learnt/$target"
  local TIMEFORMAT=%U
  used=$({ time nice -n 19 "build/fuzz/tests/fuzz/libfuzzer/fuzz_$target" -max_total_time="$seconds" -timeout="$longest" \
    -print_final_stats=1 -artifact_prefix="$findings/$target-" "$learnt/$target" "tests/fuzz/corpus/$target" \
    >"$log" 2>&1; } 2>&1) || status=$?
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  if ((status == 0)); then
    echo "$target: ${runs:-0} runs in $((SECONDS - from)) s ($used s of processor time), nothing found"
  else
    echo "$target: ${runs:-0} runs in $((SECONDS - from)) s, FOUND: $(grep -a -m 1 -E 'what\(\)|ERROR|runtime error' "$log" ||
      echo "it ended with status $status"). All of it is in $log."
  fi
  return "$status"
}
export -f fuzz
export findings learnt seconds longest

# A smaller quarantine of freed memory: dozens of fuzzers may run side by side.
export ASAN_OPTIONS=${ASAN_OPTIONS:-quarantine_size_mb=16}
status=0
# shellcheck disable=SC2016
printf '%s\0' "${targets[@]}" | xargs -0 -n 1 -P "${side_by_side:-$jobs}" bash -c 'fuzz "$1" || exit 1' fuzz || status=1
if ((status == 0)); then
  echo "Fuzzers: nothing found by ${#targets[@]} targets in $seconds s each."
else
  echo "Fuzzers: see above; the inputs are in $findings." >&2
fi
exit "$status"
