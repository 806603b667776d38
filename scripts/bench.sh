#!/bin/bash
# Measures Tarnwick beside what people use instead, and beside the floor that no program can go below; prints one table.
#
#   scripts/bench.sh                  everything: about an hour
#   scripts/bench.sh --quick          one run of each with up to 2000 sites: two minutes
#   scripts/bench.sh --only slow      one part: fast, secure, names, slow, parallel, scale, window, large, alerts or history
#   scripts/bench.sh --help           the other options
#
# Every program and server stays on this machine. Close other programs first: the load is printed beside each figure.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh

if [[ ${1:-} == --help || ${1:-} == -h ]]; then
  exec python3 scripts/lib/bench_table.py --build build/bench --help
fi

need_packages "${build_packages[@]}" "${bench_packages[@]}"
cmake -S . -B build/bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF -DTARNWICK_BENCH=ON >/dev/null
cmake --build build/bench --target tarnwickctl sql_floor fetch_floor window_bench -- -j"$jobs"
exec python3 scripts/lib/bench_table.py --build build/bench "$@"
