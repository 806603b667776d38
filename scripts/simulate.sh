#!/bin/bash
# Lets the program watch sites on a simulated machine, through clocks that are set, networks, mail servers and disks that
# fail, users, other programs and power cuts, and compares what it does with what it should. The same seed gives the same
# run. A run that fails prints the command that repeats it, and a shorter one.
#
#   scripts/simulate.sh                                     a day of 10 sites, another one each time
#   scripts/simulate.sh --seed 7 --years 1 --sites 10       that year
#   scripts/simulate.sh --seeds 100 --days 3                a hundred runs, one seed after the other
#   scripts/simulate.sh --hours 8 --days 20                 as many as there is time for
#   scripts/simulate.sh --seed 7 --journal FILE --once      every line of what happens; not run a second time
#   scripts/simulate.sh --seed 7 --without disk,power       leaves classes of troubles out: sites, mail, clock, user,
#                                                           verbs, locks, disk, power, kill, restart, programs, sleep,
#                                                           memory
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh
source scripts/lib/help.sh

help_if_asked "$@"

need_packages "${build_packages[@]}" "${test_packages[@]}"
configure release -DBUILD_TESTING=ON
build release simulate
case " $* " in
  *" --seed "*) ;;
  *) set -- --seed fresh "$@" ;;
esac
exec build/release/tests/simulation/simulate "$@"
