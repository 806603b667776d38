# How the scripts configure and build. Sourced from the root of the repository, after packages.sh.
# shellcheck shell=bash

jobs=$(nproc 2>/dev/null || echo 2)

# configure PRESET [ARGUMENT...]: quiet when it goes well, everything it said when it does not.
configure() {
  local said
  said=$(cmake --preset "$@" 2>&1) || {
    printf '%s\n' "$said" "Configuring failed; the reason is above." >&2
    exit 1
  }
}

# build PRESET [TARGET...]: builds the targets, or everything.
build() {
  local preset=$1
  shift
  local targets=()
  if (($# > 0)); then
    targets=(--target "$@")
  fi
  cmake --build --preset "$preset" "${targets[@]}" -- -j"$jobs" || {
    echo "The build failed; the reason is above." >&2
    exit 1
  }
}
