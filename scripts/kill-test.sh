#!/bin/bash
# Kills a working program at random instants, starts it again on what is left, and looks for what is lost: in starting,
# checking sites, editing, clearing the log and compacting.
#
#   scripts/kill-test.sh          500 kills, some minutes
#   scripts/kill-test.sh 5000     so many
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh
source scripts/lib/help.sh

help_if_asked "$@"

need_packages "${build_packages[@]}" "${test_packages[@]}"
configure release -DBUILD_TESTING=ON
build release kill_subject
export no_proxy='*' NO_PROXY='*'
python3 tests/kill/kill_test.py build/release/tests/kill/kill_subject assets/schema.sql "${1:-500}"
