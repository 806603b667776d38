#!/bin/bash
# Builds Tarnwick and starts it: installs what is missing, compiles what has changed, opens the window. On a machine
# without a display it watches the sites in the terminal instead.
#
#   scripts/run.sh                       the program on its own list of sites
#   scripts/run.sh --demo                on a handful of pages of this machine, in a folder of the demo's own
#   scripts/run.sh --terminal            in the terminal, display or not
#   scripts/run.sh --built build/debug   what is built there; nothing is installed or compiled
#   scripts/run.sh -- --verbose          what follows -- goes to the program: here tarnwickctl run --verbose
#
# What the script says goes to standard error; standard output is the program's alone.
set -euo pipefail
called_from=$PWD
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh
source scripts/lib/demo.sh

usage() {
  sed -n '2,11s/^# \{0,1\}//p' scripts/run.sh
}

demo=no
built=
place=window
said=
if [[ -z ${DISPLAY:-} && -z ${WAYLAND_DISPLAY:-} ]]; then
  place=terminal
  said="There is no display for the window, so the terminal it is. "
fi
while (($# > 0)); do
  case "$1" in
    --demo) demo=yes ;;
    --terminal) place=terminal ;;
    --built)
      if (($# < 2)); then
        echo "--built needs a folder, for instance build/release" >&2
        usage >&2
        exit 2
      fi
      built=$(cd "$called_from" && realpath -- "$2")
      shift
      ;;
    --)
      shift
      break
      ;;
    -h | --help)
      usage
      exit 0
      ;;
    *)
      echo "scripts/run.sh does not know \"$1\". What is meant for the program goes behind --" >&2
      usage >&2
      exit 2
      ;;
  esac
  shift
done

# Installs and compiles what is missing.
make_program() {
  need_packages "${build_packages[@]}" "${run_packages[@]}"
  if [[ $place == window && -z ${DISPLAY:-} ]]; then
    need_packages qt6-wayland
  fi
  if [[ $demo == yes ]]; then
    need_packages python3
  fi
  # The tests are no part of running; they are configured where their libraries are, so that both scripts share a build.
  local tests=OFF
  if is_installed libgtest-dev && is_installed libgmock-dev; then
    tests=ON
  fi
  configure release -DBUILD_TESTING=$tests
  build release tarnwick tarnwickctl program_folder
}

if [[ -z $built ]]; then
  built=$PWD/build/release
  make_program >&2
elif [[ ! -x $built/tarnwick/tarnwickctl || ! -x $built/tarnwick/tarnwick ]]; then
  echo "Nothing is built in $built. Run scripts/run.sh without --built, or name a folder that CMake has built in." >&2
  exit 1
fi

if [[ $demo == yes ]]; then
  lay_demo_folder "$built"
  start_demo_server
  fill_demo_folder
  folder=$demo_folder
  said+="Demo: the pages of $demo_site are watched from $folder, which has a list of its own. "
else
  folder=$built/tarnwick
  said+="The program folder is $folder. "
  if [[ $place == terminal ]]; then
    said+="Its list is changed, from another terminal, by $folder/tarnwickctl. "
  fi
fi

if [[ $place == window ]]; then
  if [[ $demo == yes ]]; then
    said+="Press Start in the window."
  fi
  echo "${said% }" >&2
  exec "$folder/tarnwick" "$@"
fi

echo "${said}Ctrl+C ends it." >&2
# Not by --folder: the first start of the program that lies there lays its list.
exec "$folder/tarnwickctl" run "$@"
