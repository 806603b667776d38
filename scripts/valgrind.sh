#!/bin/bash
# Runs the tests of the rooms behind the window under Valgrind's memory check: reads and writes where nothing is, values
# that nobody has set, memory that is lost. It takes long; rooms that are named are the only ones looked at:
#
#   scripts/valgrind.sh store alerts
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh
source scripts/lib/help.sh

help_if_asked "$@"
rooms=("$@")
if ((${#rooms[@]} == 0)); then
  rooms=(base platform_os platform_sqlite platform_web platform_events platform_process store uucode mail alerts report
    engine program machine)
fi

need_packages "${build_packages[@]}" "${test_packages[@]}" valgrind
configure release -DBUILD_TESTING=ON
build release "${rooms[@]/#/test_}"
export QT_QPA_PLATFORM=offscreen no_proxy='*' NO_PROXY='*'

# Valgrind starts programs in a way of its own, which learns of a bad one too late, and its memory is its own.
suppressions=$PWD/tests/support/valgrind.supp
left_out='ProgramStart.OfAFileThatIsNoProgramFails:Heap.*'

status=0
for room in "${rooms[@]}"; do
  from=$SECONDS result=0
  log=$PWD/build/release/valgrind-$room.txt
  program=$(find build/release/tests -name "test_$room" -type f)
  (cd "$(dirname "$program")" &&
    valgrind --quiet --error-exitcode=99 --leak-check=full --errors-for-leak-kinds=definite \
      --suppressions="$suppressions" \
      --child-silent-after-fork=yes --log-file="$log" \
      "./test_$room" --gtest_brief=1 --gtest_filter="-$left_out" >"$log.tests" 2>&1) || result=$?
  if [[ -s $log ]]; then
    echo "$room: findings in $log ($((SECONDS - from)) s)" >&2
    status=1
  elif ((result != 0)); then
    echo "$room: nothing found by Valgrind in $((SECONDS - from)) s, but some tests failed; see $log.tests" >&2
  else
    echo "$room: nothing found in $((SECONDS - from)) s"
  fi
done
exit "$status"
