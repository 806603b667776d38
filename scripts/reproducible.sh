#!/bin/bash
# Builds the programs and the packages twice, in two folders of different names and under different circumstances, and
# compares them to the byte. Takes as long as two whole builds.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/packages.sh
source scripts/lib/build.sh
need_packages "${build_packages[@]}" "${package_packages[@]}"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# copy_sources FOLDER: what belongs to the project, without what was built or ignored.
copy_sources() {
  mkdir -p "$1"
  git ls-files -z --cached --others --exclude-standard |
    while IFS= read -r -d '' file; do
      [[ ! -e $file ]] || printf '%s\0' "$file"
    done | tar --null --files-from=- -cf - | tar -xf - -C "$1"
}

# make_packages FOLDER: builds in it. What a build must not depend on is set by the caller.
make_packages() {
  (
    cd "$1"
    export CCACHE_DISABLE=1
    said=$({
      cmake --preset package -DBUILD_TESTING=OFF && cmake --build --preset package -- -j"$jobs" &&
        cd build/package && cpack
    } 2>&1) || {
      printf '%s\n' "$said" "The build in $1 failed; the reason is above." >&2
      exit 1
    }
  )
}

# sums FOLDER: the sums of what was built, by its name alone.
sums() {
  (cd "$1/build/package" && sha256sum tarnwick/tarnwick tarnwick/tarnwickctl tarnwick-*.tar.gz tarnwick*_*.deb)
}

# Both before the first build: the sources may be edited meanwhile.
copy_sources "$work/one"
cp -R "$work/one" "$work/another folder"
echo "Building for the first time ..."
(umask 022 && TZ=UTC LC_ALL=C.UTF-8 make_packages "$work/one")
echo "Building for the second time, in another folder ..."
(umask 027 && TZ=Pacific/Auckland LC_ALL=C make_packages "$work/another folder")

sums "$work/one" | tee "$work/sums-one"
sums "$work/another folder" >"$work/sums-another"
if ! diff "$work/sums-one" "$work/sums-another"; then
  echo "The two builds differ: see the sums above." >&2
  exit 1
fi
echo "Both builds are equal to the byte."
